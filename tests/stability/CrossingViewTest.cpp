// SPDX-License-Identifier: Apache-2.0
#include "stability/CrossingView.h"

#include "analysis/ModeBuilder.h"
#include "model/EVM.h"

#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;

namespace {

PlotStretch firstStretchOf(const EVM& evolution)
{
    StabilitySettings settings;
    settings.levels = {0};
    return {&evolution, judged({&evolution, 0, std::nullopt}, settings).lines.at(0)};
}

} // namespace

TEST(CrossingView, showsTheRangeAndRingsWhereItHasSpeeds)
{
    EVM evolution;
    addMode(evolution, 1, {{300, -0.5F, 8}, {320, 0.5F, 10}, {340, -0.5F, 12}, {500, -1, 12}});
    const PlotHighlight highlight = highlightOf(firstStretchOf(evolution));
    EXPECT_EQ(highlight.fromSpeed, 310);
    EXPECT_EQ(highlight.toSpeed, 330);
    ASSERT_EQ(highlight.rings.size(), 2U);
    EXPECT_EQ(highlight.rings[0].speed, 310);
    EXPECT_EQ(highlight.rings[0].frequency, 9);
    EXPECT_EQ(highlight.rings[0].damping, 0);
    EXPECT_EQ(highlight.rings[1].speed, 330);
}

TEST(CrossingView, goesFromTheFirstToTheLastSpeedWithoutEnds)
{
    EVM evolution;
    addMode(evolution, 1, {{300, 0.5F, 8}, {400, 0.5F, 10}});
    const PlotHighlight highlight = highlightOf(firstStretchOf(evolution));
    EXPECT_EQ(highlight.fromSpeed, 0);
    EXPECT_EQ(highlight.toSpeed, 400);
    EXPECT_TRUE(highlight.rings.empty());
}

TEST(CrossingView, hasNoRingBetweenDifferentRoots)
{
    EVM evolution;
    addMode(evolution, 1, {{300, -0.5F, 0}, {400, 0.5F, 10}});
    const PlotHighlight highlight = highlightOf(firstStretchOf(evolution));
    EXPECT_EQ(highlight.fromSpeed, 300) << "the whole interval";
    EXPECT_TRUE(highlight.rings.empty());
}

TEST(CrossingView, ringsBothModesAfterADoubtfulStep)
{
    EVM evolution;
    addMode(evolution, 1, {{300, -0.5F, 8}, {400, 0.5F, 10}});
    addMode(evolution, 2, {{300, -0.1F, 9}, {400, 0.2F, 11}});
    const PlotHighlight highlight =
        highlightOf(PlotDoubt {&evolution, {1, 2, 300, 400, true, false}});
    EXPECT_EQ(highlight.fromSpeed, 300);
    EXPECT_EQ(highlight.toSpeed, 400);
    ASSERT_EQ(highlight.rings.size(), 2U);
    EXPECT_EQ(highlight.rings[0].frequency, 10);
    EXPECT_EQ(highlight.rings[1].damping, 0.2F);
}

TEST(CrossingView, setsAxesAroundTheStart)
{
    EVM evolution;
    addMode(evolution, 1, {{100, -3, 2}, {390, -0.1F, 9}, {410, 0.1F, 11}, {700, 3, 40}});
    PlotAxes before;
    before.speed.title = "V";
    const PlotAxes axes = axesAround(firstStretchOf(evolution), before);
    EXPECT_EQ(axes.speed.title, "V");
    EXPECT_LE(axes.speed.min, 300);
    EXPECT_GE(axes.speed.max, 500);
    EXPECT_LT(axes.speed.max, 600) << "not all of it";
    // The points beside the start, 9 and 11 Hz, and a quarter around 10 Hz; g is -0.1 to 0.1.
    EXPECT_LE(axes.frequency.min, 7.5F);
    EXPECT_GE(axes.frequency.max, 12.5F);
    EXPECT_LT(axes.frequency.max, 40);
    EXPECT_GE(axes.damping.min, 0.1F) << "upside down as before: stable is below";
    EXPECT_LE(axes.damping.max, -0.1F);
    EXPECT_GT(axes.damping.max, -1);
    EXPECT_GT(axes.speed.ticks, 0);
}
