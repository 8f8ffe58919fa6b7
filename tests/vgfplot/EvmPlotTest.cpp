// The properties of a V-g-f plot.

#include "vgfplot/EvmPlot.h"
#include "model/EVM.h"

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

const QStringList propertyKeys = {QStringLiteral("Caption"), QStringLiteral("ModeColor"),
                                  QStringLiteral("vThicks"), QStringLiteral("gThicks"),
                                  QStringLiteral("fThicks"), QStringLiteral("vLabel"),
                                  QStringLiteral("gLabel"),  QStringLiteral("fLabel")};

/// Gives every property a value that is not its default.
void setAllProperties(EvmPlot& plot)
{
    plot.setCaption(QStringLiteral("Wing"));
    plot.setModeColor(3);
    plot.setVthicks(8);
    plot.setGthicks(9);
    plot.setFthicks(10);
    plot.setVLabel(QStringLiteral("speed"));
    plot.setGLabel(QStringLiteral("damping"));
    plot.setFLabel(QStringLiteral("frequency"));
}

PropertyBag defaultProperties()
{
    return {{QStringLiteral("Caption"), QStringLiteral("Plot1")},
            {QStringLiteral("ModeColor"), 0},
            {QStringLiteral("vThicks"), 7},
            {QStringLiteral("gThicks"), 5},
            {QStringLiteral("fThicks"), 5},
            {QStringLiteral("vLabel"), QStringLiteral("V(keas)")},
            {QStringLiteral("gLabel"), QStringLiteral("g")},
            {QStringLiteral("fLabel"), QStringLiteral("f(Hz)")}};
}

} // namespace

TEST(EvmPlot, hasItsDefaultsUnderItsKeys)
{
    const EvmPlot plot;
    EXPECT_EQ(plot.WriteProperties(), defaultProperties());
    EXPECT_TRUE(plot.changedProperties().isEmpty());
}

TEST(EvmPlot, showsItsDefaultsOnItsParts)
{
    const EvmPlot plot;
    EXPECT_EQ(plot.velAxis().nThick(), 7);
    EXPECT_EQ(plot.gAxis().nThick(), 5);
    EXPECT_EQ(plot.freqAxis().nThick(), 5);
    EXPECT_EQ(plot.velAxisLabel().Caption(), QStringLiteral("V(keas)"));
    EXPECT_EQ(plot.gAxisLabel().Caption(), QStringLiteral("g"));
    EXPECT_EQ(plot.freqAxislabel().Caption(), QStringLiteral("f(Hz)"));
    EXPECT_EQ(plot.gAxis().ThickFormat(), QStringLiteral("0.00#"));
    EXPECT_EQ(plot.freqAxis().ThickFormat(), QStringLiteral("0.0#"));
    EXPECT_TRUE(plot.gAxis().Direction());
    EXPECT_FALSE(plot.freqAxis().Direction());
    EXPECT_EQ(plot.vgPlot().PlotType(), plottype::dampingOverSpeed);
    EXPECT_EQ(plot.vfPlot().PlotType(), plottype::frequencyOverSpeed);
}

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
        EXPECT_TRUE(plot.box(which).Text().isEmpty());
}

TEST(EvmPlot, countsHeaderLegendAndSubtitleAsBoxes0To2)
{
    EvmPlot plot;
    EXPECT_EQ(&plot.Header(), &plot.box(TextBox::Header));
    EXPECT_EQ(&plot.Legend(), &plot.box(TextBox::Legend));
    EXPECT_EQ(&plot.Mechanism(), &plot.box(TextBox::Mechanism));
}

TEST(EvmPlot, forwardsItsPropertiesToThePartsThatShowThem)
{
    EvmPlot plot;
    setAllProperties(plot);
    EXPECT_EQ(plot.velAxis().nThick(), 8);
    EXPECT_EQ(plot.gAxis().nThick(), 9);
    EXPECT_EQ(plot.freqAxis().nThick(), 10);
    EXPECT_EQ(plot.velAxisLabel().Caption(), QStringLiteral("speed"));
    EXPECT_EQ(plot.gAxisLabel().Caption(), QStringLiteral("damping"));
    EXPECT_EQ(plot.freqAxislabel().Caption(), QStringLiteral("frequency"));
    EXPECT_EQ(plot.vgPlot().ModeColor(), QVariant(3));
    EXPECT_EQ(plot.vfPlot().ModeColor(), QVariant(3));
}

