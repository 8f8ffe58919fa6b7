// SPDX-License-Identifier: Apache-2.0
#include "solver/ImportPlan.h"

#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"
#include "formats/EvolutionFile.h"
#include "model/EVM.h"
#include "solver/PrintedPages.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>

using namespace tarsil;
using namespace tarsil::solver;
using namespace tarsil::test;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

/// Two analyses of one root each, subcases 1 and 2.
std::string twoAnalyses()
{
    return printed({.rows = twoRows}) + printed({.subcase = "2", .rows = twoRows}) + "1  END\n";
}

std::string pageWithDensities()
{
    // A speed of sound of 320 m/s means 254.8 K and 0.592 of the density at sea level, 0.725 kg/m3.
    return printed({.pointLine = "   POINT =    1     METHOD = PKNL",
                    .hasDensity = true,
                    .rows = {" 0.5 2.0 0.725 0.5 1.6E+02 -0.01 5.0 -0.15 31.4"}});
}

UnitChoice unitsIn(std::string_view speed, std::string_view density = "ratio")
{
    UnitChoice units;
    units.speed = *speedUnit(speed);
    units.density = *densityUnit(density);
    return units;
}

std::vector<std::string> namesOf(const std::vector<PlannedFile>& files)
{
    std::vector<std::string> names;
    for (const PlannedFile& file : files)
        names.push_back(resolvePath(file.path).name);
    return names;
}

class Import : public ::testing::Test
{
protected:
    TemporaryFolder folder;
    ImportPlan plan;
};

} // namespace

TEST_F(Import, writesTheChosenAnalysesBesideTheirSource)
{
    plan.add(folder.write("wing.f06", twoAnalyses()));
    plan.choose({0, 0}, false);
    plan.setUnits(unitsIn("m/s"));
    const WrittenFiles written = plan.write();
    EXPECT_THAT(written.failures, IsEmpty());
    ASSERT_EQ(written.paths.size(), 1U);
    EXPECT_THAT(fileBytes(folder.file("wing_s2_M0.30.ev2")), HasSubstr("|194.384449|"));
    EXPECT_FALSE(std::filesystem::exists(folder.file("wing_s1_M0.30.ev2")));
}

TEST_F(Import, writesNothingWithoutUnits)
{
    plan.add(folder.write("wing.f06", twoAnalyses()));
    EXPECT_THROW(plan.write(), RunTimeError);
    EXPECT_THROW(plan.evolution({0, 0}), RunTimeError);
    EXPECT_FALSE(plan.units());
    EXPECT_FALSE(std::filesystem::exists(folder.file("wing_s1_M0.30.ev2")));
}

TEST_F(Import, goesOnAfterAFileThatCannotBeWritten)
{
    plan.add(folder.write("wing.f06", twoAnalyses()));
    plan.setUnits(unitsIn("m/s"));
    std::filesystem::create_directory(folder.file("wing_s1_M0.30.ev2"));
    const WrittenFiles written = plan.write();
    EXPECT_THAT(written.failures, ElementsAre(HasSubstr("wing_s1_M0.30.ev2")));
    EXPECT_EQ(written.paths.size(), 1U);
}

TEST_F(Import, neverReplacesTheSource)
{
    const std::string source = folder.write("wing.f06", twoAnalyses());
    std::filesystem::create_hard_link(source, folder.file("wing_s1_M0.30.ev2"));
    plan.add(source);
    plan.setUnits(unitsIn("m/s"));
    EXPECT_THAT(plan.write().failures, ElementsAre(HasSubstr("is the file to read")));
    EXPECT_EQ(fileBytes(source), twoAnalyses());
}

TEST_F(Import, readsAFileOnce)
{
    const std::string path = folder.write("wing.f06", twoAnalyses());
    plan.add(path);
    plan.add(folder.path().string() + "/./wing.f06");
    EXPECT_EQ(plan.outputs().size(), 1U);
}

