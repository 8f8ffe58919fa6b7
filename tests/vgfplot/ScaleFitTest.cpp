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

TEST(FitAxes, keepsTheDampingOfInterestReadable)
{
    // From 0.1 to -0.4 are 10 steps of 0.05, whatever the dampings beyond.
    for (const float lowest : {-0.4F, -2.0F, -7.0F}) {
        const AxisValues damping = axesOf({{100, lowest, 8}, {600, 3, 20}}).damping;
        EXPECT_EQ(damping.min, 0.1F);
        EXPECT_EQ(damping.max, -0.4F);
        EXPECT_EQ(damping.ticks, 10);
    }
}

TEST(FitAxes, showsNoMoreDampingThanTheDataNeed)
{
    // A tenth of 0.17 + 0.03 is 0.02; 0.03 and 0.17 go out to 0.04 and 0.18.
    const AxisValues both = axesOf({{100, -0.17F, 8}, {600, 0.03F, 20}}).damping;
    EXPECT_EQ(both.min, 0.04F);
    EXPECT_EQ(both.max, -0.18F);
    EXPECT_EQ(both.ticks, 11);
    // A tenth of 0.2 is 0.02: from 0.2 above zero 0.1 is shown.
    const AxisValues risen = axesOf({{100, -0.1F, 8}, {600, 0.2F, 20}}).damping;
    EXPECT_EQ(risen.min, 0.1F);
    EXPECT_EQ(risen.max, -0.1F);
    EXPECT_EQ(risen.ticks, 10);
}

TEST(FitAxes, labelsZeroDampingAlthoughTheEndsHaveNoLabels)
{
    // A tenth of 0.17 is 0.017, so 0.02; one step above zero.
    const AxisValues below = axesOf({{100, -0.17F, 8}, {600, -0.01F, 20}}).damping;
    EXPECT_EQ(below.min, 0.02F);
    EXPECT_EQ(below.max, -0.18F);
    EXPECT_EQ(below.ticks, 10);
    const AxisValues above = axesOf({{100, 0.01F, 8}, {600, 0.1F, 20}}).damping;
    EXPECT_EQ(above.min, 0.1F);
    EXPECT_EQ(above.max, -0.01F);
    EXPECT_EQ(above.ticks, 11);
}

TEST(FitAxes, doesNotMagnifyAnUndampedMode)
{
    // 0.02 in steps of 0.002, as three decimals can show.
    const AxisValues damping = axesOf({{100, 0, 8}, {600, 0.001F, 20}}).damping;
    EXPECT_EQ(damping.min, 0.002F);
    EXPECT_EQ(damping.max, -0.02F);
    EXPECT_EQ(damping.ticks, 11);
}

TEST(FitAxes, labelsEveryDampingWithThreeDecimals)
{
    // A tenth of 0.021 to 0.025 is less than 0.0025, which has four decimals.
    for (const float lowest : {-0.0205F, -0.0225F, -0.0245F}) {
        const AxisValues damping = axesOf({{100, lowest, 8}, {600, 0, 20}}).damping;
        EXPECT_EQ(damping.min, 0.005F);
        EXPECT_EQ(damping.max, -0.025F);
        EXPECT_EQ(damping.ticks, 6);
    }
}

TEST(FitAxes, showsAFrequencyOfZeroAboveTheSpeedAxis)
{
    // 20.4 in steps of 2.5: 22.5, and a step below zero.
    const AxisValues frequency = axesOf({{100, 0, 20}, {600, 0, 0}}).frequency;
    EXPECT_EQ(frequency.min, -2.5F);
    EXPECT_EQ(frequency.max, 22.5F);
    EXPECT_EQ(frequency.ticks, 10);
    EXPECT_EQ(axesOf({{100, 0, 20}, {600, 0, 0.5F}}).frequency.min, 0.0F);
}

TEST(FitAxes, hasSpeedStepsOfOneTwoOrFive)
{
    // A tenth of 250 is 25, so 50; of 180 it is 18, so 20.
    const AxisValues coarse = axesOf({{250, 0, 20}}).speed;
    EXPECT_EQ(coarse.max, 250.0F);
    EXPECT_EQ(coarse.ticks, 5);
    const AxisValues fine = axesOf({{180, 0, 20}}).speed;
    EXPECT_EQ(fine.max, 180.0F);
    EXPECT_EQ(fine.ticks, 9);
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
        expectRoundStep((axes.damping.min - axes.damping.max) / axes.damping.ticks);
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
