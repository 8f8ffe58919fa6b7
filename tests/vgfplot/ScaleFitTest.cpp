// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/ScaleFit.h"

#include "analysis/ModeBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tarsil;
using test::addMode;
using ::testing::AnyOf;
using ::testing::DoubleNear;

namespace {

void expectRange(double low, double high, const RoundRange& expected)
{
    const RoundRange range = roundRange(low, high);
    EXPECT_DOUBLE_EQ(range.low, expected.low) << low << " to " << high;
    EXPECT_DOUBLE_EQ(range.high, expected.high) << low << " to " << high;
    EXPECT_EQ(range.steps, expected.steps) << low << " to " << high;
}

/// A step is round if its first digits are 1, 2, 2.5 or 5.
void expectRoundStep(double step)
{
    const double digits = step / std::pow(10.0, std::floor(std::log10(step * (1 + 1e-6))));
    EXPECT_THAT(
        digits,
        AnyOf(DoubleNear(1, 1e-6), DoubleNear(2, 1e-6), DoubleNear(2.5, 1e-6), DoubleNear(5, 1e-6)))
        << "step " << step;
}

/// The axes fitted to one mode with these points.
PlotAxes axesOf(std::initializer_list<test::DrawnPoint> points)
{
    EVM evolution;
    Series series;
    series.Mode = &addMode(evolution, 1, points);
    return fitAxes({series});
}

} // namespace

TEST(RoundRange, keepsBoundsThatAreRoundAlready)
{
    expectRange(0, 700, {0, 700, 7});
    expectRange(0, 50, {0, 50, 10});
    expectRange(0, 1, {0, 1, 10});
    expectRange(-10, 10, {-10, 10, 10});
}

TEST(RoundRange, goesOutToTheNextStep)
{
    // A tenth of 633 is 63.3; the next round step is 100.
    expectRange(0, 633, {0, 700, 7});
    // A tenth of 0.17 is 0.017, so 0.02.
    expectRange(0, 0.17, {0, 0.18, 9});
    // A tenth of 21 is 2.1, so 2.5.
    expectRange(0, 21, {0, 22.5, 9});
}

TEST(RoundRange, widensARangeWithoutWidthUpwards)
{
    // 3 to 4 with a step of 0.1.
    expectRange(3, 3, {3, 4, 10});
    expectRange(3, 2, {3, 4, 10});
    expectRange(0, 0, {0, 1, 10});
}

TEST(RoundRange, holdsWhatItWasGivenInFourToTenRoundSteps)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> exponent(-6, 6);
    for (int i = 0; i < 2000; ++i) {
        const double high = std::pow(10.0, exponent(random));
        const RoundRange range = roundRange(0, high);
        ASSERT_EQ(range.low, 0);
        ASSERT_GE(range.high, high * (1 - 1e-9));
        ASSERT_GE(range.steps, 4) << high;
        ASSERT_LE(range.steps, 10) << high;
        expectRoundStep(range.high / range.steps);
    }
}

TEST(RoundRange, usesStepsThatAreWholeNumbersOnRequest)
{
    const auto expectWhole = [](double high, const RoundRange& expected) {
        const RoundRange range = roundRange(0, high, Steps::Whole);
        EXPECT_EQ(range.high, expected.high) << high;
        EXPECT_EQ(range.steps, expected.steps) << high;
    };
    // A tenth is 2.1 to 2.5: not 2.5, so 5.
    expectWhole(21, {0, 25, 5});
    expectWhole(25, {0, 25, 5});
    // A tenth is 1.3: 2; of 250: 25, which is whole.
    expectWhole(13, {0, 14, 7});
    expectWhole(250, {0, 250, 10});
    // No step below 1.
    expectWhole(6, {0, 6, 6});
    expectWhole(0.03, {0, 1, 1});
}

TEST(FitAxes, isANewPlotsScaleWithoutPoints)
{
    const PlotAxes axes = fitAxes({});
    EXPECT_EQ(axes, PlotAxes());
    EXPECT_EQ(axesOf({}), PlotAxes());
    EXPECT_EQ(fitAxes({Series()}), PlotAxes());
}

TEST(FitAxes, showsAllSpeedsAndFrequenciesFromZeroOn)
{
    const PlotAxes axes = axesOf({{100, -0.1F, 8}, {633, 0.17F, 21}});
    EXPECT_EQ(axes.speed.min, 0.0F);
    EXPECT_EQ(axes.speed.max, 700.0F);
    EXPECT_EQ(axes.speed.ticks, 7);
    EXPECT_EQ(axes.frequency.min, 0.0F);
    EXPECT_EQ(axes.frequency.max, 22.5F);
    EXPECT_EQ(axes.frequency.ticks, 9);
}

TEST(FitAxes, showsTheLargestDampingOfEitherSignOnBothSidesOfTheSpeedAxis)
{
    for (const float damping : {0.17F, -0.17F}) {
        const PlotAxes axes = axesOf({{100, damping, 8}, {600, 0, 20}});
        EXPECT_EQ(axes.damping.min, 0.0F);
        EXPECT_EQ(axes.damping.max, -0.18F);
        EXPECT_EQ(axes.damping.ticks, 9);
    }
}

TEST(FitAxes, doesNotLetAStronglyDampedModeSqueezeTheRest)
{
    EXPECT_EQ(axesOf({{100, -7, 8}, {600, 0, 20}}).damping.max, -0.5F);
}

TEST(FitAxes, doesNotMagnifyAnUndampedMode)
{
    EXPECT_EQ(axesOf({{100, 0, 8}, {600, 0.001F, 20}}).damping.max, -0.02F);
}

TEST(FitAxes, looksAtAllSeries)
{
    EVM evolution;
    Series slow;
    slow.Mode = &addMode(evolution, 1, {{100, 0, 90}});
    Series fast;
    fast.Mode = &addMode(evolution, 2, {{900, 0, 3}});
    const PlotAxes axes = fitAxes({slow, fast});
    EXPECT_EQ(axes.speed.max, 900.0F);
    // 90 Hz and the room above it, in steps of 10.
    EXPECT_EQ(axes.frequency.max, 100.0F);
}

TEST(FitAxes, hasARoundNumberAtEveryTick)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<float> speed(1, 1500);
    std::uniform_real_distribution<float> frequency(0.1F, 300);
    std::uniform_real_distribution<float> damping(-2, 2);
    for (int i = 0; i < 500; ++i) {
        const PlotAxes axes = axesOf({{speed(random), damping(random), frequency(random)}});
        expectRoundStep(axes.speed.max / axes.speed.ticks);
        expectRoundStep(axes.frequency.max / axes.frequency.ticks);
        expectRoundStep(-axes.damping.max / axes.damping.ticks);
    }
}

TEST(FitAxes, hasAWholeSpeedAtEveryTick)
{
    for (float speed = 1; speed < 60; speed += 0.25F) {
        const PlotAxes axes = axesOf({{speed, -0.1F, 5}});
        EXPECT_EQ(std::fmod(axes.speed.max, static_cast<float>(axes.speed.ticks)), 0) << speed;
        EXPECT_GE(axes.speed.max, speed);
    }
}

TEST(FitAxes, holdsWhatASingleHolds)
{
    const PlotAxes axes = axesOf({{3.4e38F, 0.1F, 3.4e38F}});
    EXPECT_TRUE(std::isfinite(axes.speed.max));
    EXPECT_TRUE(std::isfinite(axes.frequency.max));
    EXPECT_GT(axes.speed.max, 1e37F);
}
