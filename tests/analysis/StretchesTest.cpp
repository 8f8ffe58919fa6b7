// SPDX-License-Identifier: Apache-2.0
#include "analysis/Stretches.h"

#include "analysis/MonotoneCubic.h"

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

/// Points at 100, 125, 150 ... KEAS with these dampings and one frequency.
std::vector<StabilityPoint> pointsOf(const std::vector<float>& dampings, float frequency = 5)
{
    std::vector<StabilityPoint> points;
    for (const float damping : dampings)
        points.push_back({100 + 25 * static_cast<float>(points.size()), damping, frequency, false});
    return points;
}

LevelStretches stretchesOf(const std::vector<float>& dampings, float level = 0)
{
    return stretchesAbove(pointsOf(dampings), level, {});
}

} // namespace

TEST(Stretches, beginWhereTheStraightLineReachesTheLevel)
{
    const auto found = stretchesOf({-0.1F, -0.05F, 0.05F, 0.1F});
    ASSERT_EQ(found.stretches.size(), 1U);
    const Stretch& stretch = found.stretches[0];
    ASSERT_TRUE(stretch.start);
    EXPECT_EQ(stretch.start->speed, 137.5);
    EXPECT_EQ(stretch.start->frequency, 5);
    EXPECT_EQ(stretch.start->fromSpeed, 125);
    EXPECT_EQ(stretch.start->toSpeed, 150);
    EXPECT_FALSE(stretch.end);
    EXPECT_EQ(stretch.peak, static_cast<double>(0.1F));
    EXPECT_EQ(stretch.peakSpeed, 175);
}

TEST(Stretches, withAnEndAreHumpsOfTheirOwn)
{
    const auto found = stretchesOf({-1, 1, -1, -1, 2, -2});
    ASSERT_EQ(found.stretches.size(), 2U);
    EXPECT_EQ(found.stretches[0].start->speed, 112.5);
    EXPECT_EQ(found.stretches[0].end->speed, 137.5);
    EXPECT_EQ(found.stretches[1].end->speed, 212.5);
    EXPECT_EQ(found.stretches[1].peak, 2);
}

TEST(Stretches, fromTheFirstSpeedHaveNoStart)
{
    const auto found = stretchesOf({1, -1});
    ASSERT_EQ(found.stretches.size(), 1U);
    EXPECT_FALSE(found.stretches[0].start);
    EXPECT_EQ(found.stretches[0].end->speed, 112.5);
    EXPECT_FALSE(stretchesOf({0, 0, 1, 1}).stretches[0].start) << "zeros at the beginning";
}

TEST(Stretches, crossAtTheFirstOfSeveralPointsOnTheLevel)
{
    const auto found = stretchesOf({-0.1F, -0.05F, 0, 0, 0.05F, 0.1F});
    ASSERT_EQ(found.stretches.size(), 1U);
    EXPECT_EQ(found.stretches[0].start->speed, 150);
    EXPECT_EQ(found.stretches[0].start->fromSpeed, 125);
    EXPECT_EQ(found.stretches[0].start->toSpeed, 200);
    EXPECT_TRUE(found.touches.empty());
}

TEST(Stretches, touchTheLevelWithoutACrossing)
{
    const auto below = stretchesOf({-0.1F, 0, 0, -0.1F});
    EXPECT_TRUE(below.stretches.empty());
    ASSERT_EQ(below.touches.size(), 1U);
    EXPECT_EQ(below.touches[0].speed, 125);
    const auto above = stretchesOf({-1, 1, 0, 1, -1});
    EXPECT_EQ(above.stretches.size(), 1U);
    EXPECT_EQ(above.touches.size(), 1U);
    EXPECT_TRUE(stretchesOf({-1, 0}).touches.empty()) << "at the end";
}

TEST(Stretches, areRealWeakOrNoiseByTheirHeight)
{
    EXPECT_EQ(stretchesOf({-1, 0.0011F}).stretches[0].height, StretchHeight::Real);
    EXPECT_EQ(stretchesOf({-1, 0.0009F}).stretches[0].height, StretchHeight::Weak);
    EXPECT_EQ(stretchesOf({-1, 1e-7F}).stretches[0].height, StretchHeight::Noise);
    EXPECT_EQ(stretchesOf({-1, 0.0205F}, 0.02F).stretches[0].height, StretchHeight::Weak);
}

