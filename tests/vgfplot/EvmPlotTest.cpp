// SPDX-License-Identifier: Apache-2.0

// The scale, the copies and the signals of a V-g-f plot.

#include "vgfplot/EvmPlot.h"
#include "model/EVM.h"
#include "vgfplot/AllProperties.h"

#include <gtest/gtest.h>

using namespace tarsil;

TEST(EvmPlot, beginsWithAScaleForStableModesBelowTheSpeedAxis)
{
    const EvmPlot plot;
    const PlotAxes axes = plot.axes();
    EXPECT_EQ(axes.speed.min, 0.0F);
    EXPECT_EQ(axes.speed.max, 700.0F);
    EXPECT_EQ(axes.frequency.min, 0.0F);
    EXPECT_EQ(axes.frequency.max, 50.0F);
    EXPECT_EQ(axes.damping.min, 0.0F);
    EXPECT_EQ(axes.damping.max, -0.25F);
}

TEST(EvmPlot, hasPromptsForItsEmptyTextBoxes)
{
    EvmPlot plot;
    EXPECT_EQ(plot.Header().prompt(), QStringLiteral("Insert Header"));
    EXPECT_EQ(plot.Legend().prompt(), QStringLiteral("Insert Legend"));
    EXPECT_EQ(plot.Mechanism().prompt(), QStringLiteral("Insert Subtitle"));
    for (const TextBox which : allTextBoxes)
        EXPECT_TRUE(plot.parts().box(which).Text().isEmpty());
}

TEST(EvmPlot, countsHeaderLegendAndSubtitleAsBoxes0To2)
{
    EvmPlot plot;
    EXPECT_EQ(&plot.Header(), &plot.parts().box(TextBox::Header));
    EXPECT_EQ(&plot.Legend(), &plot.parts().box(TextBox::Legend));
    EXPECT_EQ(&plot.Mechanism(), &plot.parts().box(TextBox::Mechanism));
}

TEST(EvmPlot, acceptsItsScaleAsSpeedsFrequenciesAndDampings)
{
    EvmPlot plot;
    plot.SetScale(100, 600, 5, 40, 0.05F, -0.3F);
    EXPECT_EQ(plot.parts().velAxis.Min(), 100);
    EXPECT_EQ(plot.parts().velAxis.Max(), 600);
    EXPECT_EQ(plot.parts().freqAxis.Min(), 5);
    EXPECT_EQ(plot.parts().freqAxis.Max(), 40);
    // The decimal values of the singles.
    EXPECT_EQ(plot.parts().gAxis.Min(), 0.05);
    EXPECT_EQ(plot.parts().gAxis.Max(), -0.3);
}

TEST(EvmPlot, givesItsScaleInTheSameOrder)
{
    EvmPlot plot;
    plot.SetScale(1, 2, 3, 4, 5, 6);
    float vmin = 0;
    float vmax = 0;
    float fmin = 0;
    float fmax = 0;
    float gmin = 0;
    float gmax = 0;
    plot.GetScale(vmin, vmax, fmin, fmax, gmin, gmax);
    EXPECT_EQ(vmin, 1.0F);
    EXPECT_EQ(vmax, 2.0F);
    EXPECT_EQ(fmin, 3.0F);
    EXPECT_EQ(fmax, 4.0F);
    EXPECT_EQ(gmin, 5.0F);
    EXPECT_EQ(gmax, 6.0F);
}

TEST(EvmPlot, setsTheScaleOfBothCanvasesWithTheAxes)
{
    EvmPlot plot;
    plot.resize({800, 600});
    plot.SetScale(100, 600, 5, 40, 0, -0.25F);
    const int width = plot.parts().vfPlot.Width();
    const int half = plot.parts().vfPlot.Height();
    // fmax is at the top and fmin at the bottom of the upper half.
    EXPECT_EQ(plot.parts().vfPlot.pixelOf(100, 40), QPoint(0, 0));
    EXPECT_EQ(plot.parts().vfPlot.pixelOf(600, 5), QPoint(width, half));
    // gmin is in the middle and gmax at the bottom of both halves; the top is symmetric to the
    // bottom.
    EXPECT_EQ(plot.parts().vgPlot.pixelOf(100, 0), QPoint(0, half));
    EXPECT_EQ(plot.parts().vgPlot.pixelOf(600, -0.25), QPoint(width, 2 * half));
    EXPECT_EQ(plot.parts().vgPlot.pixelOf(350, 0.25), QPoint(width / 2, 0));
}

