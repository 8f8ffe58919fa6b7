// SPDX-License-Identifier: Apache-2.0
#include "analysis/FlutterTrend.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/ModeBuilder.h"
#include "analysis/Sheet.h"
#include "analysis/TrendSheet.h"

#include <gtest/gtest.h>

#include <memory>

using namespace tarsil;
using test::addMode;

namespace {

/// Evolutions at Mach 0.4 to 0.7 that begin to be unstable in every way, judged at g = 0.
class FlutterTrendTest : public ::testing::Test
{
protected:
    FlutterTrendTest()
    {
        // The line from -0.1 at 200 to 0.1 at 300 crosses 0 at 250 KEAS and 11 Hz.
        addMode(make("flutter.ev2", "FULL", 0.5F), 2, {{200, -0.1F, 10}, {300, 0.1F, 12}});
        addMode(make("static.ev2", "EMPTY", 0.4F), 1, {{200, -0.1F, 0}, {300, 0.3F, 0}});
        addMode(make("first.ev2", "EMPTY", 0.6F), 4, {{150, 0.1F, 5}, {250, 0.2F, 5}});
        addMode(make("none.ev2", "FULL", 0.7F), 1, {{100, -0.1F, 5}, {420, -0.2F, 5}});
        addMode(make("mixed.ev2", "FULL", 0), 3, {{200, -0.1F, 3}, {300, 0.1F, 0}});
        settings.levels = {0};
        airplane.MassConfs = {{"", "", "", "Empty", "EMPTY"}, {"", "", "", "Full", "FULL"}};
        airplane.FlutterEnvs = {{0, 220, 0, "0.60"}, {0, 200, 0, "0.40"}, {0, 1, 0, "all"}};
    }

    EVM& make(const char* name, const char* mass, float mach)
    {
        EVM& evolution = *evolutions.emplace_back(std::make_unique<EVM>());
        evolution.FileName = name;
        evolution.Param.Mass = mass;
        evolution.Param.Mach = mach;
        return evolution;
    }

    FlutterTrend trend(TrendAbscissa abscissa,
                       const std::optional<Requirement>& requirement = std::nullopt) const
    {
        std::vector<EvolutionStability> judgedOnes;
        for (const auto& evolution : evolutions) {
            StabilityInput input {evolution.get(), 0, std::nullopt};
            if (requirement)
                input.required = requiredSpeed(*evolution, airplane, *requirement);
            judgedOnes.push_back(judged(input, settings));
        }
        return trendOf(judgedOnes, settings, abscissa, airplane, requirement);
    }

    std::vector<std::unique_ptr<EVM>> evolutions;
    StabilitySettings settings;
    AirplaneInfo airplane;
};

} // namespace

TEST_F(FlutterTrendTest, hasASpeedForAStartOnly)
{
    const std::vector<TrendPoint> points = trend(TrendAbscissa::File).points;
    ASSERT_EQ(points.size(), 5U);
    EXPECT_EQ(points[0].onset, TrendOnset::Start);
    EXPECT_EQ(points[0].speed, 250);
    EXPECT_EQ(points[0].start.value().frequency, 11);
    EXPECT_EQ(points[0].modes, std::vector<std::int16_t> {2});
    EXPECT_EQ(points[1].onset, TrendOnset::Start);
    EXPECT_NEAR(points[1].speed, 225, 1e-4) << "a quarter of the way from -0.1 to 0.3";
    EXPECT_EQ(points[1].start.value().kind, CrossingKind::Divergence);
    EXPECT_EQ(points[2].onset, TrendOnset::FirstSpeed);
    EXPECT_EQ(points[2].speed, 150);
    EXPECT_EQ(points[2].modes, std::vector<std::int16_t> {4});
    EXPECT_EQ(points[3].onset, TrendOnset::None);
    EXPECT_EQ(points[3].speed, 420);
    EXPECT_EQ(points[4].onset, TrendOnset::Interval) << "one root oscillates, the other is static";
    EXPECT_EQ(points[4].speed, 200);
    EXPECT_EQ(points[4].toSpeed, 300);
}

TEST_F(FlutterTrendTest, hasNoInstabilityUpToTheLastSpeedOfAllModes)
{
    addMode(*evolutions[3], 2, {{100, -0.1F, 9}, {400, -0.2F, 9}});
    EXPECT_EQ(trend(TrendAbscissa::File).points[3].speed, 400) << "mode 1 goes to 420";
}

TEST_F(FlutterTrendTest, hasAPointForEachLevelAndEvolution)
{
    settings.levels = {0, 0.05F};
    const std::vector<TrendPoint> points = trend(TrendAbscissa::Mach).points;
    ASSERT_EQ(points.size(), 10U);
    EXPECT_EQ(points[5].level, 0.05F);
    EXPECT_FLOAT_EQ(static_cast<float>(points[5].speed), 275)
        << "0.05 is three quarters of the way";
}

TEST_F(FlutterTrendTest, drawsAgainstTheMachNumberThatAPersonReads)
{
    const FlutterTrend result = trend(TrendAbscissa::Mach);
    EXPECT_EQ(result.points[1].abscissa, 0.4);
    EXPECT_EQ(result.points[4].abscissa, std::nullopt);
    EXPECT_EQ(result.points[4].whyNotDrawn, "it has no Mach number");
    EXPECT_EQ(result.groups, (std::vector<std::string> {"FULL", "EMPTY"}));
    EXPECT_TRUE(result.categories.empty());
}