TEST_F(Import, keepsTheFilesOfSourcesWithOneNameApart)
{
    std::filesystem::create_directory(folder.file("other"));
    plan.add(folder.write("wing.f06", twoAnalyses()));
    plan.add(folder.write("other/wing.f06", twoAnalyses()));
    EXPECT_THAT(namesOf(plan.files()),
                ElementsAre("wing_s1_M0.30.ev2", "wing_s2_M0.30.ev2", "wing_s1_M0.30.ev2",
                            "wing_s2_M0.30.ev2"));
    plan.setFolder(folder.path().string());
    EXPECT_THAT(namesOf(plan.files()),
                ElementsAre("wing_s1_M0.30.ev2", "wing_s2_M0.30.ev2", "wing_s1_M0.30_2.ev2",
                            "wing_s2_M0.30_2.ev2"));
}

TEST_F(Import, saysWhyAFileIsRefused)
{
    plan.add(folder.write("empty.f06", ""));
    plan.add(folder.write("letter.f06", "Dear Sir,\nFLUTTER SUMMARY\n"));
    plan.add(folder.write("program.f06",
                          std::string("\x7F"
                                      "ELF\0\0\n",
                                      7)));
    plan.add(folder.write("headless.f06", "  FLUTTER  SUMMARY\n"));
    plan.add(folder.file("missing.f06"));
    EXPECT_THAT(plan.outputs(), IsEmpty());
    EXPECT_THAT(plan.refusals(),
                ElementsAre(HasSubstr("empty.f06 is empty"), HasSubstr("no line ends in"),
                            HasSubstr("binary file"),
                            HasSubstr("line 1: summary left out: the file ends before its rows"),
                            HasSubstr("File not found")));
}

TEST_F(Import, offersWhatCouldBeReadAndSaysWhatCouldNot)
{
    plan.add(folder.write("cut.f06",
                          printed({.rows = twoRows})
                              + printed({.pointLine = pointLine(2), .rows = {row("1.0E+02")}})
                              + "   words instead of numbers\n"));
    EXPECT_EQ(plan.outputs().at(0).runs.size(), 1U);
    EXPECT_THAT(plan.findings(), ElementsAre(AllOf(HasSubstr("cut.f06, line 4"))));
}

TEST_F(Import, makesTheEvolutionThatItsFileHolds)
{
    plan.add(folder.write("wing.f06", twoAnalyses()));
    plan.setUnits(unitsIn("m/s"));
    plan.setTexts({"test", "GLIDER", "EMPTY"});
    const std::unique_ptr<EVM> evolution = plan.evolution({0, 1});
    EXPECT_EQ(evolution->FileName, "wing_s2_M0.30.ev2");
    EXPECT_EQ(evolution->Param.Airplane, "GLIDER");
    EXPECT_EQ(evolution->Param.Mass, "EMPTY");
    ASSERT_EQ(evolution->Modes.size(), 1U);
    EXPECT_FLOAT_EQ(evolution->Modes[0]->Points.at(1).speed, 388.768898F);
    EXPECT_EQ(evolution->provenance.speedUnit, "m/s");
}

TEST_F(Import, usesTheDensityUnitOfAPresetOnlyForPrintedDensities)
{
    const UnitPreset& metric = unitPresets[0];
    plan.add(folder.write("ratio.f06", twoAnalyses()));
    EXPECT_EQ(plan.unitsOf(metric).density.name, "ratio");
    EXPECT_EQ(plan.unitsOf(metric).speed.name, "m/s");
    plan.add(folder.write("density.f06", pageWithDensities()));
    EXPECT_EQ(plan.unitsOf(metric).density.name, "kg/m3");
    plan.choose({1, 0}, false);
    EXPECT_EQ(plan.unitsOf(metric).density.name, "ratio");
}

TEST_F(Import, saysWhatSpeaksAgainstTheUnits)
{
    plan.add(folder.write("wing.f06", pageWithDensities()));
    plan.setUnits(unitsIn("m/s", "kg/m3"));
    EXPECT_THAT(plan.doubts(), IsEmpty());
    plan.setUnits(unitsIn("m/s", "ratio"));
    EXPECT_THAT(plan.doubts(), ElementsAre(HasSubstr("standard atmosphere in kg/m3")));
    plan.setUnits(unitsIn("ft/s", "kg/m3"));
    EXPECT_THAT(plan.doubts(), ElementsAre(HasSubstr("speed of sound in m/s")));
    UnitChoice scaled = unitsIn("ft/s", "kg/m3");
    scaled.vref = 1 / 0.3048;
    plan.setUnits(scaled);
    EXPECT_THAT(plan.doubts(), IsEmpty());
}

