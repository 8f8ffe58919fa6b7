// SPDX-License-Identifier: Apache-2.0
#include "solver/Ev2Text.h"

#include "base/files/TextStream.h"
#include "base/user/RunTimeError.h"
#include "formats/Ev2Format.h"
#include "model/EVM.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>

using namespace tarsil;
using namespace tarsil::solver;

namespace {

void readBack(const std::string& text, EVM& evolution)
{
    TextStream stream(text, "written.ev2");
    readEv2(stream, evolution);
}

/// A random single of any size, but neither infinite nor not a number.
float anySingle(std::mt19937& random)
{
    for (;;) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (std::isfinite(value))
            return value;
    }
}

ImportedPoint anyPoint(std::mt19937& random)
{
    ImportedPoint point;
    for (double* value : {&point.im, &point.re, &point.k, &point.keas, &point.damping,
                          &point.frequency, &point.mach, &point.sigma})
        *value = double {anySingle(random)};
    return point;
}

void expectSamePoint(const Point& read, const ImportedPoint& written)
{
    EXPECT_EQ(double {read.im}, written.im);
    EXPECT_EQ(double {read.re}, written.re);
    EXPECT_EQ(double {read.speed}, written.keas);
    EXPECT_EQ(double {read.G}, written.damping);
    EXPECT_EQ(double {read.f}, written.frequency);
    EXPECT_EQ(double {read.mach}, written.mach);
    EXPECT_EQ(double {read.sigma}, written.sigma);
}

void fillTexts(EVM& header)
{
    header.programVersion = "test 1.0";
    header.ev2Version = "2";
    header.runningDate = "MARCH  23, 2022";
    header.solverVersion = "MSC Nastran  3/11/18";
    header.flutterMethod = "PKNL";
    header.Param.Airplane = "F\xC3\x9CGEL";
    header.Param.Script = "FULL=1";
    header.Param.Mass = "CLEAN";
    header.Param.AnalysisType = "Flutter";
    header.Param.modifications.add("1", "modes 4 and 5 exchanged");
    header.Param.legends.add("1", "SUBCASE 2");
    header.provenance = {"/a;b/c=d.f06", "4-12", "ft/s", "0.5", "ratio", ""};
    header.provenance.setLogEntries({"line 5: left out", "1; 2"});
}

} // namespace

TEST(Ev2Text, readsBackEqualForEverySingle)
{
    std::mt19937 random(20221); // NOLINT(cert-msc51-cpp): the same numbers each time
    std::vector<ImportedMode> modes(3);
    for (ImportedMode& mode : modes) {
        mode.id = static_cast<std::int32_t>(&mode - modes.data() + 4);
        for (int i = 0; i < 3000; ++i)
            mode.points.push_back(anyPoint(random));
    }
    EVM header;
    fillTexts(header);
    EVM evolution;
    readBack(ev2Text(header, modes), evolution);
    ASSERT_EQ(evolution.Modes.size(), modes.size());
    for (std::size_t m = 0; m < modes.size(); ++m) {
        EXPECT_EQ(evolution.Modes[m]->Id, modes[m].id);
        ASSERT_EQ(evolution.Modes[m]->Points.size(), modes[m].points.size());
        for (std::size_t i = 0; i < modes[m].points.size(); ++i)
            expectSamePoint(evolution.Modes[m]->Points[i], modes[m].points[i]);
    }
}

TEST(Ev2Text, readsBackItsHeader)
{
    EVM header;
    fillTexts(header);
    std::vector<ImportedMode> modes(2);
    modes[1].id = 1;
    modes[0].points.resize(3);
    EVM evolution;
    readBack(ev2Text(header, modes), evolution);
    EXPECT_EQ(evolution.programVersion, header.programVersion);
    EXPECT_EQ(evolution.ev2Version, header.ev2Version);
    EXPECT_EQ(evolution.runningDate, header.runningDate);
    EXPECT_EQ(evolution.solverVersion, header.solverVersion);
    EXPECT_EQ(evolution.flutterMethod, header.flutterMethod);
    EXPECT_EQ(evolution.Param.editable(), header.Param.editable());
    EXPECT_EQ(evolution.Param.Script, header.Param.Script);
    EXPECT_EQ(evolution.Param.AnalysisType, header.Param.AnalysisType);
    EXPECT_EQ(*evolution.Param.modifications.find("1"), "modes 4 and 5 exchanged");
    EXPECT_EQ(*evolution.Param.legends.find("1"), "SUBCASE 2");
    EXPECT_EQ(evolution.na, 2);
    EXPECT_EQ(evolution.numberOfStructuralModes, 2);
    EXPECT_EQ(evolution.numberOfSpeeds, 3);
}

TEST(Ev2Text, readsBackWhereAnEvolutionComesFrom)
{
    EVM header;
    fillTexts(header);
    EVM evolution;
    readBack(ev2Text(header, {}), evolution);
    EXPECT_EQ(evolution.provenance.source, "/a;b/c=d.f06");
    EXPECT_EQ(evolution.provenance.sourceLines, "4-12");
    EXPECT_EQ(evolution.provenance.speedUnit, "ft/s");
    EXPECT_EQ(evolution.provenance.vref, "0.5");
    EXPECT_EQ(evolution.provenance.density, "ratio");
    // A ";" separates the entries.
    EXPECT_EQ(evolution.provenance.logEntries(),
              (std::vector<std::string> {"line 5: left out", "1, 2"}));
}

TEST(Ev2Text, namesTheMachNumberThatAllPointsHave)
{
    const EVM header;
    std::vector<ImportedMode> modes(2);
    for (ImportedMode& mode : modes)
        mode.points.resize(2);
    EXPECT_EQ(ev2Text(header, modes).find("Mach_number"), std::string::npos) << "not printed";
    for (ImportedMode& mode : modes) {
        for (ImportedPoint& point : mode.points)
            point.mach = 0;
    }
    EXPECT_NE(ev2Text(header, modes).find("\nMach_number=0\n"), std::string::npos);
    modes[1].points[1].mach = 0.3;
    EXPECT_EQ(ev2Text(header, modes).find("Mach_number"), std::string::npos) << "they differ";
}

TEST(Ev2Text, keepsALineBreakOutOfItsHeader)
{
    EVM header;
    header.Param.Airplane = "A\n[RESULT DATA SUMMARY]";
    EVM evolution;
    readBack(ev2Text(header, {}), evolution);
    EXPECT_EQ(evolution.Param.Airplane, "A [RESULT DATA SUMMARY]");
}

TEST(Ev2Text, refusesWhatAnEvolutionCannotCount)
{
    const EVM header;
    std::vector<ImportedMode> modes(1);
    modes[0].id = 40000;
    EXPECT_THROW(ev2Text(header, modes), RunTimeError);
    modes[0].id = 1;
    modes[0].points.resize(40000);
    EXPECT_THROW(ev2Text(header, modes), RunTimeError);
}
