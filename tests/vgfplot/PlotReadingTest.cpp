// SPDX-License-Identifier: Apache-2.0

// The values at a pixel of the plot. Every plot is 800 x 600, so by the fractions of the layout its
// canvases are
//
//     left 0.1 * 800 = 80, width 0.75 * 800 = 600, top 0.13 * 600 = 78, half 0.42 * 600 = 252,
//
// and the speed axis is row 78 + 252 = 330. With 600 KEAS, 63 Hz and a damping of -0.252 at the
// ends of the axes, a column is 1 KEAS, a row above the speed axis 63 / 252 = 0.25 Hz, and a row
// below it -0.252 / 252 = -0.001:
//
//     column = 80 + V        row = 330 - 4 f        row = 330 - 1000 g

#include "vgfplot/PlotReading.h"

#include "analysis/ModeBuilder.h"

#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;

namespace {

using Ordinate = PlotReading::Ordinate;

constexpr double tiny = 1e-9; ///< rounding of a few operations in double precision
constexpr double single = 1e-6; ///< values of points are singles

class PlotReadingTest : public ::testing::Test
{
protected:
    PlotReadingTest()
    {
        evolution.FileName = "goland.ev2";
        plot.resize({800, 600});
        plot.SetScale(0, 600, 0, 63, 0, -0.252F);
    }

    RowId draw(std::initializer_list<test::DrawnPoint> points)
    {
        return plot.rows().add(addMode(evolution, nextMode++, points));
    }

    /// Draws a curve of one frequency from 100 to 300 KEAS, far from the speed axis in the V-g
    /// canvas.
    RowId drawLevel(float frequency)
    {
        return draw({{100, -0.2F, frequency}, {300, -0.2F, frequency}});
    }

    /// Draws a curve of one damping from 100 to 300 KEAS, at the upper end of the V-f canvas.
    RowId drawLevelDamping(float damping) { return draw({{100, damping, 60}, {300, damping, 60}}); }

    std::optional<CurveReading> curveAt(int column, int row)
    {
        const std::optional<PlotReading> reading = readAt(plot, {column, row});
        EXPECT_TRUE(reading.has_value());
        return reading ? reading->curve : std::nullopt;
    }

    void expectReading(QPoint pixel, double speed, Ordinate ordinate, double value)
    {
        const std::optional<PlotReading> reading = readAt(plot, pixel);
        ASSERT_TRUE(reading.has_value());
        EXPECT_NEAR(reading->speed, speed, tiny);
        EXPECT_EQ(reading->ordinate, ordinate);
        EXPECT_NEAR(reading->value, value, tiny);
    }

    static void expectPlace(const std::optional<CurveReading>& curve, double speed,
                            double frequency, double damping)
    {
        ASSERT_TRUE(curve.has_value());
        EXPECT_NEAR(curve->speed, speed, single);
        EXPECT_NEAR(curve->frequency, frequency, single);
        EXPECT_NEAR(curve->damping, damping, single);
    }

    EVM evolution;
    EvmPlot plot;
    std::int16_t nextMode = 1;
};

} // namespace

TEST_F(PlotReadingTest, isTheFrequencyAboveTheSpeedAxis)
{
    // (330 - 270) / 4 = 15 Hz; the row above the speed axis is 1 / 4 Hz.
    expectReading({280, 270}, 200, Ordinate::Frequency, 15);
    expectReading({280, 329}, 200, Ordinate::Frequency, 0.25);
}

TEST_F(PlotReadingTest, isTheDampingOnTheSpeedAxisAndBelow)
{
    // -(430 - 330) / 1000 = -0.1.
    expectReading({280, 330}, 200, Ordinate::Damping, 0);
    expectReading({280, 430}, 200, Ordinate::Damping, -0.1);
}

TEST_F(PlotReadingTest, reachesFromCornerToCornerOfTheCanvases)
{
    expectReading({80, 78}, 0, Ordinate::Frequency, 63);
    expectReading({679, 581}, 599, Ordinate::Damping, -0.251);
}

