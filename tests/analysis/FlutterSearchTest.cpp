// SPDX-License-Identifier: Apache-2.0
#include "analysis/FlutterSearch.h"

#include "analysis/ModeBuilder.h"
#include "base/user/RunTimeError.h"
#include "support/Errors.h"
#include "support/Separators.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

using namespace tarsil;
using test::addMode;
using test::errorOf;
using ::testing::HasSubstr;

namespace { } // namespace

TEST(Crossings, lieWhereTheStraightLineReachesTheReference)
{
    EVM evolution;
    AeMode& mode = addMode(evolution, 1, {{300, -0.125F, 8}, {400, 0.375F, 10}});
    // A quarter of the way: 0.125 / (0.125 + 0.375) = 1/4, so 300 + 100/4 and 8 + 2/4. All numbers
    // are exact in binary.
    EXPECT_FALSE(FlutterPtsCalc(mode, 0));
    ASSERT_EQ(mode.flutterPoints.size(), 1U);
    EXPECT_EQ(mode.flutterPoints[0].speed, 325.0F);
    EXPECT_EQ(mode.flutterPoints[0].f, 8.5F);
    EXPECT_EQ(mode.flutterPoints[0].Parent, &mode);
}

TEST(Crossings, takeTheReferenceWithOppositeSign)
{
    EVM evolution;
    AeMode& mode = addMode(evolution, 1, {{300, -0.5F, 8}, {400, 0.5F, 10}});
    // g_ref = 0.25 is three quarters of the way from -0.5 to 0.5.
    FlutterPtsCalc(mode, -0.25);
    ASSERT_EQ(mode.flutterPoints.size(), 1U);
    EXPECT_EQ(mode.flutterPoints[0].speed, 375.0F);
    EXPECT_EQ(mode.flutterPoints[0].f, 9.5F);
}

TEST(Crossings, areFoundUpwardsAndDownwardsInSpeedOrder)
{
    EVM evolution;
    AeMode& mode =
        addMode(evolution, 1, {{100, -1, 1}, {200, 1, 1}, {300, -1, 1}, {350, -2, 1}, {450, 2, 1}});
    FlutterPtsCalc(mode, 0);
    ASSERT_EQ(mode.flutterPoints.size(), 3U);
    EXPECT_EQ(mode.flutterPoints[0].speed, 150.0F);
    EXPECT_EQ(mode.flutterPoints[1].speed, 250.0F);
    EXPECT_EQ(mode.flutterPoints[2].speed, 400.0F);
}

TEST(Crossings, leaveOutAPointExactlyAtTheReference)
{
    EVM evolution;
    AeMode& mode = addMode(evolution, 1, {{100, -1}, {200, 0}, {300, 1}});
    FlutterPtsCalc(mode, 0);
    EXPECT_TRUE(mode.flutterPoints.empty());
}

TEST(Crossings, needTwoPoints)
{
    EVM evolution;
    AeMode& empty = addMode(evolution, 1, {});
    AeMode& single = addMode(evolution, 2, {{100, -1}});
    EXPECT_FALSE(FlutterPtsCalc(empty, 0));
    EXPECT_FALSE(FlutterPtsCalc(single, 0));
    EXPECT_TRUE(empty.flutterPoints.empty());
    EXPECT_TRUE(single.flutterPoints.empty());
}

TEST(Crossings, replaceThoseOfThePreviousSearch)
{
    EVM evolution;
    AeMode& mode = addMode(evolution, 1, {{100, -1}, {200, 1}});
    FlutterPtsCalc(mode, 0);
    FlutterPtsCalc(mode, 0);
    EXPECT_EQ(mode.flutterPoints.size(), 1U);
    FlutterPtsCalc(mode, 5);
    EXPECT_TRUE(mode.flutterPoints.empty());
}