TEST(EvmPlot, marksEveryPropertyThatIsSetAsChanged)
{
    EvmPlot plot;
    plot.setGthicks(5);
    EXPECT_TRUE(plot.changedProperties().contains(QStringLiteral("gThicks")));
    EXPECT_FALSE(plot.changedProperties().contains(QStringLiteral("vThicks")));
    setAllProperties(plot);
    for (const QString& key : propertyKeys)
        EXPECT_TRUE(plot.changedProperties().contains(key)) << key.toStdString();
}

TEST(EvmPlot, isReadBackFromTheBagThatItWrote)
{
    EvmPlot plot;
    setAllProperties(plot);
    EvmPlot copy;
    copy.ReadProperties(plot.WriteProperties());
    EXPECT_EQ(copy.WriteProperties(), plot.WriteProperties());
    EXPECT_EQ(copy.vLabel(), QStringLiteral("speed"));
    EXPECT_EQ(copy.fthicks(), 10);
}

TEST(EvmPlot, takesTheDefaultForEveryKeyThatABagDoesNotHave)
{
    EvmPlot plot;
    setAllProperties(plot);
    plot.ReadProperties({{QStringLiteral("gLabel"), QStringLiteral("G")}});
    PropertyBag expected = defaultProperties();
    expected[QStringLiteral("gLabel")] = QStringLiteral("G");
    EXPECT_EQ(plot.WriteProperties(), expected);
}

TEST(EvmPlot, takesItsScaleAsSpeedsFrequenciesAndDampings)
{
    EvmPlot plot;
    plot.SetScale(100, 600, 5, 40, 0.05F, -0.3F);
    EXPECT_EQ(plot.velAxis().Min(), 100);
    EXPECT_EQ(plot.velAxis().Max(), 600);
    EXPECT_EQ(plot.freqAxis().Min(), 5);
    EXPECT_EQ(plot.freqAxis().Max(), 40);
    // The numbers that a person reads in the singles.
    EXPECT_EQ(plot.gAxis().Min(), 0.05);
    EXPECT_EQ(plot.gAxis().Max(), -0.3);
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
    const int width = plot.vfPlot().Width();
    const int half = plot.vfPlot().Height();
    // fmax at the top and fmin at the bottom of the upper half.
    EXPECT_EQ(plot.vfPlot().pixelOf(100, 40), QPoint(0, 0));
    EXPECT_EQ(plot.vfPlot().pixelOf(600, 5), QPoint(width, half));
    // gmin in the middle and gmax at the bottom of both halves; the top is as far on the other
    // side.
    EXPECT_EQ(plot.vgPlot().pixelOf(100, 0), QPoint(0, half));
    EXPECT_EQ(plot.vgPlot().pixelOf(600, -0.25), QPoint(width, 2 * half));
    EXPECT_EQ(plot.vgPlot().pixelOf(350, 0.25), QPoint(width / 2, 0));
}

TEST(EvmPlot, keepsReferenceSpeedsOnTheSpeedAxis)
{
    EvmPlot plot;
    plot.AddRef(350, QStringLiteral("Vd"));
    plot.AddRef(400, QStringLiteral("1.15 Vd"));
    ASSERT_EQ(plot.velAxis().marks().size(), 2U);
    EXPECT_EQ(plot.velAxis().marks()[1].Speed, 400.0F);
    EXPECT_EQ(plot.velAxis().marks()[1].Caption, QStringLiteral("1.15 Vd"));
    plot.RemoveRef();
    EXPECT_TRUE(plot.velAxis().marks().empty());
}

TEST(EvmPlot, addsDampingLinesAcrossTheWholeSpeedRange)
{
    EvmPlot plot;
    plot.SetScale(50, 650, 0, 50, 0, -0.25F);
    plot.AddDampLine(0.02F, QStringLiteral("g = 2 %"));
    ASSERT_EQ(plot.vgPlot().lines().size(), 1U);
    const RefLine& line = plot.vgPlot().lines()[0];
    EXPECT_EQ(line.X1, 50.0F);
    EXPECT_EQ(line.X2, 650.0F);
    EXPECT_EQ(line.Y1, 0.02F);
    EXPECT_EQ(line.Y2, 0.02F);
    EXPECT_EQ(line.Caption, QStringLiteral("g = 2 %"));
    EXPECT_EQ(line.LineWidth, 0);
    EXPECT_TRUE(plot.vfPlot().lines().empty());
}

