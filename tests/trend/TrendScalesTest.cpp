// SPDX-License-Identifier: Apache-2.0
#include "trend/TrendScales.h"

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

TrendPoint startAt(double abscissa, double speed, double frequency)
{
    TrendPoint point;
    point.onset = TrendOnset::Start;
    point.abscissa = abscissa;
    point.speed = point.toSpeed = speed;
    point.start = Crossing();
    point.start->frequency = frequency;
    return point;
}

} // namespace

TEST(TrendScales, containsPointsAndRequiredSpeedsInRoundSteps)
{
    FlutterTrend trend;
    trend.points = {startAt(0.4, 266, 11.1), startAt(0.6, 247, 10.8)};
    trend.required = {{0.4, 210}};
    const TrendScales scales = scalesOf(trend);
    EXPECT_LT(scales.abscissa.low, 0.4);
    EXPECT_GT(scales.abscissa.high, 0.6);
    EXPECT_EQ(scales.abscissa.pattern, "0.00") << "steps of 0.05";
    EXPECT_LT(scales.speed.low, 210);
    EXPECT_GT(scales.speed.high, 266);
    EXPECT_EQ(scales.speed.pattern, "0");
    EXPECT_LT(scales.frequency.low, 10.8);
    EXPECT_GT(scales.frequency.high, 11.1);
}

TEST(TrendScales, hasRoomAroundASinglePoint)
{
    FlutterTrend trend;
    trend.points = {startAt(0.5, 266, 11)};
    const TrendScales scales = scalesOf(trend);
    EXPECT_LT(scales.abscissa.low, 0.5);
    EXPECT_GT(scales.abscissa.high, 0.5);
    EXPECT_LT(scales.abscissa.high, 0.7) << "a Mach number of 1.5 is far away";
    EXPECT_GT(scales.speed.steps, 1);
}

TEST(TrendScales, ignoresPointsThatAreNotDrawn)
{
    FlutterTrend trend;
    trend.points = {startAt(0.5, 266, 11), startAt(5, 9000, 90)};
    trend.points[1].whyNotDrawn = "for a reason";
    EXPECT_LT(scalesOf(trend).speed.high, 1000);
    EXPECT_LT(scalesOf(trend).abscissa.high, 1);
}

TEST(TrendScales, givesEachCategoryAUnit)
{
    FlutterTrend trend;
    trend.abscissa = TrendAbscissa::Mass;
    trend.categories = {"EMPTY", "FULL"};
    const TrendRange abscissa = scalesOf(trend).abscissa;
    EXPECT_EQ(abscissa.low, 0.5);
    EXPECT_EQ(abscissa.high, 2.5);
    EXPECT_EQ(abscissa.steps, 2);
}

TEST(TrendScales, existsWithoutPoints)
{
    const TrendScales scales = scalesOf(FlutterTrend());
    EXPECT_GT(scales.speed.high, scales.speed.low);
    EXPECT_GE(scales.abscissa.steps, 1);
}
