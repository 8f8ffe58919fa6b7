// SPDX-License-Identifier: Apache-2.0
#include "AircraftFixtures.h"

#include "support/Errors.h"
#include "support/Separators.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

namespace tarsil {

namespace {

using test::errorNumberOf;
using test::errorTextOf;
using test::readText;
using test::TemporaryFolder;

constexpr std::string_view oneOfEach = //
    "[MASS CONFIG. DESCRIPTION]\nm=CLEAN|b|c|d|e\n\n"
    "[FLUTTER MECHANISM]\nWBT|b|1|2|3|4|5|6|7|8|9\n\n"
    "[FLUTTER ENVELOPE]\nTAG=VL|Vd|Ce\n0.40=1|2|3\n";

TEST(AirplaneInfo, isCreatedFromItsFile)
{
    const TemporaryFolder folder;
    AirplaneInfo info;
    info.Filename = folder.write("my wing.inp", oneOfEach);
    info.Create();
    EXPECT_EQ(info.Filename, folder.file("my wing.inp"));
    EXPECT_EQ(info.MassConfs.size(), 1U);
    EXPECT_EQ(info.FlutterMechs.size(), 1U);
    EXPECT_EQ(info.FlutterEnvs.size(), 1U);
    EXPECT_EQ(info.CeTag, "Ce");
}

TEST(AirplaneInfo, holdsEachRecordOnceWhenItIsCreatedAgain)
{
    const TemporaryFolder folder;
    AirplaneInfo info;
    info.Filename = folder.write("wing.inp", oneOfEach);
    info.Create();
    info.Create();
    EXPECT_EQ(info.MassConfs.size(), 1U);
    EXPECT_EQ(info.FlutterMechs.size(), 1U);
    EXPECT_EQ(info.FlutterEnvs.size(), 1U);
}

TEST(AirplaneInfo, keepsNothingOfTheFormerFile)
{
    const TemporaryFolder folder;
    AirplaneInfo info;
    info.Filename = folder.write("wing.inp", oneOfEach);
    info.Create();
    info.Filename = folder.write("other.inp", "[FLUTTER ENVELOPE]\n0.50=4|5|6\n");
    info.Create();
    EXPECT_TRUE(info.MassConfs.empty());
    EXPECT_TRUE(info.FlutterMechs.empty());
    EXPECT_EQ(info.CeTag, "");
    ASSERT_EQ(info.FlutterEnvs.size(), 1U);
    EXPECT_EQ(info.FlutterEnvs[0].name, "0.50");
}

TEST(AirplaneInfo, staysAsItIsWhenItsFileIsMissing)
{
    const TemporaryFolder folder;
    AirplaneInfo info;
    info.Filename = folder.write("wing.inp", oneOfEach);
    info.Create();
    info.Filename = folder.file("missing.inp");
    EXPECT_EQ(errorNumberOf([&info] { info.Create(); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(info.FlutterMechs.size(), 1U);
    EXPECT_EQ(info.CeTag, "Ce");
    info.Filename = folder.path().string();
    EXPECT_EQ(errorNumberOf([&info] { info.Create(); }), ErrorNumber::PathFileAccess); // a folder
    info.Filename = folder.file("no folder\\wing.inp");
    EXPECT_EQ(errorNumberOf([&info] { info.Create(); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(info.FlutterMechs.size(), 1U);
}

TEST(AirplaneInfo, keepsWhatWasReadBeforeAnError)
{
    const TemporaryFolder folder;
    AirplaneInfo info;
    info.Filename = folder.write("wing.inp", std::string(oneOfEach).append("0.50=4|five|6\n"));
    EXPECT_EQ(errorTextOf([&info] { info.Create(); }),
              "13 Type mismatch: " + test::systemSeparators(info.Filename)
                  + ", line 10, field 1 (Vd): \"five\"");
    EXPECT_EQ(info.MassConfs.size(), 1U);
    EXPECT_EQ(info.FlutterMechs.size(), 1U);
    EXPECT_EQ(info.FlutterEnvs.size(), 1U);
}

TEST(AirplaneInfo, findsRecordsByTheirNames)
{
    const AirplaneInfo info = readText(oneOfEach);
    EXPECT_EQ(info.massConf("CLEAN"), info.MassConfs.data());
    EXPECT_EQ(info.flutterMechanism("WBT"), info.FlutterMechs.data());
    EXPECT_EQ(info.flutterEnvelope("0.40"), info.FlutterEnvs.data());
}

TEST(AirplaneInfo, findsNothingForOtherNames)
{
    const AirplaneInfo info = readText(oneOfEach);
    for (const char* const name : {"", "m", "b", "CLEA", "CLEAN2", "WB", "0.4", "0.400", "TAG"}) {
        EXPECT_EQ(info.massConf(name), nullptr) << name;
        EXPECT_EQ(info.flutterMechanism(name), nullptr) << name;
        EXPECT_EQ(info.flutterEnvelope(name), nullptr) << name;
    }
    EXPECT_EQ(AirplaneInfo().massConf(""), nullptr);
}

TEST(AirplaneInfo, findsNamesWhateverTheirCaseAndBlanksAround)
{
    const AirplaneInfo info = readText("[MASS CONFIG. DESCRIPTION]\nm= Tip Store\t|b|c|d|e\n\n"
                                       "[FLUTTER ENVELOPE]\n 0.40 =1|2|3\n");
    EXPECT_EQ(info.massConf("TIP STORE"), info.MassConfs.data());
    EXPECT_EQ(info.massConf(" tip store "), info.MassConfs.data());
    EXPECT_EQ(info.massConf("TIPSTORE"), nullptr);
    EXPECT_EQ(info.flutterEnvelope("0.40"), info.FlutterEnvs.data());
}

TEST(AirplaneInfo, prefersTheNameAsItIsWritten)
{
    const AirplaneInfo info = readText("[FLUTTER MECHANISM]\nfin|1|1|2|3|4|5|6|7|8|9\n"
                                       "FIN|2|1|2|3|4|5|6|7|8|9\nFIN|3|1|2|3|4|5|6|7|8|9\n");
    ASSERT_NE(info.flutterMechanism("FIN"), nullptr);
    EXPECT_EQ(info.flutterMechanism("FIN")->LongName, "2"); // the first of equal names
    EXPECT_EQ(info.flutterMechanism("Fin")->LongName, "1");
}

} // namespace

} // namespace tarsil
