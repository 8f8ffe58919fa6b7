// SPDX-License-Identifier: Apache-2.0

// Zooming and panning without a window. Every plot is 800 x 600, as in PlotReadingTest:
//
//     column = 80 + V        row = 330 - 4 f        row = 330 - 1000 g
//
// and the canvases are columns 80 to 679 and rows 78 to 581.

#include "vgfplot/PlotZoom.h"

#include "vgfplot/EvmPlot.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tarsil;

namespace {

void expectAxis(const AxisValues& axis, float min, float max, int ticks)
{
    EXPECT_EQ(axis.min, min);
    EXPECT_EQ(axis.max, max);
    EXPECT_EQ(axis.ticks, ticks);
}

bool isMultipleOf(double value, double unit)
{
    // A single has about seven digits.
    const double count = value / unit;
    return std::fabs(count - std::nearbyint(count)) < 1e-6 * std::fabs(count) + 1e-4;
}

/// Whether every tick of an axis has a label with its exact value, and the axis its direction.
void expectReadable(const AxisValues& axis, double unit, bool isReversed)
{
    ASSERT_GE(axis.ticks, 3);
    ASSERT_LE(axis.ticks, 11);
    ASSERT_EQ(axis.max < axis.min, isReversed);
    ASSERT_GE(std::fabs(axis.max - axis.min), 3.99 * unit);
    const double step = (static_cast<double>(axis.max) - axis.min) / axis.ticks;
    ASSERT_TRUE(isMultipleOf(axis.min, unit)) << axis.min;
    ASSERT_TRUE(isMultipleOf(step, unit)) << step;
}

void expectReadable(const PlotAxes& axes)
{
    expectReadable(axes.speed, 1, false);
    expectReadable(axes.frequency, 0.01, false);
    expectReadable(axes.damping, 0.001, true);
    ASSERT_GE(axes.speed.min, 0);
    ASSERT_GE(axes.frequency.min, 0);
    ASSERT_LE(axes.damping.min, 0);
}

class PlotZoomTest : public ::testing::Test
{
protected:
    PlotZoomTest()
    {
        plot.resize({800, 600});
        plot.SetScale(0, 600, 0, 63, 0, -0.252F);
    }

    PlotAxes zoomed(QPoint from, QPoint to) { return PlotZoom(plot).into(from, to); }

    EvmPlot plot;
    const PlotAxes before = [this] {
        plot.SetScale(0, 600, 0, 63, 0, -0.252F);
        return plot.axes();
    }();
    const QRect canvases {80, 78, 600, 504};
};

} // namespace

TEST_F(PlotZoomTest, knowsTheZonesOfThePlot)
{
    EXPECT_EQ(zoneAt(plot, {300, 100}), PlotZone::Frequency);
    EXPECT_EQ(zoneAt(plot, {300, 500}), PlotZone::Damping);
    EXPECT_EQ(zoneAt(plot, {300, 330}), PlotZone::SpeedAxis);
    EXPECT_EQ(zoneAt(plot, {300, 345}), PlotZone::SpeedAxis) << "tick labels";
    EXPECT_EQ(zoneAt(plot, {60, 200}), PlotZone::FrequencyAxis);
    EXPECT_EQ(zoneAt(plot, {60, 450}), PlotZone::DampingAxis);
    EXPECT_EQ(zoneAt(plot, {5, 200}), PlotZone::Outside);
    EXPECT_EQ(zoneAt(plot, {760, 200}), PlotZone::Outside);
    EXPECT_EQ(zoneAt(plot, plot.parts().velAxisLabel.geometry().center()), PlotZone::SpeedAxis);
}

TEST_F(PlotZoomTest, showsSpeedsAndFrequenciesOfABandInTheUpperHalf)
{
    // Columns 180 to 380 are 100 to 300 KEAS, rows 130 and 230 are 50 and 25 Hz.
    const PlotAxes axes = zoomed({180, 130}, {380, 230});
    expectAxis(axes.speed, 100, 300, 10);
    expectAxis(axes.frequency, 25, 50, 10);
    EXPECT_EQ(axes.damping, before.damping);
    EXPECT_EQ(zoomed({380, 230}, {180, 130}), axes) << "drawn from the other corner";
    EXPECT_EQ(zoomed({180, 230}, {380, 130}), axes);
}

TEST_F(PlotZoomTest, showsSpeedsAndDampingsOfABandInTheLowerHalf)
{
    const PlotAxes axes = zoomed({180, 380}, {380, 430});
    expectAxis(axes.speed, 100, 300, 10);
    expectAxis(axes.damping, -0.05F, -0.1F, 10);
    EXPECT_EQ(axes.frequency, before.frequency);
}

