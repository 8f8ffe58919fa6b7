// SPDX-License-Identifier: Apache-2.0
#include "FormatFixtures.h"

#include <gtest/gtest.h>

namespace tarsil {

namespace {

using test::errorOf;
using test::ev2Header;
using test::ev2Row;
using test::readEv2Text;

constexpr std::string_view wholeEv2File = //
    "a line before the sections\n"
    "[PROCESSING DATA INFO]\n"
    "Program_version=4.1=beta\n"
    "EV2_version=2\n"
    "Running_date=12-MAR-2003\n"
    "Other=x\n"
    "\n"
    "skipped\n"
    "[MODEL DATA INFO]\n"
    "Nastran_version=2001\n"
    "Flutter_method=PK\n"
    "Airplane=GOLAND WING\n"
    "Script=run.bat /m=3\n"
    "Mass_config=CLEAN\n"
    "Mach_number=0.78\n"
    "Struct_modes=12\n"
    "Aeroel_modes=2\n"
    "No_of_speeds=2\n"
    "Analysis_type=Flutter\n"
    "No_of_modif=2\n"
    "Modif(2)=tip mass = 3 kg\n"
    "Modif(10)=store\n"
    "Legend(1)=first\n"
    "\n"
    "[RESULT DATA SUMMARY]\n"
    "heading\nheading\nheading\nheading\n"
    "3|1|17.1977|-0.098|x|35.8098|0.01500|2.7371|y|z|\n"
    "3|2|17.2214|-0.104|x|36.7488|-1.21295E-02|2.7409|y|z|\n"
    "9|1|20|-0.2|x|35.8098|-0.3|3.5|y|z|\n"
    "\n"
    "9|2|20|-0.2|x|36.7488|-0.3|3.5|y|z|\n";

TEST(Ev2Reader, readsTheHeaderTexts)
{
    EVM evolution;
    readEv2Text(wholeEv2File, evolution);
    EXPECT_EQ(evolution.programVersion, "4.1"); // the text up to the second "="
    EXPECT_EQ(evolution.ev2Version, "2");
    EXPECT_EQ(evolution.runningDate, "12-MAR-2003");
    EXPECT_EQ(evolution.solverVersion, "2001");
    EXPECT_EQ(evolution.flutterMethod, "PK");
    EXPECT_EQ(evolution.Param.Airplane, "GOLAND WING");
    EXPECT_EQ(evolution.Param.Script, "run.bat /m=3"); // only the first "=" separates
    EXPECT_EQ(evolution.Param.Mass, "CLEAN");
    EXPECT_EQ(evolution.Param.AnalysisType, "Flutter");
    EXPECT_EQ(evolution.Param.Mach, 0.78F);
    EXPECT_EQ(evolution.numberOfStructuralModes, 12);
    EXPECT_EQ(evolution.na, 2);
    EXPECT_EQ(evolution.numberOfSpeeds, 2);
    EXPECT_TRUE(evolution.isNewFormat);
}

TEST(Ev2Reader, readsTheListsInFileOrderByTheirIndex)
{
    EVM evolution;
    readEv2Text(wholeEv2File, evolution);
    ASSERT_EQ(evolution.Param.modifications.size(), 2U);
    EXPECT_EQ(evolution.Param.modifications[0].key, "2");
    EXPECT_EQ(evolution.Param.modifications[0].text, "tip mass = 3 kg");
    EXPECT_EQ(*evolution.Param.modifications.find("10"), "store");
    ASSERT_EQ(evolution.Param.legends.size(), 1U);
    EXPECT_EQ(*evolution.Param.legends.find("1"), "first");
    EXPECT_EQ(evolution.Param.legends.find("2"), nullptr);
}

TEST(Ev2Reader, readsTheRowsUpToTheFirstEmptyLine)
{
    EVM evolution;
    readEv2Text(wholeEv2File, evolution);
    ASSERT_EQ(evolution.Modes.size(), 2U);
    const AeMode& mode = *evolution.Modes[0];
    EXPECT_EQ(mode.Id, 3);
    EXPECT_EQ(mode.Parent, &evolution);
    ASSERT_EQ(mode.Points.size(), 2U);
    EXPECT_EQ(mode.Points[0].im, 17.1977F);
    EXPECT_EQ(mode.Points[0].re, -0.098F);
    EXPECT_EQ(mode.Points[0].speed, 35.8098F);
    EXPECT_EQ(mode.Points[0].G, 0.015F); // sign as written
    EXPECT_EQ(mode.Points[1].G, -0.0121295F);
    EXPECT_EQ(mode.Points[1].f, 2.7409F);
    EXPECT_EQ(mode.Points[0].kfreq, 0.0F);
    EXPECT_EQ(mode.Points[1].Parent, &mode);
    EXPECT_EQ(evolution.Modes[1]->Id, 9);
    EXPECT_EQ(evolution.Modes[1]->Points.size(), 1U);
    EXPECT_FALSE(evolution.hasParticipationFactors);
}

TEST(Ev2Reader, leavesMachAtZeroWhenTheFileGivesNone)
{
    EVM evolution;
    readEv2Text(ev2Header("Airplane=x\n"), evolution);
    EXPECT_EQ(evolution.Param.Mach, 0.0F);
    EXPECT_TRUE(evolution.Modes.empty());
}

TEST(Ev2Reader, readsNoFactorsFromEightToElevenFields)
{
    for (const std::size_t fields : {8U, 9U, 10U, 11U}) {
        EVM evolution;
        evolution.hasParticipationFactors = true;
        readEv2Text(ev2Header("") + ev2Row(fields), evolution);
        EXPECT_FALSE(evolution.hasParticipationFactors) << fields;
        EXPECT_TRUE(evolution.Modes[0]->Points[0].mpf.empty());
    }
}

TEST(Ev2Reader, readsEverySecondFieldOfTwentyOne)
{
    EVM evolution;
    readEv2Text(ev2Header("") + ev2Row(21), evolution);
    EXPECT_TRUE(evolution.hasParticipationFactors);
    const ParticipationFactors& factors = evolution.Modes[0]->Points[0].mpf;
    ASSERT_EQ(factors.size(), 5U);
    // Each field of the row contains its own number.
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(factors[i], static_cast<float>(10 + 2 * i));
}

TEST(Ev2Reader, readsEveryThirdFieldOfTwentySix)
{
    EVM evolution;
    readEv2Text(ev2Header("") + ev2Row(26), evolution);
    EXPECT_TRUE(evolution.hasParticipationFactors);
    const ParticipationFactors& factors = evolution.Modes[0]->Points[0].mpf;
    ASSERT_EQ(factors.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(factors[i], static_cast<float>(10 + 3 * i));
}

TEST(Ev2Reader, leavesTheFlagAloneForOtherFieldCounts)
{
    for (const std::size_t fields : {12U, 20U, 22U, 25U, 27U, 40U}) {
        EVM evolution;
        readEv2Text(ev2Header("") + ev2Row(fields), evolution);
        EXPECT_FALSE(evolution.hasParticipationFactors) << fields;
        EVM afterFactors;
        readEv2Text(ev2Header("") + ev2Row(21) + ev2Row(fields), afterFactors);
        EXPECT_TRUE(afterFactors.hasParticipationFactors) << fields;
        EXPECT_TRUE(afterFactors.Modes[0]->Points[1].mpf.empty());
    }
}

TEST(Ev2Reader, letsTheLastRowDecideTheFlag)
{
    EVM evolution;
    readEv2Text(ev2Header("") + ev2Row(21) + ev2Row(11), evolution);
    EXPECT_FALSE(evolution.hasParticipationFactors);
    EXPECT_EQ(evolution.Modes[0]->Points[0].mpf.size(), 5U);
}

TEST(Ev2Reader, startsAModeWheneverTheNumberChanges)
{
    EVM evolution;
    readEv2Text(ev2Header("")
                    + "1|1|2|3|4|5|6|7\n2|1|2|3|4|5|6|7\n1|2|2|3|4|5|6|7\n 1|2|2|3|4|5|6|7\n",
                evolution);
    ASSERT_EQ(evolution.Modes.size(), 3U);
    EXPECT_EQ(evolution.Modes[2]->Id, 1);
    EXPECT_EQ(evolution.Modes[2]->Points.size(), 2U);
}

TEST(Ev2Reader, readsTheKeyBetweenEitherParenthesis)
{
    EVM evolution;
    readEv2Text(ev2Header("Modif)a)=one\nModif(b=two\nThe_Modif_(c)(d)=three\nLegend()=four\n"),
                evolution);
    const KeyedTexts& list = evolution.Param.modifications;
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(list[0].key, "a");
    EXPECT_EQ(list[1].key, "b");
    EXPECT_EQ(list[2].key, "c");
    EXPECT_EQ(*evolution.Param.legends.find(""), "four");
}

TEST(Ev2Reader, refusesARepeatedKey)
{
    EVM evolution;
    const auto error =
        errorOf([&] { readEv2Text(ev2Header("Legend(1)=first\nLegend(1)=again\n"), evolution); });
    ASSERT_TRUE(error);
    EXPECT_EQ(static_cast<int>(error->number()), 457);
    EXPECT_NE(error->description().find("wing.ev2, line 6: \"Legend(1)\""), std::string::npos)
        << error->description();
}

TEST(Ev2Reader, keepsTheTwoListsApart)
{
    EVM evolution;
    readEv2Text(ev2Header("Legend(1)=a\nModif(1)=b\n"), evolution);
    EXPECT_EQ(*evolution.Param.legends.find("1"), "a");
    EXPECT_EQ(*evolution.Param.modifications.find("1"), "b");
}

TEST(Ev2Reader, refusesAListKeyWithoutParentheses)
{
    EVM evolution;
    const auto error = errorOf([&] { readEv2Text(ev2Header("Legend=a\n"), evolution); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ErrorNumber::SubscriptOutOfRange);
}

TEST(Ev2Reader, comparesKeysExactly)
{
    EVM evolution;
    readEv2Text(ev2Header("airplane=x\nAirplane =x\nNo_of_modif=many\n"), evolution);
    EXPECT_EQ(evolution.Param.Airplane, "");
    EXPECT_TRUE(evolution.Param.modifications.empty());
}

TEST(Ev2Reader, saysWhichSectionIsMissing)
{
    for (const std::string_view header :
         {"[PROCESSING DATA INFO]", "[MODEL DATA INFO]", "[RESULT DATA SUMMARY]"}) {
        std::string text(wholeEv2File);
        text.replace(text.find(header) + 1, 1, "x");
        EVM evolution;
        const auto error = errorOf([&] { readEv2Text(text, evolution); });
        ASSERT_TRUE(error);
        EXPECT_EQ(static_cast<int>(error->number()), 62);
        EXPECT_NE(error->description().find(header), std::string::npos);
        EXPECT_NE(error->description().find("wing.ev2"), std::string::npos);
    }
}

TEST(Ev2Reader, saysThatAFileEndsWithinItsHeadings)
{
    EVM evolution;
    std::string text = ev2Header("");
    text.resize(text.size() - 4);
    const auto error = errorOf([&] { readEv2Text(text, evolution); });
    ASSERT_TRUE(error);
    EXPECT_EQ(static_cast<int>(error->number()), 62);
}

TEST(Ev2Reader, namesLineFieldAndTextOfAFieldThatIsNoNumber)
{
    EVM evolution;
    const auto error = errorOf(
        [&] { readEv2Text(ev2Header("") + ev2Row(8) + "1|2|2|3|4|5|****|7|8|9|\n", evolution); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error->description(),
              "Type mismatch: wing.ev2, line 12, field 6 (damping): \"****\"");
}

TEST(Ev2Reader, namesAFactorThatIsNoNumber)
{
    EVM evolution;
    std::string row = ev2Row(21);
    row.replace(row.find("|12|"), 4, "|1.2x|");
    const auto error = errorOf([&] { readEv2Text(ev2Header("") + row, evolution); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(),
              "Type mismatch: wing.ev2, line 11, field 12 (participation factor): \"1.2x\"");
}

TEST(Ev2Reader, namesAHeaderNumberThatIsNone)
{
    EVM evolution;
    const auto mach = errorOf([&] { readEv2Text(ev2Header("Mach_number=\n"), evolution); });
    ASSERT_TRUE(mach);
    EXPECT_EQ(mach->description(), "Type mismatch: wing.ev2, line 5, Mach_number: \"\"");
    const auto modes = errorOf([&] { readEv2Text(ev2Header("Aeroel_modes=40000\n"), evolution); });
    ASSERT_TRUE(modes);
    EXPECT_EQ(modes->number(), ErrorNumber::Overflow);
}

TEST(Ev2Reader, refusesARowOfFewerThanEightFields)
{
    EVM evolution;
    const auto error = errorOf([&] { readEv2Text(ev2Header("") + ev2Row(7), evolution); });
    ASSERT_TRUE(error);
    EXPECT_EQ(static_cast<int>(error->number()), 9);
    EXPECT_NE(error->description().find("wing.ev2, line 11: only 7"), std::string::npos);
}

TEST(Ev2Reader, readsFieldsItDoesNotKeepAsAnyText)
{
    EVM evolution;
    readEv2Text(ev2Header("") + "1|?|2|3||5|6|7|*|*|none\n", evolution);
    EXPECT_EQ(evolution.Modes[0]->Points[0].f, 7.0F);
}

TEST(Ev2Reader, readsWhatIsThereWhenCountsDisagree)
{
    EVM evolution;
    readEv2Text(ev2Header("Aeroel_modes=32767\nNo_of_speeds=32767\n") + ev2Row(8), evolution);
    ASSERT_EQ(evolution.Modes.size(), 1U);
    EXPECT_EQ(evolution.Modes[0]->Points.size(), 1U);
    EXPECT_LT(evolution.Modes[0]->Points.capacity(), 8U);
}

TEST(Ev2Reader, acceptsWindowsLineEndsAndAByteOrderMark)
{
    EVM evolution;
    std::string text(wholeEv2File.substr(wholeEv2File.find('[')));
    for (std::size_t i = 0; (i = text.find('\n', i)) != std::string::npos; i += 2)
        text.insert(i, "\r");
    readEv2Text("\xEF\xBB\xBF" + text, evolution);
    EXPECT_EQ(evolution.Modes.size(), 2U);
    EXPECT_EQ(evolution.runningDate, "12-MAR-2003");
}

TEST(Ev2Reader, decodesTheTextsOfAnOlderEncoding)
{
    EVM evolution;
    readEv2Text(ev2Header("Airplane=Fl\xFCgel\nLegend(1)=30\xB0\n"), evolution);
    EXPECT_EQ(evolution.Param.Airplane, "Fl\xC3\xBCgel");
    EXPECT_EQ(*evolution.Param.legends.find("1"), "30\xC2\xB0");
}

} // namespace

} // namespace tarsil