TEST(EvmPlot, removesAllDampingLines)
{
    EvmPlot plot;
    plot.AddDampLine(0.02F, {});
    plot.AddDampLine(0.03F, {});
    plot.RemoveDampLine();
    EXPECT_TRUE(plot.vgPlot().lines().empty());
    plot.RemoveDampLine();
}

TEST(EvmPlot, clonesPropertiesScaleAndTextBoxes)
{
    EvmPlot source;
    setAllProperties(source);
    source.SetScale(1, 2, 3, 4, 5, 6);
    source.setBoxText(TextBox::Header, QStringLiteral("header"));
    source.setBoxText(TextBox::Legend, QStringLiteral("legend"));
    source.Legend().setForeColor(rgb(1, 2, 3));
    source.Mechanism().setFont({QStringLiteral("Arial"), 14, true});
    source.moveBox(TextBox::Legend, 4500, 3000);
    EvmPlot copy;
    copy.Clone(source);
    EXPECT_EQ(copy.WriteProperties(), source.WriteProperties());
    EXPECT_EQ(copy.axes().bounds(), source.axes().bounds());
    for (const TextBox which : allTextBoxes) {
        SCOPED_TRACE(static_cast<int>(which));
        EXPECT_EQ(copy.box(which).Text(), source.box(which).Text());
        EXPECT_EQ(copy.box(which).Font(), source.box(which).Font());
        EXPECT_EQ(copy.box(which).ForeColor(), source.box(which).ForeColor());
        EXPECT_EQ(copy.box(which).geometry().topLeft(), source.box(which).geometry().topLeft());
    }
}

TEST(EvmPlot, clonesIntoAPlotOfAnotherSize)
{
    EvmPlot source;
    source.resize({800, 600});
    source.setBoxText(TextBox::Legend, QStringLiteral("legend"));
    source.moveBox(TextBox::Legend, 4500, 3000);
    EvmPlot copy;
    copy.resize({400, 300});
    copy.Clone(source);
    EXPECT_EQ(copy.size(), QSize(400, 300));
    EXPECT_EQ(copy.Legend().unitsLeft(), 4500); // stays where it was put
    EXPECT_EQ(copy.vfPlot().Width(), 300);
}

TEST(EvmPlot, doesNotCloneTheSeries)
{
    EVM evolution;
    EvmPlot source;
    source.addSeries(evolution.appendMode());
    EvmPlot copy;
    copy.Clone(source);
    EXPECT_TRUE(copy.SeriesCollection().empty());
}

TEST(EvmPlot, tellsThatItsPictureHasChanged)
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
    plot.setVthicks(3);
    EXPECT_TRUE(countsUp());
    plot.setGLabel(QStringLiteral("G"));
    EXPECT_TRUE(countsUp());
    plot.AddRef(1, {});
    EXPECT_TRUE(countsUp());
    plot.setBoxText(TextBox::Legend, QStringLiteral("legend"));
    EXPECT_TRUE(countsUp());
    plot.moveBox(TextBox::Legend, 100, 100);
    EXPECT_TRUE(countsUp());
    plot.resize({500, 400});
    EXPECT_TRUE(countsUp());
}

TEST(EvmPlot, saysWhereReferenceSpeedsDoNotStandAtTheirSpeeds)
{
    EvmPlot plot;
    plot.SetScale(100, 500, 0, 20, 0, -0.5F);
    EXPECT_EQ(plot.shiftedMarksNote(), QString()) << "there is none";
    plot.AddRef(350, QStringLiteral("VD"));
    // On an axis from 100 to 500 the mark of 350 stands 350 / 400 of the way along, where 450 is.
    EXPECT_EQ(
        plot.shiftedMarksNote(),
        QStringLiteral("Reference speeds stand 100 knots too far right: the speed axis begins "
                       "at 100"));
    plot.SetScale(-52.5F, 500, 0, 20, 0, -0.5F);
    EXPECT_EQ(
        plot.shiftedMarksNote(),
        QStringLiteral("Reference speeds stand 52.5 knots too far left: the speed axis begins "
                       "at -52.5"));
    plot.SetScale(0, 500, 0, 20, 0, -0.5F);
    EXPECT_EQ(plot.shiftedMarksNote(), QString());
}