TEST_F(PlotZoomTest, showsTheSpeedsAloneOfABandAcrossTheSpeedAxisOrAFlatOne)
{
    for (const auto& [from, to] : {std::pair(QPoint(180, 320), QPoint(380, 345)),
                                   std::pair(QPoint(380, 500), QPoint(180, 100)),
                                   std::pair(QPoint(180, 200), QPoint(380, 204))}) {
        const PlotAxes axes = zoomed(from, to);
        expectAxis(axes.speed, 100, 300, 10);
        EXPECT_EQ(axes.frequency, before.frequency);
        EXPECT_EQ(axes.damping, before.damping);
        EXPECT_EQ(PlotZoom(plot).band(from, to).top(), canvases.top());
        EXPECT_EQ(PlotZoom(plot).band(from, to).bottom(), canvases.bottom());
    }
}

TEST_F(PlotZoomTest, showsTheValuesAloneOfANarrowBand)
{
    const PlotAxes axes = zoomed({180, 130}, {184, 230});
    expectAxis(axes.frequency, 25, 50, 10);
    EXPECT_EQ(axes.speed, before.speed);
    EXPECT_EQ(PlotZoom(plot).band({180, 130}, {184, 230}), QRect(80, 130, 600, 101));
}

TEST_F(PlotZoomTest, showsNothingElseAfterATremor)
{
    EXPECT_EQ(zoomed({180, 130}, {183, 133}), before);
    EXPECT_TRUE(PlotZoom(plot).band({180, 130}, {183, 133}).isNull());
}

TEST_F(PlotZoomTest, roundsABandOutwardsToReadableTicks)
{
    // 137 to 263 KEAS: a tenth is 12.6, the next round step 20. 33.25 to 46.75 Hz: step 2.
    const PlotAxes axes = zoomed({217, 143}, {343, 197});
    expectAxis(axes.speed, 120, 280, 8);
    expectAxis(axes.frequency, 32, 48, 8);
}

TEST_F(PlotZoomTest, keepsABandInsideTheCanvases)
{
    const PlotAxes axes = zoomed({580, 130}, {900, 20});
    EXPECT_EQ(axes.speed.max, 600);
    EXPECT_LE(axes.frequency.max, 64) << "63 Hz, rounded outwards";
    EXPECT_TRUE(canvases.contains(PlotZoom(plot).band({580, 130}, {900, 20})));
}

TEST_F(PlotZoomTest, givesReadableAxesForAnyBands)
{
    std::mt19937 random(1); // NOLINT: always the same bands
    std::uniform_int_distribution<int> column(80, 679);
    std::uniform_int_distribution<int> upper(78, 329);
    std::uniform_int_distribution<int> lower(330, 581);
    for (int i = 0; i < 300; ++i) {
        if (i % 6 == 0)
            plot.setAxes(before);
        plot.setAxes(zoomed({column(random), upper(random)}, {column(random), upper(random)}));
        plot.setAxes(zoomed({column(random), lower(random)}, {column(random), lower(random)}));
        PlotAxes axes = plot.axes();
        if (axes.speed == before.speed || axes.frequency == before.frequency
            || axes.damping == before.damping)
            continue; // a flat or narrow band
        ASSERT_NO_FATAL_FAILURE(expectReadable(axes)) << i;
    }
}

TEST_F(PlotZoomTest, enlargesAboutThePointer)
{
    PlotZoom zoom(plot);
    // 300 KEAS and 31.5 Hz, the middle: 0.8 of 600 is 480, from 60 to 540; step 50.
    const PlotAxes axes = zoom.turn({380, 204}, 1);
    expectAxis(axes.speed, 50, 550, 10);
    // 0.8 of 63 is 50.4, from 6.3 to 56.7; step 10 (5.04 rounds up).
    expectAxis(axes.frequency, 10, 60, 5);
    EXPECT_EQ(axes.damping, before.damping);
    for (int i = 0; i < 8; ++i)
        plot.setAxes(zoom.turn({380, 204}, 1));
    const double span = plot.axes().speed.max - plot.axes().speed.min;
    EXPECT_LT(span, 100) << "0.8 to the power of 9 is 0.134";
    EXPECT_NEAR((plot.axes().speed.max + plot.axes().speed.min) / 2, 300, span / 10);
}

TEST_F(PlotZoomTest, enlargesWhatTheChoiceAndTheZoneSay)
{
    const auto changes = [this](QPoint pixel, ZoomChoice choice) {
        const PlotAxes axes = PlotZoom(plot).turn(pixel, 3, choice);
        return std::string(axes.speed == before.speed ? "" : "V")
            + (axes.frequency == before.frequency ? "" : "f")
            + (axes.damping == before.damping ? "" : "g");
    };
    EXPECT_EQ(changes({380, 204}, ZoomChoice::SpeedAndValue), "Vf");
    EXPECT_EQ(changes({380, 204}, ZoomChoice::Speed), "V");
    EXPECT_EQ(changes({380, 204}, ZoomChoice::Value), "f");
    EXPECT_EQ(changes({380, 456}, ZoomChoice::SpeedAndValue), "Vg");
    EXPECT_EQ(changes({380, 456}, ZoomChoice::Value), "g");
    EXPECT_EQ(changes({380, 330}, ZoomChoice::SpeedAndValue), "V");
    EXPECT_EQ(changes({380, 330}, ZoomChoice::Value), "V") << "the speed axis has no other";
    EXPECT_EQ(changes({60, 204}, ZoomChoice::Speed), "f");
    EXPECT_EQ(changes({60, 456}, ZoomChoice::SpeedAndValue), "g");
    EXPECT_EQ(changes({5, 5}, ZoomChoice::SpeedAndValue), "");
}