TEST_F(FlutterTrendTest, leavesAnAltitudeOutThatNoAirplaneReaches)
{
    // 250 KEAS at Mach 0.5 is (250 / 0.5 / 661.479)^2 = 0.5713 of the pressure at sea level, which
    // the standard atmosphere has at (1 - 0.5713^0.190263) / 6.8756e-6 = 14693 ft; 225 KEAS at
    // Mach 0.4 is 0.7231 of it, at 8700 ft.
    const FlutterTrend result = trend(TrendAbscissa::Altitude);
    EXPECT_NEAR(result.points[0].abscissa.value(), 14693, 5);
    EXPECT_NEAR(result.points[1].abscissa.value(), 8700, 5);
    EXPECT_TRUE(result.points[0].whyNotDrawn.empty());
    evolutions[0]->Param.Mach = 0.05F;
    EXPECT_EQ(trend(TrendAbscissa::Altitude).points[0].whyNotDrawn,
              "its altitude is outside -2,000 to 65,617 ft");
}

TEST_F(FlutterTrendTest, ordersMassesAsTheAircraftFileDoes)
{
    evolutions[4]->Param.Mass = "STORES";
    const FlutterTrend result = trend(TrendAbscissa::Mass);
    EXPECT_EQ(result.categories, (std::vector<std::string> {"EMPTY", "FULL", "STORES"}));
    EXPECT_EQ(result.points[0].abscissa, 2);
    EXPECT_EQ(result.points[1].abscissa, 1);
    EXPECT_EQ(result.points[4].abscissa, 3);
    EXPECT_EQ(result.groups.front(), "Mach 0.50");
}

TEST_F(FlutterTrendTest, countsTwoFilesOfOneNameAsTwo)
{
    evolutions[1]->FileName = "flutter.ev2";
    const FlutterTrend result = trend(TrendAbscissa::File);
    ASSERT_EQ(result.categories.size(), 5U);
    EXPECT_EQ(result.categories[1], "flutter.ev2");
    EXPECT_EQ(result.points[1].abscissa, 2);
}

TEST_F(FlutterTrendTest, requiresAFactorTimesTheDiveSpeed)
{
    airplane.VdTag = "VD";
    const FlutterTrend overMach = trend(TrendAbscissa::Mach, Requirement {1.5, 0});
    EXPECT_TRUE(overMach.isRequirementLine);
    ASSERT_EQ(overMach.required.size(), 2U)
        << "an envelope without a number is none of a Mach number";
    EXPECT_EQ(overMach.required[0].abscissa, 0.4);
    EXPECT_EQ(overMach.required[0].speed, 300);
    EXPECT_EQ(overMach.required[1].speed, 330);
    EXPECT_EQ(overMach.requirementName, "1.5 x VD");
    const FlutterTrend overFiles = trend(TrendAbscissa::File, Requirement {1.5, 0});
    EXPECT_FALSE(overFiles.isRequirementLine);
    ASSERT_EQ(overFiles.required.size(), 2U) << "the evolutions at Mach 0.4 and 0.6";
    EXPECT_EQ(overFiles.required[0].abscissa, 2);
    EXPECT_EQ(overFiles.required[1].abscissa, 3);
}

TEST_F(FlutterTrendTest, joinsStartsOfOneModeKindLevelAndGroupOnly)
{
    const FlutterTrend result = trend(TrendAbscissa::Mach);
    TrendPoint other = result.points[0];
    EXPECT_TRUE(areJoined(result.points[0], other));
    other.modes = {7};
    EXPECT_FALSE(areJoined(result.points[0], other));
    EXPECT_FALSE(areJoined(result.points[0], result.points[1])) << "flutter and divergence";
    EXPECT_FALSE(areJoined(result.points[3], result.points[3])) << "no start";
}

TEST_F(FlutterTrendTest, saysWhyAnEvolutionIsNotJudged)
{
    make("empty.ev2", "", 0.5F);
    settings.isTracked = true;
    const std::vector<TrendPoint> points = trend(TrendAbscissa::File).points;
    EXPECT_EQ(points[5].onset, TrendOnset::Unknown);
    EXPECT_FALSE(points[5].whyNotDrawn.empty());
    addMode(*evolutions[0], 3, {{200, -0.1F, 10}});
    EXPECT_EQ(trend(TrendAbscissa::File).points[0].whyNotDrawn,
              "cannot be tracked: its modes have unequal numbers of points");
}

TEST_F(FlutterTrendTest, writesATableWithLimitsBesideTheStarts)
{
    Sheet sheet;
    const FlutterTrend result = trend(TrendAbscissa::File, Requirement {1.5, 0});
    writeTrend(result, sheet);
    writeTrendOrigin(result, "Tarsil 1", sheet);
    const auto text = [&sheet](std::size_t row, std::size_t column) {
        return Sheet::textOf(sheet.cell(row, column));
    };
    EXPECT_EQ(text(1, 7), "Start (KEAS)");
    EXPECT_EQ(text(2, 1), "flutter.ev2");
    EXPECT_EQ(text(2, 6), "start");
    EXPECT_EQ(text(2, 7), "250");
    EXPECT_EQ(text(2, 8), "11");
    EXPECT_EQ(text(3, 9), "divergence");
    EXPECT_EQ(text(3, 14), "300");
    EXPECT_EQ(text(4, 6), "unstable from the first speed");
    EXPECT_EQ(text(4, 7), "") << "a limit is no speed of instability";
    EXPECT_EQ(text(4, 13), "150");
    EXPECT_EQ(text(5, 6), "no instability up to the last speed");
    EXPECT_EQ(text(5, 7), "");
    EXPECT_EQ(text(5, 12), "420");
    EXPECT_EQ(text(6, 7), "");
    EXPECT_EQ(text(6, 12), "200");
    EXPECT_EQ(text(6, 13), "300");
    EXPECT_EQ(sheet.rowStyle(4), CellStyle::Bad);
    EXPECT_EQ(text(8, 6), "Tarsil 1");
}