TEST(Crossings, interpolateRealPartReducedFrequencyAndFactorsOnly)
{
    EVM evolution;
    AeMode& mode = addMode(evolution, 1, {{100, -1}, {200, 1}});
    Point& before = mode.Points[0];
    Point& after = mode.Points[1];
    before.re = -2;
    after.re = 4;
    before.kfreq = 0.25F;
    after.kfreq = 0.75F;
    before.im = 3;
    after.im = 5;
    before.mach = before.sigma = after.mach = after.sigma = 7;
    before.mpf.append(10);
    before.mpf.append(0.5F);
    after.mpf.append(20);
    after.mpf.append(1.5F);
    FlutterPtsCalc(mode, 0);
    ASSERT_EQ(mode.flutterPoints.size(), 1U);
    const Point& found = mode.flutterPoints[0];
    EXPECT_EQ(found.re, 1.0F); // half-way, as all of these
    EXPECT_EQ(found.kfreq, 0.5F);
    ASSERT_EQ(found.mpf.size(), 2U);
    EXPECT_EQ(found.mpf[0], 15.0F);
    EXPECT_EQ(found.mpf[1], 1.0F);
    EXPECT_EQ(found.im, 0.0F);
    EXPECT_EQ(found.G, 0.0F);
    EXPECT_EQ(found.mach, 0.0F);
    EXPECT_EQ(found.sigma, 0.0F);
}

TEST(Crossings, takeTheFactorsThatBothPointsHave)
{
    EVM evolution;
    AeMode& mode = addMode(evolution, 1, {{100, -1}, {200, 1}});
    mode.Points[0].mpf.append(1);
    mode.Points[0].mpf.append(2);
    mode.Points[1].mpf.append(3);
    FlutterPtsCalc(mode, 0);
    ASSERT_EQ(mode.flutterPoints.size(), 1U);
    ASSERT_EQ(mode.flutterPoints[0].mpf.size(), 1U);
    EXPECT_EQ(mode.flutterPoints[0].mpf[0], 2.0F);
}

TEST(Crossings, copyAValueThatBothPointsShare)
{
    EVM evolution;
    const float odd = 0.1F; // interpolation would change its bits
    AeMode& mode = addMode(evolution, 1, {{100, -0.3F, odd}, {200, 0.7F, odd}});
    FlutterPtsCalc(mode, 0);
    ASSERT_EQ(mode.flutterPoints.size(), 1U);
    EXPECT_EQ(mode.flutterPoints[0].f, odd);
}

TEST(Crossings, areComputedInDoublesInTheStatedOrder)
{
    EVM evolution;
    AeMode& mode = addMode(evolution, 1, {{301.3F, -0.0131F, 7.31F}, {317.9F, 0.0277F, 7.93F}});
    const double gOffset = -0.0049;
    const double a = double {-0.0131F} + gOffset;
    const double b = double {0.0277F} + gOffset;
    const double slope = (b - a) / (double {317.9F} - double {301.3F});
    const double intercept = b - double {317.9F} * slope;
    FlutterPtsCalc(mode, gOffset);
    ASSERT_EQ(mode.flutterPoints.size(), 1U);
    EXPECT_EQ(mode.flutterPoints[0].speed, static_cast<float>(-intercept / slope));
}

TEST(Crossings, areRefusedBetweenTwoPointsOfTheSameSpeed)
{
    EVM evolution;
    evolution.Folder = "folder";
    evolution.FileName = "twice.ev2";
    AeMode& mode = addMode(evolution, 7, {{100, -1, 1}, {200, 1, 2}, {300, 2, 3}, {300, -2, 4}});
    const auto error = errorOf([&mode] { FlutterPtsCalc(mode, 0); });
    EXPECT_EQ(error.value().number(), ErrorNumber::DivisionByZero);
    EXPECT_EQ(error.value().source(), "AeMode");
    EXPECT_EQ(error.value().description(),
              "Division by zero: " + test::systemSeparators("folder/twice.ev2")
                  + ", mode 7, between the speeds 300 and 300");
    EXPECT_EQ(mode.flutterPoints.size(), 1U) << "what was found before stays";
}

