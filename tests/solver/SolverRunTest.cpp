// SPDX-License-Identifier: Apache-2.0
#include "solver/SolverRun.h"

#include "solver/PrintedPages.h"
#include "solver/SummaryReader.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

#include <numbers>

using namespace tarsil;
using namespace tarsil::solver;
using namespace tarsil::test;

namespace {

std::string page(const std::string& point, const std::vector<std::string>& rows,
                 const std::string& subcase = "1")
{
    return printed({.subcase = subcase, .pointLine = point, .rows = rows}) + "1  END\n";
}

std::vector<SolverRun> runsOfText(const std::string& text)
{
    return runsOf(readSummariesOfText(text));
}

std::vector<std::int32_t> idsOf(const SolverRun& run)
{
    std::vector<std::int32_t> ids;
    for (const PrintedRoot& root : run.roots)
        ids.push_back(root.id);
    return ids;
}

std::vector<double> speedsOf(const ImportedRun& run, std::size_t mode = 0)
{
    std::vector<double> speeds;
    for (const ImportedPoint& point : run.modes.at(mode).points)
        speeds.push_back(point.keas);
    return speeds;
}

UnitChoice unitsNamed(std::string_view speed, std::string_view density)
{
    UnitChoice units;
    units.speed = *speedUnit(speed);
    units.density = *densityUnit(density);
    return units;
}

} // namespace

TEST(SolverRuns, areGroupsOfOneSubcaseMethodMachAndDensity)
{
    const auto runs =
        runsOfText(page(pointLine(1), twoRows) + page(pointLine(2), twoRows)
                   + page(pointLine(1, "0.5000"), twoRows) + page(pointLine(1), twoRows, "2")
                   + page(pointLine(1, "0.3000", "5.0000E-01"), twoRows));
    ASSERT_EQ(runs.size(), 4U);
    EXPECT_EQ(idsOf(runs[0]), (std::vector<std::int32_t> {1, 2}));
    EXPECT_EQ(runs[1].key.mach, 0.5);
    EXPECT_EQ(runs[2].key.subcase, "2");
    EXPECT_EQ(runs[3].key.densityRatio, 0.5);
}

TEST(SolverRuns, numberTheirRootsAnewWhereTheNumberingRunsOn)
{
    const std::string half = "5.0000E-01";
    const auto runs = runsOfText(page(pointLine(1), twoRows) + page(pointLine(2), twoRows)
                                 + page(pointLine(3, "0.3000", half), twoRows)
                                 + page(pointLine(4, "0.3000", half), twoRows));
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(idsOf(runs[1]), (std::vector<std::int32_t> {1, 2}));
}

TEST(SolverRuns, keepPointsThatBeginElsewhere)
{
    const auto runs = runsOfText(page(pointLine(3), twoRows) + page(pointLine(7), twoRows));
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(idsOf(runs[0]), (std::vector<std::int32_t> {3, 7}));
}

TEST(SolverRuns, countThePassesOfADesignCycle)
{
    const std::string pass = page(pointLine(1), twoRows) + page(pointLine(2), twoRows);
    const auto runs = runsOfText(pass + pass + pass);
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(runs[0].cycle, 1);
    EXPECT_EQ(runs[2].cycle, 3);
    EXPECT_EQ(idsOf(runs[2]), (std::vector<std::int32_t> {1, 2}));
}

TEST(SolverRuns, cutAllRootsToTheShortest)
{
    const auto runs =
        runsOfText(page(pointLine(1), twoRows) + page(pointLine(2), {row("1.0E+02")}));
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_TRUE(runs[0].wasCut);
    EXPECT_EQ(runs[0].roots[0].rows.size(), 1U);
    EXPECT_EQ(runs[0].log.size(), 1U);
}

TEST(SolverRuns, ofMethodKTakeRootsFromTheRowsOfEachLoop)
{
    const auto k = [](int point) { return pointLine(point, "0.3000", "1.0000E+00", "K"); };
    const auto runs = runsOfText(page(k(2), {row("3.0E+02"), row("4.0E+02")})
                                 + page(k(1), {row("1.0E+02"), row("2.0E+02")}));
    ASSERT_EQ(runs.size(), 1U);
    ASSERT_EQ(idsOf(runs[0]), (std::vector<std::int32_t> {1, 2}));
    EXPECT_EQ(runs[0].roots[0].rows[0].speed, 100);
    EXPECT_EQ(runs[0].roots[0].rows[1].speed, 300);
    EXPECT_EQ(runs[0].roots[1].rows[1].speed, 400);
}