TEST(Stretches, tellFlutterFromDivergenceByThePointsBesideTheCrossing)
{
    auto points = pointsOf({-1, 1, 1}, 0.05F);
    Stretch stretch = stretchesAbove(points, 0, {}).stretches[0];
    EXPECT_EQ(stretch.start->kind, CrossingKind::Divergence);
    EXPECT_TRUE(stretch.isStatic);
    points[1].frequency = 0.1F; // not below the limit
    stretch = stretchesAbove(points, 0, {}).stretches[0];
    EXPECT_EQ(stretch.start->kind, CrossingKind::Mixed);
    EXPECT_EQ(stretch.start->confidence, Confidence::C);
    EXPECT_FALSE(stretch.isStatic);
    EXPECT_EQ(stretchesOf({-1, 1}).stretches[0].start->kind, CrossingKind::Flutter);
}

TEST(Stretches, areDoubtedWhereTheRootJumps)
{
    auto points = pointsOf({-1, -1, 1, 1});
    points[1].jumpsToNext = true;
    const auto found = stretchesAbove(points, 0, {});
    EXPECT_TRUE(found.stretches[0].start->jumps);
    EXPECT_EQ(found.stretches[0].start->confidence, Confidence::C);
}

TEST(Stretches, areTrustedInAShortIntervalWhereCurveAndLineAgree)
{
    std::vector<StabilityPoint> points;
    for (int i = 0; i < 5; ++i)
        points.push_back(
            {300 + 10 * static_cast<float>(i), -0.02F + 0.0125F * static_cast<float>(i), 5, false});
    EXPECT_EQ(stretchesAbove(points, 0, {}).stretches[0].start->confidence, Confidence::A);
    EXPECT_EQ(stretchesOf({-1, -0.5F, 0.5F, 1}).stretches[0].start->confidence, Confidence::B)
        << "25 KEAS at 137 are more than a twentieth";
}

TEST(Stretches, takeTheLineWhereNoCurveCanBe)
{
    auto points = pointsOf({-1, 3, 4});
    points[2].speed = points[1].speed;
    const Crossing start = *stretchesAbove(points, 0, {}).stretches[0].start;
    EXPECT_EQ(start.speedOnCurve, start.speed) << "speeds that do not rise";
    const Crossing ofTwo = *stretchesOf({-1, 3}).stretches[0].start;
    EXPECT_EQ(ofTwo.speedOnCurve, ofTwo.speed) << "two points";
}

TEST(Stretches, ofNothingAreNone)
{
    EXPECT_TRUE(stretchesOf({}).stretches.empty());
    EXPECT_TRUE(stretchesOf({-1}).stretches.empty());
    const auto one = stretchesOf({1});
    ASSERT_EQ(one.stretches.size(), 1U);
    EXPECT_FALSE(one.stretches[0].start);
    EXPECT_FALSE(one.stretches[0].end);
}

// Values of scipy's PchipInterpolator, which uses the same slopes.
TEST(MonotoneCubic, isZeroWhereOtherProgramsSay)
{
    const std::vector<CurvePoint> four = {{100, -0.02}, {125, -0.01}, {150, 0.01}, {175, 0.03}};
    EXPECT_NEAR(zeroOfMonotoneCubic(four, 1), 138.456340829714, 1e-9);
    const std::vector<CurvePoint> atTheEnd = {{100, 1e-14}, {125, -2e-14}, {150, 3e-15}};
    EXPECT_NEAR(zeroOfMonotoneCubic(atTheEnd, 0), 104.8130345415473, 1e-9);
    const std::vector<CurvePoint> onTheLevel = {{100, -1}, {125, 0}, {150, 1}};
    EXPECT_EQ(zeroOfMonotoneCubic(onTheLevel, 1), 125);
}

// The same formula solved by bisection with 40 decimal digits.
TEST(MonotoneCubic, isZeroNearAMaximumJustAboveTheLevel)
{
    const std::vector<CurvePoint> flat = {{100, -0.25}, {101, 0.0002}, {102.5, -80}};
    EXPECT_NEAR(zeroOfMonotoneCubic(flat, 0), 100.9071929652736583521, 1e-9);
}