TEST_F(Import, doubtsADensityUnitForAPrintedRatio)
{
    plan.add(folder.write("wing.f06", printed({.rows = twoRows})));
    plan.setUnits(unitsIn("m/s", "kg/m3"));
    EXPECT_THAT(plan.doubts(),
                ElementsAre(HasSubstr("line 4: the heading prints a density ratio")));
    plan.add(folder.write("tail.f06", twoAnalyses()));
    EXPECT_THAT(
        plan.doubts(),
        ElementsAre(AllOf(HasSubstr("wing.f06, line 4"), HasSubstr("so in 2 other analyses"))));
    plan.setUnits(unitsIn("m/s"));
    EXPECT_THAT(plan.doubts(), IsEmpty());
}

TEST_F(Import, doubtsRealSpeedsWithoutADensity)
{
    plan.add(folder.write(
        "wing.f06",
        printed({.pointLine = "   POINT = 1   MACH NUMBER = 0.2   METHOD = PK", .rows = twoRows})));
    UnitChoice units = unitsIn("m/s");
    plan.setUnits(units);
    EXPECT_THAT(plan.doubts(), ElementsAre(HasSubstr("no density is printed")));
    units.isEquivalent = true;
    plan.setUnits(units);
    EXPECT_THAT(plan.doubts(), IsEmpty());
}

/// Compares with the evolutions of the sample, which have more digits in some values.
TEST_F(Import, givesTheSamplesOfThePrintAgain)
{
    plan.add(sample("goland_clean.f06"));
    plan.setUnits(unitsIn("ft/s"));
    ASSERT_EQ(plan.outputs().at(0).runs.size(), 3U);
    const char* const evolutions[] = {"goland_clean_m040.ev2", "goland_clean_m050.ev2",
                                      "goland_clean_m060.ev2"};
    for (std::size_t run = 0; run < 3; ++run) {
        const std::unique_ptr<EVM> imported = plan.evolution({0, run});
        const std::unique_ptr<EVM> expected = openEvolution(sample(evolutions[run]));
        ASSERT_EQ(imported->Modes.size(), expected->Modes.size());
        for (std::size_t m = 0; m < imported->Modes.size(); ++m) {
            const std::vector<Point>& points = imported->Modes[m]->Points;
            ASSERT_EQ(points.size(), 26U); // every second of 51
            for (std::size_t i = 0; i < points.size(); ++i) {
                const Point& original = expected->Modes[m]->Points.at(2 * i);
                EXPECT_NEAR(points[i].speed, original.speed, 0.002);
                EXPECT_NEAR(points[i].G, original.G, 1e-5 * std::max(1.F, std::abs(original.G)));
                EXPECT_NEAR(points[i].f, original.f, 0.001);
            }
        }
        EXPECT_EQ(imported->Param.Mach, expected->Param.Mach);
    }
}

TEST(UnitText, readsBackEveryChoice)
{
    for (const Unit& speed : speedUnits) {
        for (const Unit& density : densityUnits) {
            for (const bool isEquivalent : {false, true}) {
                const auto read = unitsFromText(unitText({speed, density, 0.3048, isEquivalent}));
                ASSERT_TRUE(read);
                EXPECT_EQ(read->speed.name, speed.name);
                EXPECT_EQ(read->density.name, density.name);
                EXPECT_EQ(read->vref, 0.3048);
                EXPECT_EQ(read->isEquivalent, isEquivalent);
            }
        }
    }
}

TEST(UnitText, isNoChoiceWhenAPartIsWrong)
{
    for (const char* text : {"", "m/s", "m/s|1", "km/h|1|ratio|", "m/s|0|ratio|", "m/s|x|ratio|",
                             "m/s|1|thin|equivalent"})
        EXPECT_FALSE(unitsFromText(text)) << text;
}