TEST(ImportedRun, hasEquivalentAirspeedsInKnots)
{
    // 100 m/s are 194.384449244 kt; a quarter of the density at sea level halves that.
    const auto runs = runsOfText(page(pointLine(1, "0.3000", "2.5000E-01"), {row("-1.0E+02")}));
    EXPECT_NEAR(speedsOf(importRun(runs[0], {}))[0], 97.192224622, 1e-9);
    EXPECT_NEAR(speedsOf(importRun(runs[0], unitsNamed("ft/s", "ratio")))[0], 97.192224622 * 0.3048,
                1e-9);
    UnitChoice equivalent;
    equivalent.isEquivalent = true;
    EXPECT_NEAR(speedsOf(importRun(runs[0], equivalent))[0], 194.384449244, 1e-9);
    UnitChoice withReference;
    withReference.vref = 2;
    EXPECT_NEAR(speedsOf(importRun(runs[0], withReference))[0], 194.384449244, 1e-9);
}

TEST(ImportedRun, takesDensityAndMachFromEachRowOfPknl)
{
    const std::string values = " 0.5 2.0 1.225 0.8 1.0E+02 -0.01 5.0 -0.15 31.4";
    const auto runs = runsOf(readSummariesOfText(printed(
        {.pointLine = "   POINT =    1     METHOD = PKNL", .hasDensity = true, .rows = {values}})));
    const ImportedRun imported = importRun(runs.at(0), unitsNamed("m/s", "kg/m3"));
    EXPECT_NEAR(imported.modes[0].points[0].keas, 194.384449244, 1e-9);
    EXPECT_NEAR(imported.modes[0].points[0].sigma, 1, 1e-12);
    EXPECT_EQ(imported.modes[0].points[0].mach, 0.8);
}

TEST(ImportedRun, dropsRepeatedConditionsAndSortsBySpeed)
{
    const auto runs = runsOfText(
        page(pointLine(1), {row("3.0E+02"), row("1.0E+02"), row("-1.0001E+02"), row("2.0E+02")}));
    const ImportedRun imported = importRun(runs[0], unitsNamed("kt", "ratio"));
    EXPECT_EQ(imported.droppedRows, 1U);
    ASSERT_EQ(imported.modes[0].points.size(), 3U);
    EXPECT_NEAR(speedsOf(imported)[0], 100, 1e-6);
    EXPECT_NEAR(speedsOf(imported)[2], 300, 1e-6);
    ASSERT_FALSE(imported.log.empty());
    EXPECT_EQ(imported.log[0], "rows of repeated conditions dropped: 1");
}

TEST(ImportedRun, ofMethodKeDropsNothingAndFollowsFallingReducedFrequency)
{
    const std::string ke = pointLine(1, "0.3000", "1.0000E+00", "KE");
    const std::string low = "  0.1000  1.0E+01  1.0E+02  2.0E-02  4.0E+00  -3.4E+02  2.8E+03";
    const std::string high = "  0.2000  5.0E+00  1.0E+02  -1.0E-02  5.0E+00  -3.4E+02  2.8E+03";
    const auto runs = runsOfText(page(ke, {low, high}));
    const ImportedRun imported = importRun(runs[0], {});
    ASSERT_EQ(imported.modes[0].points.size(), 2U);
    EXPECT_EQ(imported.droppedRows, 0U);
    EXPECT_EQ(imported.modes[0].points[0].k, 0.2);
    // The printed eigenvalue is scaled by the speed: Re = pi f g, Im = 2 pi f.
    EXPECT_NEAR(imported.modes[0].points[1].re, std::numbers::pi * 4 * 0.02, 1e-12);
    EXPECT_NEAR(imported.modes[0].points[1].im, 2 * std::numbers::pi * 4, 1e-12);
}

TEST(ImportedRun, refusesSpeedsThatNoEvolutionCanHold)
{
    const auto negative = runsOfText(page(pointLine(1, "0.3000", "-1.0000E+00"), twoRows));
    EXPECT_EQ(errorNumberOf([&] { importRun(negative.at(0), {}); }), ErrorNumber::Overflow);
    const auto huge = runsOfText(page(pointLine(1), {row("1.0E+99")}));
    EXPECT_EQ(errorNumberOf([&] { importRun(huge.at(0), {}); }), ErrorNumber::Overflow);
}

TEST(ImportedRun, keepsTheDampingOfStaticRoots)
{
    const auto runs = runsOfText(page(pointLine(1), {row("1.0E+02", "2.5E-01", "0.0000000E+00")}));
    const ImportedRun imported = importRun(runs[0], {});
    EXPECT_EQ(imported.modes[0].points[0].damping, 0.25);
    ASSERT_EQ(imported.log.size(), 1U);
    EXPECT_NE(imported.log[0].find("static"), std::string::npos);
}