TEST(Crossings, takeEqualSpeedsWithoutACrossing)
{
    EVM evolution;
    AeMode& mode = addMode(evolution, 1, {{300, 1}, {300, 2}, {300, 1}});
    EXPECT_NO_THROW(FlutterPtsCalc(mode, 0));
    EXPECT_TRUE(mode.flutterPoints.empty());
}

TEST(Crossings, takeFallingSpeeds)
{
    EVM evolution;
    AeMode& mode = addMode(evolution, 1, {{400, -1, 4}, {300, 1, 8}});
    FlutterPtsCalc(mode, 0);
    ASSERT_EQ(mode.flutterPoints.size(), 1U);
    EXPECT_EQ(mode.flutterPoints[0].speed, 350.0F);
    EXPECT_EQ(mode.flutterPoints[0].f, 6.0F);
}

TEST(Crossings, takeTheLargestSingles)
{
    EVM evolution;
    const float largest = std::numeric_limits<float>::max();
    AeMode& mode = addMode(evolution, 3, {{100, -1e30F, -largest}, {200, 1e-30F, largest}});
    FlutterPtsCalc(mode, 0);
    ASSERT_EQ(mode.flutterPoints.size(), 1U);
    EXPECT_EQ(mode.flutterPoints[0].speed, 200.0F);
    EXPECT_EQ(mode.flutterPoints[0].f, largest);
}

TEST(Crossings, refuseAValueThatNoSingleHolds)
{
    EVM evolution;
    const float infinite = std::numeric_limits<float>::infinity(); // cannot come from a file
    AeMode& mode = addMode(evolution, 3, {{100, -infinite}, {200, 1}});
    const auto error = errorOf([&mode] { FlutterPtsCalc(mode, 0); });
    EXPECT_EQ(error.value().number(), ErrorNumber::Overflow);
    EXPECT_EQ(error.value().description(), "Overflow: mode 3, between the speeds 100 and 200");
}

TEST(MaximumDamping, isTheLargestUpToTheSpeedLimit)
{
    EVM evolution;
    const AeMode& mode = addMode(evolution, 1, {{100, -0.5F}, {200, -0.25F}, {300, -0.125F}});
    double speed = -1;
    EXPECT_EQ(gMaxCalc(mode, 250, speed), -0.25F);
    EXPECT_EQ(speed, 200.0);
    EXPECT_EQ(gMaxCalc(mode, 300, speed), -0.125F) << "the limit itself is within";
    EXPECT_EQ(speed, 300.0);
}

TEST(MaximumDamping, isTheFirstOfEqualOnes)
{
    EVM evolution;
    const AeMode& mode = addMode(evolution, 1, {{100, -1}, {200, 0.5F}, {300, 0}, {400, 0.5F}});
    double speed = -1;
    EXPECT_EQ(gMaxCalc(mode, 1000, speed), 0.5F);
    EXPECT_EQ(speed, 200.0);
}

TEST(MaximumDamping, leavesTheSpeedAloneWhenTheFirstPointIsIt)
{
    EVM evolution;
    const AeMode& mode = addMode(evolution, 1, {{100, 0.5F}, {200, 0.5F}, {300, 0}});
    double speed = -1;
    EXPECT_EQ(gMaxCalc(mode, 1000, speed), 0.5F);
    EXPECT_EQ(speed, -1.0);
}

TEST(MaximumDamping, isThatOfTheFirstPointBelowTheFirstSpeed)
{
    EVM evolution;
    const AeMode& mode = addMode(evolution, 1, {{100, -0.5F}, {200, 1}});
    double speed = -1;
    EXPECT_EQ(gMaxCalc(mode, 50, speed), -0.5F);
    EXPECT_EQ(speed, -1.0);
}

TEST(MaximumDamping, needsAPoint)
{
    EVM evolution;
    evolution.FileName = "empty.ev2";
    const AeMode& mode = addMode(evolution, 4, {});
    double speed = -1;
    const auto error = errorOf([&] { gMaxCalc(mode, 100, speed); });
    EXPECT_EQ(error.value().number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_THAT(error.value().description(), HasSubstr("empty.ev2, mode 4 has no points"));
}
