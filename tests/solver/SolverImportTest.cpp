// SPDX-License-Identifier: Apache-2.0
#include "solver/SolverImport.h"

#include "base/user/RunTimeError.h"
#include "solver/PrintedPages.h"
#include "support/Separators.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using namespace tarsil::solver;
using namespace tarsil::test;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

const std::vector<std::string> oneRow = {row("1.0E+02")};

std::string pageOf(const std::string& point, const std::string& subcase = "1")
{
    return printed({.subcase = subcase, .pointLine = point, .rows = oneRow}) + "1  END\n";
}

} // namespace

TEST(SolverOutput, namesItsEvolutions)
{
    const TemporaryFolder folder;
    const std::string k = "5.0000E-01";
    const SolverOutput output = readSolverOutput(folder.write(
        "wing.v2.f06",
        pageOf(pointLine(1)) + pageOf(pointLine(1, "0.3000", k))
            + pageOf(pointLine(1, "0.8500"), "2") + pageOf(pointLine(1, "0.8500"), "2")
            + pageOf("   POINT = 1   MACH NUMBER = 0.2   SIGMA VALUE = 15.0   METHOD = K", "")));
    EXPECT_THAT(output.names,
                ElementsAre("wing.v2_s1_M0.30_r1.000.ev2", "wing.v2_s1_M0.30_r0.500.ev2",
                            "wing.v2_s2_M0.85.ev2", "wing.v2_M0.20_a15.ev2"));
}

TEST(SolverOutput, namesThePassesOfADesignCycle)
{
    const TemporaryFolder folder;
    const std::string pass = pageOf(pointLine(1)) + pageOf(pointLine(2));
    const SolverOutput output = readSolverOutput(folder.write("wing.f06", pass + pass));
    EXPECT_THAT(output.names, ElementsAre("wing_s1_M0.30.ev2", "wing_s1_M0.30_c2.ev2"));
}

TEST(SolverOutput, writesWhereAnEvolutionComesFrom)
{
    const TemporaryFolder folder;
    const std::string path =
        folder.write("wing.f06", printed({.rows = {row("*****"), row("1.0E+02")}}));
    UnitChoice units;
    units.speed = *speedUnit("ft/s");
    const std::string text =
        evolutionText(readSolverOutput(path), 0, units, {"test 1.0", "", "FULL"});
    EXPECT_THAT(text, HasSubstr("Program_version=test 1.0\n"));
    EXPECT_THAT(text, HasSubstr("Source=" + test::systemSeparators(path) + "\n"));
    EXPECT_THAT(text, HasSubstr("Source_lines=4-12\n"));
    EXPECT_THAT(text, HasSubstr("Speed_unit=ft/s\n"));
    EXPECT_THAT(text, HasSubstr("Vref=1\n"));
    EXPECT_THAT(text, HasSubstr("Density=ratio\n"));
    EXPECT_THAT(text, HasSubstr("Import_log=line 11: row left out: \"*****\" is no value\n"));
    EXPECT_THAT(text, HasSubstr("Nastran_version=MSC Nastran  3/11/18\n"));
    EXPECT_THAT(text, HasSubstr("Airplane=WING\n"));
    EXPECT_THAT(text, HasSubstr("Script=CLEAN\n"));
    EXPECT_THAT(text, HasSubstr("Mass_config=FULL\n"));
    EXPECT_THAT(text, HasSubstr("Legend(1)=FIRST RUN, SUBCASE 1\n"));
    EXPECT_THAT(text, HasSubstr("Mach_number=0.3\n"));
    EXPECT_THAT(text, HasSubstr("\n1|1|31.415927|-0.15|0.5|59.2483801|-0.01|5|0.3|1|\n"));
}

TEST(SolverOutput, refusesRealSpeedsWithoutADensity)
{
    const TemporaryFolder folder;
    const SolverOutput output = readSolverOutput(
        folder.write("wing.f06", pageOf("   POINT = 1   MACH NUMBER = 0.2   METHOD = PK")));
    UnitChoice units;
    EXPECT_THROW(evolutionText(output, 0, units, {}), RunTimeError);
    units.isEquivalent = true;
    EXPECT_THAT(evolutionText(output, 0, units, {}), HasSubstr("|194.384449|"));
}

TEST(UnitEvidence, givesTheChordOfThePrintedRows)
{
    // k = 0.5, V = 100, f = 5: c = 2 k V / (2 pi f) = 100 / (10 pi).
    const TemporaryFolder folder;
    const SolverOutput output = readSolverOutput(folder.write("wing.f06", pageOf(pointLine(1))));
    ASSERT_TRUE(output.evidence.chord);
    EXPECT_NEAR(*output.evidence.chord, 3.18309886, 1e-8);
    EXPECT_TRUE(output.evidence.isChordConsistent);
    EXPECT_THAT(evidenceText(output.evidence, output.file),
                ElementsAre(HasSubstr("reference chord 3.183")));
}

TEST(UnitEvidence, saysWhenRowsDisagreeOnTheChord)
{
    const TemporaryFolder folder;
    const SolverOutput output = readSolverOutput(folder.write(
        "wing.f06", printed({.rows = {row("1.0E+02"), row("2.0E+02"), row("3.0E+02")}})));
    EXPECT_FALSE(output.evidence.isChordConsistent);
    EXPECT_THAT(evidenceText(output.evidence, output.file), ElementsAre(HasSubstr("inconsistent")));
}

TEST(UnitEvidence, recognisesSpeedOfSoundAndDensityOfPknl)
{
    // Standard atmosphere at sea level: 340.29 m/s are 1116.4 ft/s; 0.0023769 slug/ft3.
    const TemporaryFolder folder;
    const SolverOutput output = readSolverOutput(folder.write(
        "wing.f06",
        printed({.pointLine = "   POINT =    1     METHOD = PKNL",
                 .hasDensity = true,
                 .rows = {" 0.5 2.0 2.3769E-03 0.5 5.582E+02 -0.01 5.0 -0.15 31.4"}})));
    ASSERT_TRUE(output.evidence.speed);
    EXPECT_EQ(output.evidence.speed->name, "ft/s");
    ASSERT_TRUE(output.evidence.density);
    EXPECT_EQ(output.evidence.density->name, "slug/ft3");
}

TEST(UnitEvidence, isNothingWhereAQuotientIsNoNumber)
{
    const TemporaryFolder folder;
    const SolverOutput output = readSolverOutput(folder.write(
        "wing.f06",
        printed({.pointLine = "   POINT =    1     METHOD = PKNL",
                 .hasDensity = true,
                 .rows = {" 0.0 2.0 2.3769E-03 1.0E-300 5.6E+20 -0.01 5.0 -0.2 31.4"}})));
    EXPECT_FALSE(output.evidence.speedOfSound);
    EXPECT_THAT(evidenceText(output.evidence, output.file), IsEmpty());
}

TEST(UnitEvidence, isNothingWithoutATable)
{
    const TemporaryFolder folder;
    const SolverOutput output = readSolverOutput(folder.write("wing.f06", "nothing\n"));
    EXPECT_THAT(output.runs, IsEmpty());
    EXPECT_FALSE(output.evidence.chord);
    EXPECT_THAT(evidenceText(output.evidence, output.file), IsEmpty());
}
