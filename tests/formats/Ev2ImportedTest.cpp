// SPDX-License-Identifier: Apache-2.0
#include "FormatFixtures.h"
#include "support/Errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Evolutions imported from printed solver outputs.

namespace tarsil {

namespace {

using test::errorTextOf;
using test::ev2Header;
using test::readEv2Text;
using ::testing::ElementsAre;

constexpr std::string_view importKeys = "Source=/runs/a=b/wing.f06\n"
                                        "Source_lines=12-480\n"
                                        "Speed_unit=ft/s\n"
                                        "Vref=1\n"
                                        "Density=slug/ft3\n"
                                        "Import_log=line 20: row left out; rows dropped: 3\n";

std::string imported(std::string_view keys, std::string_view results)
{
    std::string text = ev2Header("");
    text.insert(text.find("\n\n") + 1, keys);
    return text.append(results);
}

} // namespace

TEST(ImportedEvolution, readsMachNumberAndDensityOfItsRows)
{
    EVM evolution;
    readEv2Text(imported(importKeys, "1|1|2|3|4|5|6|7|0.78|0.311945|\n1|2|2|3|4|6|6|7|||\n"),
                evolution);
    const std::vector<Point>& points = evolution.Modes.at(0)->Points;
    ASSERT_EQ(points.size(), 2U);
    EXPECT_EQ(points[0].mach, 0.78F);
    EXPECT_EQ(points[0].sigma, 0.311945F);
    EXPECT_EQ(points[1].mach, 0.0F); // not printed
    EXPECT_EQ(points[1].sigma, 0.0F);
    EXPECT_FALSE(evolution.hasParticipationFactors);
}

TEST(ImportedEvolution, keepsWhereItComesFrom)
{
    EVM evolution;
    readEv2Text(imported(importKeys, ""), evolution);
    EXPECT_TRUE(evolution.provenance.isImported());
    EXPECT_EQ(evolution.provenance.source, "/runs/a=b/wing.f06");
    EXPECT_EQ(evolution.provenance.sourceLines, "12-480");
    EXPECT_EQ(evolution.provenance.speedUnit, "ft/s");
    EXPECT_EQ(evolution.provenance.vref, "1");
    EXPECT_EQ(evolution.provenance.density, "slug/ft3");
    EXPECT_THAT(evolution.provenance.logEntries(),
                ElementsAre("line 20: row left out", "rows dropped: 3"));
    EXPECT_EQ(evolution.programVersion, "1");
}

TEST(ImportedEvolution, isKnownByItsKeysOnly)
{
    for (const std::string_view missing : {"Source=", "Speed_unit=", "Density="}) {
        std::string keys(importKeys);
        keys.insert(keys.find(missing), "x");
        EVM evolution;
        readEv2Text(imported(keys, "1|1|2|3|4|5|6|7|words|0.5|\n"), evolution);
        EXPECT_EQ(evolution.Modes.at(0)->Points.at(0).sigma, 0.0F) << missing;
    }
}

TEST(ImportedEvolution, readsRowsWithoutMachNumberAndDensity)
{
    EVM evolution;
    readEv2Text(imported(importKeys, "1|1|2|3|4|5|6|7\n1|2|2|3|4|6|6|7|0.5\n"), evolution);
    const std::vector<Point>& points = evolution.Modes.at(0)->Points;
    EXPECT_EQ(points.at(0).mach, 0.0F);
    EXPECT_EQ(points.at(1).mach, 0.5F);
    EXPECT_EQ(points.at(1).sigma, 0.0F);
}

TEST(ImportedEvolution, refusesADensityThatIsNoNumber)
{
    EVM evolution;
    EXPECT_EQ(errorTextOf([&] {
                  readEv2Text(imported(importKeys, "1|1|2|3|4|5|6|7|0.5|thin|\n"), evolution);
              }),
              "13 Type mismatch: wing.ev2, line 17, field 9 (density ratio): \"thin\"");
}

} // namespace tarsil