TEST_F(PlotZoomTest, returnsToTheBeginWhenTheWheelTurnsBack)
{
    plot.SetScale(0, 600, 0, 50, 0, -0.25F);
    PlotZoom zoom(plot);
    for (int i = 0; i < 12; ++i)
        zoom.turn({217, 411}, 0.75);
    for (int i = 0; i < 11; ++i)
        zoom.turn({217, 411}, -0.75);
    const PlotAxes axes = zoom.turn({217, 411}, -0.75);
    EXPECT_EQ(axes.speed.min, 0);
    EXPECT_EQ(axes.speed.max, 600);
    EXPECT_EQ(axes.damping.min, 0);
    EXPECT_EQ(axes.damping.max, -0.25F);
}

TEST_F(PlotZoomTest, neverPassesZeroWhenItZoomsOut)
{
    PlotZoom zoom(plot);
    for (int i = 0; i < 10; ++i) {
        const PlotAxes axes = zoom.turn({600, 456}, -1);
        EXPECT_EQ(axes.speed.min, 0);
        EXPECT_EQ(axes.damping.min, 0) << "the speed axis is at the damping 0";
        EXPECT_LT(axes.damping.max, -0.252F);
    }
}

TEST_F(PlotZoomTest, hasAShortestAndALongestRange)
{
    plot.SetScale(0, 700, 0, 50, 0, -0.25F); // readable with the ticks of a new plot
    PlotZoom in(plot);
    PlotZoom out(plot);
    for (int i = 0; i < 200; ++i) {
        for (const QPoint pixel : {QPoint(217, 150), QPoint(217, 500)}) {
            ASSERT_NO_FATAL_FAILURE(expectReadable(in.turn(pixel, 1)));
            ASSERT_NO_FATAL_FAILURE(expectReadable(out.turn(pixel, -1)));
        }
    }
    EXPECT_EQ(in.turn({217, 150}, 1).speed.ticks, 4);
    EXPECT_LE(out.turn({217, 150}, -1).speed.max, 1e6F);
}

TEST_F(PlotZoomTest, opensAnAxisWhoseBoundsAreEqual)
{
    plot.SetScale(0, 0, 20, 20, 0, 0);
    ASSERT_NO_FATAL_FAILURE(
        expectReadable(PlotZoom(plot).turn({380, 204}, 1).frequency, 0.01, false));
    ASSERT_NO_FATAL_FAILURE(expectReadable(PlotZoom(plot).turn({380, 204}, 1).speed, 1, false));
    ASSERT_NO_FATAL_FAILURE(expectReadable(zoomed({180, 130}, {380, 230}).speed, 1, false));
}

TEST_F(PlotZoomTest, movesThePlotWithThePointer)
{
    plot.SetScale(100, 700, 20, 83, 0, -0.252F);
    // 60 columns to the left are 60 KEAS more, 40 rows down 10 Hz more. With the 7 and 5 ticks of
    // a new plot, the steps are 600 / 7 / 20 = 4.3, so 5 KEAS, and 63 / 5 / 20 = 0.63, so 1 Hz.
    const PlotAxes axes = PlotZoom(plot).panned({300, 200}, {240, 240});
    expectAxis(axes.speed, 160, 760, 7);
    expectAxis(axes.frequency, 30, 93, 5);
    EXPECT_EQ(axes.damping, before.damping);
    EXPECT_EQ(PlotZoom(plot).panned({300, 200}, {240, 240}, ZoomChoice::Speed).frequency,
              plot.axes().frequency);
    EXPECT_EQ(PlotZoom(plot).panned({300, 200}, {240, 240}, ZoomChoice::Value).speed,
              plot.axes().speed);
}

TEST_F(PlotZoomTest, stopsAtZeroWhenThePlotIsDragged)
{
    const PlotAxes axes = PlotZoom(plot).panned({300, 400}, {500, 560});
    EXPECT_EQ(axes, before);
    const PlotAxes up = PlotZoom(plot).panned({300, 400}, {300, 350});
    EXPECT_EQ(up.damping.min, -0.05F);
    EXPECT_EQ(up.damping.max, -0.302F);
}

TEST_F(PlotZoomTest, keepsDampingsWhenThePlotIsDraggedAlongTheSpeeds)
{
    const PlotAxes axes = PlotZoom(plot).panned({300, 400}, {200, 395});
    expectAxis(axes.speed, 100, 700, 7);
    EXPECT_EQ(axes.damping, before.damping);
}

TEST_F(PlotZoomTest, notesASpeedAxisThatIsNotAtTheDampingZero)
{
    EXPECT_EQ(axisNote(plot), QString());
    plot.SetScale(0, 600, 0, 63, -0.35F, -0.5F);
    EXPECT_EQ(axisNote(plot), QStringLiteral("The speed axis is at the damping -0.35"));
}