TEST_F(PlotReadingTest, isNoneOutsideTheCanvases)
{
    for (const QPoint pixel : {QPoint(79, 300), QPoint(680, 300), QPoint(300, 77), QPoint(300, 582),
                               QPoint(0, 0), QPoint(-5, 9999)})
        EXPECT_FALSE(readAt(plot, pixel).has_value()) << pixel.x() << ',' << pixel.y();
}

TEST_F(PlotReadingTest, countsFromTheLowerBoundsOfTheAxes)
{
    plot.SetScale(100, 400, 10, 31, -0.1F, -0.352F);
    // 300 KEAS in 600 columns: 100 + 200 / 2 = 200. 21 Hz in 252 rows: 10 + 60 / 12 = 15. The
    // damping axis starts at -0.1 on the speed axis.
    expectReading({280, 270}, 200, Ordinate::Frequency, 15);
    expectReading({280, 430}, 200, Ordinate::Damping, -0.2);
}

TEST_F(PlotReadingTest, followsAnAxisThatRunsBackwards)
{
    plot.SetScale(600, 0, 63, 0, -0.252F, 0);
    drawLevel(15); // 63 - 15 = 48 Hz above the speed axis: row 330 - 4 * 48 = 138
    expectReading({280, 138}, 400, Ordinate::Frequency, 15);
    expectReading({280, 430}, 400, Ordinate::Damping, -0.152);
    expectPlace(curveAt(480, 138), 200, 15, -0.2);
}

TEST_F(PlotReadingTest, isNoneWhenTheBoundsOfAnAxisAreEqual)
{
    drawLevel(15);
    for (const PlotBounds& bounds :
         {PlotBounds {300, 300, 0, 50, 0, -0.25F}, PlotBounds {0, 600, 20, 20, 0, -0.25F},
          PlotBounds {0, 600, 0, 50, -0.25F, -0.25F}}) {
        PlotAxes axes;
        axes.setBounds(bounds);
        plot.setAxes(axes);
        EXPECT_FALSE(readAt(plot, {280, 270}).has_value());
        EXPECT_FALSE(readAt(plot, {280, 430}).has_value());
    }
}

TEST_F(PlotReadingTest, namesNoCurveWhenThereIsNone)
{
    EXPECT_FALSE(curveAt(280, 270).has_value());
}

TEST_F(PlotReadingTest, isLinearBetweenTheTwoPointsOfTheSegment)
{
    draw({{100, -0.05F, 10}, {300, -0.15F, 20}});
    // The V-f curve goes from (180, 290) to (380, 250): a quarter of the way is (230, 280).
    expectPlace(curveAt(230, 280), 150, 12.5, -0.075);
    // The V-g curve goes from (180, 380) to (380, 480).
    expectPlace(curveAt(230, 405), 150, 12.5, -0.075);
}

TEST_F(PlotReadingTest, findsTheFootOfThePerpendicular)
{
    draw({{100, -0.05F, 10}, {300, -0.15F, 20}});
    // (282, 280) is sqrt(104) pixels from the middle (280, 270), at right angles to (200, -40).
    expectPlace(curveAt(282, 280), 200, 15, -0.1);
    expectReading({282, 280}, 202, Ordinate::Frequency, 12.5);
}

TEST_F(PlotReadingTest, reachesTwelvePixelsFar)
{
    drawLevel(20); // row 330 - 80 = 250, columns 180 to 380
    expectPlace(curveAt(280, 262), 200, 20, -0.2);
    EXPECT_FALSE(curveAt(280, 263).has_value());
    expectPlace(curveAt(280, 238), 200, 20, -0.2);
    EXPECT_FALSE(curveAt(280, 237).has_value());
}

TEST_F(PlotReadingTest, findsTheEndOfACurveBeyondIt)
{
    drawLevel(20);
    expectPlace(curveAt(168, 250), 100, 20, -0.2);
    EXPECT_FALSE(curveAt(167, 250).has_value());
    expectPlace(curveAt(392, 250), 300, 20, -0.2);
    EXPECT_FALSE(curveAt(393, 250).has_value());
    // 8 and 9 pixels off in the two directions: sqrt(145) is more than 12.
    EXPECT_FALSE(curveAt(172, 259).has_value());
}