TEST(EvmPlot, clonesPropertiesScaleAndTextBoxes)
{
    EvmPlot source;
    test::setAllProperties(source);
    source.SetScale(1, 2, 3, 4, 5, 6);
    source.texts().setText(TextBox::Header, QStringLiteral("header"));
    source.texts().setText(TextBox::Legend, QStringLiteral("legend"));
    source.texts().change(TextBox::Legend,
                          [](emfRichTextBox& box) { box.setForeColor(rgb(1, 2, 3)); });
    source.texts().change(TextBox::Mechanism, [](emfRichTextBox& box) {
        box.setFont({QStringLiteral("Arial"), 14, true});
    });
    source.texts().move(TextBox::Legend, 4500, 3000);
    EvmPlot copy;
    copy.Clone(source);
    EXPECT_EQ(copy.properties().WriteProperties(), source.properties().WriteProperties());
    EXPECT_EQ(copy.axes().bounds(), source.axes().bounds());
    for (const TextBox which : allTextBoxes) {
        SCOPED_TRACE(static_cast<int>(which));
        EXPECT_EQ(copy.parts().box(which).Text(), source.parts().box(which).Text());
        EXPECT_EQ(copy.parts().box(which).Font(), source.parts().box(which).Font());
        EXPECT_EQ(copy.parts().box(which).ForeColor(), source.parts().box(which).ForeColor());
        EXPECT_EQ(copy.parts().box(which).geometry().topLeft(),
                  source.parts().box(which).geometry().topLeft());
    }
}

TEST(EvmPlot, clonesIntoAPlotOfAnotherSize)
{
    EvmPlot source;
    source.resize({800, 600});
    source.texts().setText(TextBox::Legend, QStringLiteral("legend"));
    source.texts().move(TextBox::Legend, 4500, 3000);
    EvmPlot copy;
    copy.resize({400, 300});
    copy.Clone(source);
    EXPECT_EQ(copy.size(), QSize(400, 300));
    EXPECT_EQ(copy.Legend().unitsLeft(), 4500); // keeps its position
    EXPECT_EQ(copy.parts().vfPlot.Width(), 300);
}

TEST(EvmPlot, doesNotCloneTheSeries)
{
    EVM evolution;
    EvmPlot source;
    source.rows().add(evolution.appendMode());
    EvmPlot copy;
    copy.Clone(source);
    EXPECT_TRUE(copy.SeriesCollection().empty());
}

TEST(EvmPlot, reportsThatItsPictureHasChanged)
{
    EvmPlot plot;
    int count = 0;
    QObject::connect(&plot, &EvmPlot::changed, &plot, [&count] { ++count; });
    const auto countsUp = [&count] {
        const bool up = count > 0;
        count = 0;
        return up;
    };
    plot.plot();
    EXPECT_TRUE(countsUp());
    plot.Cls();
    EXPECT_TRUE(countsUp());
    plot.SetScale(0, 1, 0, 1, 0, 1);
    EXPECT_TRUE(countsUp());
    plot.properties().setVthicks(3);
    EXPECT_TRUE(countsUp());
    plot.properties().setGLabel(QStringLiteral("G"));
    EXPECT_TRUE(countsUp());
    plot.references().AddRef(1, {});
    EXPECT_TRUE(countsUp());
    plot.texts().setText(TextBox::Legend, QStringLiteral("legend"));
    EXPECT_TRUE(countsUp());
    plot.texts().move(TextBox::Legend, 100, 100);
    EXPECT_TRUE(countsUp());
    plot.resize({500, 400});
    EXPECT_TRUE(countsUp());
}
