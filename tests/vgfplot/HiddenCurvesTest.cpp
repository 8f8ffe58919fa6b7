// SPDX-License-Identifier: Apache-2.0

// A hidden curve leaves nothing in plot and pictures.

#include "analysis/ModeBuilder.h"
#include "support/ChangeSeries.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PictureWriter.h"
#include "vgfplot/PlotReading.h"
#include "vgfplot/ScaleFit.h"

#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;

namespace {

/// Two plots with two curves each, the second of which is hidden in one plot and removed from the
/// other.
class HiddenCurves : public ::testing::Test
{
protected:
    HiddenCurves()
    {
        AeMode& low = addMode(evolution, 1, {{0, -0.02F, 10}, {350, -0.1F, 20}, {700, 0.05F, 25}});
        AeMode& high = addMode(evolution, 2, {{0, -0.2F, 45}, {1400, -0.1F, 30}});
        for (EvmPlot* const one : {&plot, &other}) {
            one->resize({800, 600});
            one->rows().add(low, MarkerOptions());
            one->rows().add(high, MarkerOptions());
            one->SetScale(0, 700, 0, 50, 0.2F, -0.3F);
        }
        shown = plot.Image().copy();
        plot.rows().setHidden({1}, true);
        other.rows().remove({1});
    }

    EVM evolution;
    EvmPlot plot;
    EvmPlot other;
    QImage shown;
};

} // namespace

TEST_F(HiddenCurves, leaveNoInkOnTheScreenAndInPictures)
{
    EXPECT_NE(plot.Image(), shown);
    EXPECT_EQ(plot.Image(), other.Image());
    for (const PictureFormat format : {PictureFormat::Emf, PictureFormat::Svg, PictureFormat::Png})
        EXPECT_EQ(pictureBytes(plot, format), pictureBytes(other, format))
            << static_cast<int>(format);
}

TEST_F(HiddenCurves, comeBackUnchanged)
{
    plot.rows().setHidden({1}, false);
    EXPECT_EQ(plot.Image(), shown);
}

TEST_F(HiddenCurves, areLeftOutOfFittedAxes)
{
    EXPECT_EQ(fitAxes(plot.SeriesCollection()), fitAxes(other.SeriesCollection()));
    EXPECT_EQ(fitAxes(plot.SeriesCollection()).speed.max, 700);
    plot.fitFreq();
    EXPECT_EQ(plot.axes().frequency.max, 21) << "20 Hz at 350 KEAS, and five per cent";
}

TEST_F(HiddenCurves, areNotReadAtThePointer)
{
    const QPoint onCurve = plot.parts().vfPlot.geometry().topLeft()
        + plot.parts().vfPlot.pixelOf(0, 45) + QPoint(1, 0);
    EXPECT_FALSE(readAt(plot, onCurve)->curve);
    const QPoint onOther =
        plot.parts().vfPlot.geometry().topLeft() + plot.parts().vfPlot.pixelOf(350, 20);
    ASSERT_TRUE(readAt(plot, onOther)->curve);
    plot.rows().move(1, 0);
    EXPECT_EQ(readAt(plot, onOther)->curve->row, plot.rows().at(1).id) << "after a hidden row";
    plot.rows().setHidden({0}, false);
    ASSERT_TRUE(readAt(plot, onCurve)->curve);
    EXPECT_EQ(readAt(plot, onCurve)->curve->mode, 2);
}