TEST_F(PlotReadingTest, findsTheSegmentAmongMany)
{
    draw({{100, 0, 20}, {200, -0.1F, 20}, {200, -0.2F, 40}, {300, -0.2F, 40}});
    // The vertical segment is column 280, rows 250 to 170.
    expectPlace(curveAt(285, 190), 200, 35, -0.175);
    expectPlace(curveAt(330, 170), 250, 40, -0.2);
}

TEST_F(PlotReadingTest, findsPointsThatFallOnOnePixel)
{
    draw({{200, -0.1F, 20}, {200.125F, -0.1F, 20}});
    expectPlace(curveAt(283, 254), 200, 20, -0.1);
}

TEST_F(PlotReadingTest, findsTheNearestOfSeveralCurves)
{
    drawLevel(20); // row 250
    drawLevel(24); // row 234
    EXPECT_EQ(curveAt(280, 243)->mode, 1);
    EXPECT_EQ(curveAt(280, 241)->mode, 2);
}

TEST_F(PlotReadingTest, findsTheCurveOnTopOfEqualDistances)
{
    drawLevel(20);
    drawLevel(20);
    EXPECT_EQ(curveAt(280, 250)->mode, 2);
    plot.SerieMove(2, 1);
    EXPECT_EQ(curveAt(280, 250)->mode, 1);
}

TEST_F(PlotReadingTest, findsADampingCurveAboveTheSpeedAxisToo)
{
    drawLevelDamping(0.05F); // row 330 - 50 = 280
    expectPlace(curveAt(280, 285), 200, 60, 0.05);
    expectReading({280, 285}, 200, Ordinate::Frequency, 11.25);
}

TEST_F(PlotReadingTest, findsADampingCurveAcrossTheSpeedAxis)
{
    drawLevelDamping(0.005F); // row 325
    expectPlace(curveAt(280, 335), 200, 60, 0.005);
    drawLevelDamping(-0.005F); // row 335
    EXPECT_EQ(curveAt(280, 326)->mode, 1);
    EXPECT_EQ(curveAt(280, 334)->mode, 2);
}

TEST_F(PlotReadingTest, findsAFrequencyCurveOnlyAboveTheSpeedAxis)
{
    drawLevel(0.5F); // row 328
    EXPECT_TRUE(curveAt(280, 329).has_value());
    EXPECT_FALSE(curveAt(280, 330).has_value());
}

TEST_F(PlotReadingTest, findsNothingOfACurveOutsideItsCanvas)
{
    drawLevel(64); // row 74, above the canvas
    EXPECT_FALSE(curveAt(280, 78).has_value());
    drawLevel(-1); // row 334, below it
    EXPECT_FALSE(curveAt(280, 329).has_value());
    draw({{620, -0.2F, 20}, {700, -0.2F, 20}}); // column 700, right of it
    EXPECT_FALSE(curveAt(679, 250).has_value());
}

TEST_F(PlotReadingTest, endsACurveWhereItLeavesTheCanvas)
{
    draw({{100, -0.1F, 53}, {300, -0.2F, 73}});
    // From (180, 118) to (380, 38); half-way it crosses the upper edge, row 78. The perpendicular
    // from (290, 78) would end outside, at 25200 / 46400 of the way.
    expectPlace(curveAt(290, 78), 200, 63, -0.15);
    EXPECT_FALSE(curveAt(293, 78).has_value());
}

TEST_F(PlotReadingTest, findsACurveThatOnlyCrossesTheCanvas)
{
    draw({{-100, -0.2F, 20}, {900, -0.2F, 20}});
    // The foot of the perpendicular from column 280 is at 300 / 1000 of the way.
    expectPlace(curveAt(280, 250), 200, 20, -0.2);
}

TEST_F(PlotReadingTest, findsACurveWhoseSpeedsDecrease)
{
    draw({{300, -0.2F, 20}, {100, -0.2F, 10}});
    expectPlace(curveAt(280, 270), 200, 15, -0.2);
}

