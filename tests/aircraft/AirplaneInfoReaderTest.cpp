// SPDX-License-Identifier: Apache-2.0
#include "AircraftFixtures.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tarsil {

namespace {

using test::readText;

constexpr std::string_view wholeFile = //
    "a line before the sections\n"
    "[MASS CONFIG. DESCRIPTION]\n"
    "Mass 1=EMPTY|4100 kg|Empty, no stores|FWD|24 %\n"
    "Mass 2=FULL|5200 kg|Full tanks = heavy|AFT|31 %\n"
    "\n"
    "a|line=between|sections\n"
    "[FLUTTER MECHANISM]\n"
    "WBT|Wing bending-torsion|1|2|3|4|5|6|7|8|9\n"
    "FIN|Fin = rudder|0|30|6|0|-0.25|5|100|500|8\n"
    "\n"
    "[FLUTTER ENVELOPE]\n"
    "TAG=limit|dive|ceiling\n"
    "0.40=150|300.5|250\n"
    "0.785=180|310|260\n"
    "\n"
    "0.90=1|2|3\n";

TEST(AirplaneInfoReader, readsTheMassConfigurationsInFileOrder)
{
    const AirplaneInfo info = readText(wholeFile);
    ASSERT_EQ(info.MassConfs.size(), 2U);
    const MassConf& empty = info.MassConfs[0];
    EXPECT_EQ(empty.ShortName, "EMPTY");
    EXPECT_EQ(empty.Mval, "4100 kg");
    EXPECT_EQ(empty.LongName, "Empty, no stores");
    EXPECT_EQ(empty.CGpos, "FWD");
    EXPECT_EQ(empty.CGval, "24 %");
    EXPECT_EQ(info.MassConfs[1].ShortName, "FULL");
    EXPECT_EQ(info.MassConfs[1].LongName, "Full tanks = heavy"); // only the first "=" separates
}

TEST(AirplaneInfoReader, readsTheMechanismsWithFrequencyDampingAndSpeedInThisOrder)
{
    const AirplaneInfo info = readText(wholeFile);
    ASSERT_EQ(info.FlutterMechs.size(), 2U);
    const FlutterMechanism& wing = info.FlutterMechs[0];
    EXPECT_EQ(wing.ShortName, "WBT");
    EXPECT_EQ(wing.LongName, "Wing bending-torsion");
    EXPECT_EQ(wing.fmin, 1);
    EXPECT_EQ(wing.fmax, 2);
    EXPECT_EQ(wing.fthick, 3);
    EXPECT_EQ(wing.gmin, 4);
    EXPECT_EQ(wing.gmax, 5);
    EXPECT_EQ(wing.gthick, 6);
    EXPECT_EQ(wing.vmin, 7);
    EXPECT_EQ(wing.vmax, 8);
    EXPECT_EQ(wing.vthick, 9);
    EXPECT_EQ(info.FlutterMechs[1].gmax, -0.25F);
}

TEST(AirplaneInfoReader, leavesAnEqualSignOfAMechanismInItsText)
{
    EXPECT_EQ(readText(wholeFile).FlutterMechs[1].LongName, "Fin = rudder");
    const AirplaneInfo info = readText("[FLUTTER MECHANISM]\na=b|c|1|2|3|4|5|6|7|8|9\n");
    EXPECT_EQ(info.FlutterMechs[0].ShortName, "a=b");
}

TEST(AirplaneInfoReader, readsTheCeilingFirstAndTheLimitSpeedLast)
{
    const AirplaneInfo info = readText(wholeFile);
    ASSERT_EQ(info.FlutterEnvs.size(), 2U);
    EXPECT_EQ(info.FlutterEnvs[0].name, "0.40");
    EXPECT_EQ(info.FlutterEnvs[0].Ceiling, 150);
    EXPECT_EQ(info.FlutterEnvs[0].Vd, 300.5F);
    EXPECT_EQ(info.FlutterEnvs[0].VL, 250);
    EXPECT_EQ(info.FlutterEnvs[1].name, "0.785");
}

TEST(AirplaneInfoReader, readsTheTagOfTheLimitSpeedFirst)
{
    const AirplaneInfo info = readText(wholeFile);
    EXPECT_EQ(info.VLTag, "limit");
    EXPECT_EQ(info.VdTag, "dive");
    EXPECT_EQ(info.CeTag, "ceiling");
}

TEST(AirplaneInfoReader, acceptsAnyTextBetweenTagAndItsEqualSign)
{
    const AirplaneInfo info = readText("[FLUTTER ENVELOPE]\nTAGS in KEAS =a|b=c|\n");
    EXPECT_EQ(info.VLTag, "a");
    EXPECT_EQ(info.VdTag, "b=c");
    EXPECT_EQ(info.CeTag, "");
    EXPECT_TRUE(info.FlutterEnvs.empty());
}

TEST(AirplaneInfoReader, needsNoTags)
{
    const AirplaneInfo info = readText("[FLUTTER ENVELOPE]\n0.40=1|2|3\n0.50=4|5|6\n");
    EXPECT_EQ(info.VLTag + info.VdTag + info.CeTag, "");
    ASSERT_EQ(info.FlutterEnvs.size(), 2U);
    EXPECT_EQ(info.FlutterEnvs[0].VL, 3);
}

TEST(AirplaneInfoReader, acceptsTheSectionsInAnyOrder)
{
    const AirplaneInfo info = readText("[FLUTTER ENVELOPE]\n0.40=1|2|3\n\n"
                                       "[FLUTTER MECHANISM]\na|b|1|2|3|4|5|6|7|8|9\n\n"
                                       "[MASS CONFIG. DESCRIPTION]\nm=a|b|c|d|e\n\n");
    EXPECT_EQ(info.FlutterEnvs.size(), 1U);
    EXPECT_EQ(info.FlutterMechs.size(), 1U);
    EXPECT_EQ(info.MassConfs.size(), 1U);
}

TEST(AirplaneInfoReader, appendsASectionThatComesAgain)
{
    const AirplaneInfo info = readText("[MASS CONFIG. DESCRIPTION]\nm=a|b|c|d|e\n\n"
                                       "[MASS CONFIG. DESCRIPTION]\nm=f|b|c|d|e\n\n");
    ASSERT_EQ(info.MassConfs.size(), 2U);
    EXPECT_EQ(info.MassConfs[1].ShortName, "f");
}

TEST(AirplaneInfoReader, findsAHeaderAnywhereInALine)
{
    const AirplaneInfo info = readText("## 2 [FLUTTER MECHANISM] of the wing\n"
                                       "a|b|1|2|3|4|5|6|7|8|9\n");
    EXPECT_EQ(info.FlutterMechs.size(), 1U);
}

TEST(AirplaneInfoReader, knowsAHeaderOnlyAsItIsWritten)
{
    const AirplaneInfo info = readText("[flutter mechanism]\na\n[FLUTTER  ENVELOPE]\nb\n");
    EXPECT_TRUE(info.FlutterMechs.empty());
    EXPECT_TRUE(info.FlutterEnvs.empty());
}

TEST(AirplaneInfoReader, readsASectionWithoutEntriesAsAnEmptyCollection)
{
    for (const char* const end : {"\n\nx=y\n", "\n", ""}) {
        for (const char* const header :
             {"[MASS CONFIG. DESCRIPTION]", "[FLUTTER MECHANISM]", "[FLUTTER ENVELOPE]"}) {
            const AirplaneInfo info = readText(std::string(header) + end);
            EXPECT_TRUE(info.MassConfs.empty());
            EXPECT_TRUE(info.FlutterMechs.empty());
            EXPECT_TRUE(info.FlutterEnvs.empty());
        }
    }
}

TEST(AirplaneInfoReader, letsTheEndOfTheFileCloseASection)
{
    for (const char* const end : {"", "\n", "\r\n", "\n\n"}) {
        const std::string text = std::string("[FLUTTER ENVELOPE]\n0.40=1|2|3") + end;
        const AirplaneInfo info = readText(text);
        ASSERT_EQ(info.FlutterEnvs.size(), 1U);
        EXPECT_EQ(info.FlutterEnvs[0].VL, 3);
    }
}

TEST(AirplaneInfoReader, passesOverFieldsBeyondThoseItNeeds)
{
    const AirplaneInfo info = readText("[MASS CONFIG. DESCRIPTION]\nm=a|b|c|d|e|f|g\n\n"
                                       "[FLUTTER MECHANISM]\na|b|1|2|3|4|5|6|7|8|9|x\n\n"
                                       "[FLUTTER ENVELOPE]\nTAG=a|b|c|d\n0.40=1|2|3|\n");
    EXPECT_EQ(info.MassConfs.at(0).CGval, "e");
    EXPECT_EQ(info.FlutterMechs.at(0).vthick, 9);
    EXPECT_EQ(info.CeTag, "c");
    EXPECT_EQ(info.FlutterEnvs.at(0).VL, 3);
}

TEST(AirplaneInfoReader, keepsTextsAsTheyAre)
{
    const AirplaneInfo info = readText("[MASS CONFIG. DESCRIPTION]\nm= a |1,50|| \t|e \n");
    EXPECT_EQ(info.MassConfs.at(0).ShortName, " a ");
    EXPECT_EQ(info.MassConfs.at(0).Mval, "1,50");
    EXPECT_EQ(info.MassConfs.at(0).LongName, "");
    EXPECT_EQ(info.MassConfs.at(0).CGpos, " \t");
    EXPECT_EQ(info.MassConfs.at(0).CGval, "e ");
}

TEST(AirplaneInfoReader, acceptsNumbersWithBlanksAroundAndExponents)
{
    const AirplaneInfo info = readText("[FLUTTER ENVELOPE]\n0.40= 1.5e2 |+.25D+3|-2d-1\n");
    EXPECT_EQ(info.FlutterEnvs.at(0).Ceiling, 150);
    EXPECT_EQ(info.FlutterEnvs.at(0).Vd, 250);
    EXPECT_EQ(info.FlutterEnvs.at(0).VL, -0.2F);
}

TEST(AirplaneInfoReader, acceptsWindowsLineEndsAndAByteOrderMark)
{
    const AirplaneInfo info = readText("\xEF\xBB\xBF[FLUTTER ENVELOPE]\r\nTAG=a|b|c\r\n"
                                       "0.40=1|2|3\r\n\r\n0.50=1|2|3\r\n");
    EXPECT_EQ(info.CeTag, "c");
    EXPECT_EQ(info.FlutterEnvs.size(), 1U);
}

TEST(AirplaneInfoReader, decodesTheTextsOfAnOlderEncoding)
{
    // The first field is UTF-8 already, the others are Windows-1252.
    const AirplaneInfo info = readText("[MASS CONFIG. DESCRIPTION]\n"
                                       "m=Fl\xC3\xBCgel|b|Fl\xFCgel|\x80|30\xB0\n");
    EXPECT_EQ(info.MassConfs.at(0).ShortName, "Fl\xC3\xBCgel");
    EXPECT_EQ(info.MassConfs.at(0).LongName, "Fl\xC3\xBCgel");
    EXPECT_EQ(info.MassConfs.at(0).CGpos, "\xE2\x82\xAC"); // the euro sign, U+20AC
    EXPECT_EQ(info.MassConfs.at(0).CGval, "30\xC2\xB0");
}

} // namespace

} // namespace tarsil