TEST_F(PlotReadingTest, passesOverSeriesThatDrawNoLine)
{
    plot.rows().add(Series()); // without a mode
    plot.rows().change(drawLevel(20), [](Series& one) { one.LineStyle = penstyle::none; });
    draw({{200, -0.1F, 20}}); // a single point
    draw({});
    EXPECT_FALSE(curveAt(280, 250).has_value());
}

TEST_F(PlotReadingTest, passesOverAModeThatIsTooLongToBeDrawn)
{
    drawLevel(20);
    AeMode& mode = *plot.SeriesCollection().back().Mode;
    mode.Points.resize(32767, mode.Points.back());
    EXPECT_TRUE(curveAt(280, 250).has_value());
    mode.Points.push_back(mode.Points.back());
    EXPECT_FALSE(curveAt(280, 250).has_value());
}

TEST_F(PlotReadingTest, namesTheEvolutionOfTheCurve)
{
    drawLevel(10);
    plot.rows().change(drawLevel(20), [](Series& one) { one.MarkerTag = QStringLiteral("B1"); });
    const std::optional<CurveReading> curve = curveAt(280, 250);
    ASSERT_TRUE(curve.has_value());
    EXPECT_EQ(curve->evolution, QStringLiteral("goland.ev2"));
    EXPECT_EQ(curve->mode, 2);
    EXPECT_EQ(curve->tag, QStringLiteral("B1"));
}

TEST_F(PlotReadingTest, namesNoEvolutionOfAModeOfNone)
{
    drawLevel(20);
    plot.SeriesCollection().back().Mode->Parent = nullptr;
    ASSERT_TRUE(curveAt(280, 250).has_value());
    EXPECT_EQ(curveAt(280, 250)->evolution, QString());
}

TEST(ReadingText, isSpeedAndFrequencyOrDamping)
{
    EXPECT_EQ(readingText({312.44, Ordinate::Frequency, 11.254, {}}),
              QStringLiteral("V 312.4 KEAS   f 11.25 Hz"));
    EXPECT_EQ(readingText({0, Ordinate::Damping, -0.01234, {}}),
              QStringLiteral("V 0.0 KEAS   g -0.0123"));
}

TEST(ReadingText, hasASecondLineForTheCurve)
{
    const CurveReading curve {
        QStringLiteral("goland.ev2"), 2, QStringLiteral("3"), 311.9, 11.2, -0.0123};
    EXPECT_EQ(readingText({312.4, Ordinate::Frequency, 11.25, curve}),
              QStringLiteral("V 312.4 KEAS   f 11.25 Hz\n"
                             "goland.ev2, mode 2 [3]: V 311.9 KEAS, f 11.20 Hz, g -0.0123"));
}

TEST(ReadingText, leavesOutAnEvolutionAndATagThatAreEmpty)
{
    const CurveReading curve {{}, 7, {}, 300, 10, 0.05};
    EXPECT_EQ(readingText({300, Ordinate::Damping, 0.04, curve}),
              QStringLiteral("V 300.0 KEAS   g 0.0400\n"
                             "mode 7: V 300.0 KEAS, f 10.00 Hz, g 0.0500"));
}

TEST(ReadingText, hasNoSignForWhatRoundsToZero)
{
    EXPECT_EQ(readingText({-0.04, Ordinate::Damping, -0.00004, {}}),
              QStringLiteral("V 0.0 KEAS   g 0.0000"));
}

TEST_F(PlotReadingTest, readsNothingInTheGapOfABrokenCurve)
{
    // Static at 100 KEAS, 60 Hz at 300: half-way is column 280 and row 330 - 4 * 30.
    draw({{100, -0.2F, 0}, {300, -0.2F, 60}, {400, -0.2F, 60}});
    const QPoint middle(280, 210);
    ASSERT_TRUE(curveAt(middle.x(), middle.y()).has_value());
    plot.properties().setBreaksAtJumps(true);
    EXPECT_FALSE(curveAt(middle.x(), middle.y()).has_value());
    EXPECT_FALSE(curveAt(280, 530).has_value()) << "nor in the curve of damping";
    EXPECT_TRUE(curveAt(430, 90).has_value()) << "both points oscillate";
}
