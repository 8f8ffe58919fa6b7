// SPDX-License-Identifier: Apache-2.0
#include "FormatFixtures.h"

#include "formats/EvolutionFile.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

namespace tarsil {

namespace {

using test::errorOf;
using test::readSemicolonText;

constexpr std::string_view wholeSemicolonFile = //
    "Results of a run\n"
    "Struct. Modes:;;;12\n"
    "x Aeroel. Modes:;;;;2\n"
    "No. of Speeds:;;; 2 \n"
    "[RESULT DATA SUMMARY]\n"
    "[Result Data Summary]\n"
    "Mode;Pt;Im;Re;..;Speed;g;Freq\n"
    "3;1;17.2;-0.1;x;35.8;0.015;2.7\n"
    "3;2;17.3;-0.2;x;36.7;-0.02;2.8\n"
    "7;1;20;-0.3;x;35.8;0.1;3.5;;;\n"
    "\n"
    "8;1;20;-0.3;x;35.8;0.1;3.5;;;\n";

TEST(SemicolonReader, readsCountsAndRows)
{
    EVM evolution;
    readSemicolonText(wholeSemicolonFile, evolution);
    EXPECT_EQ(evolution.numberOfStructuralModes, 12);
    EXPECT_EQ(evolution.na, 2);
    EXPECT_EQ(evolution.numberOfSpeeds, 2);
    ASSERT_EQ(evolution.Modes.size(), 2U);
    EXPECT_EQ(evolution.Modes[0]->Id, 3);
    EXPECT_EQ(evolution.Modes[0]->Parent, &evolution);
    ASSERT_EQ(evolution.Modes[0]->Points.size(), 2U);
    const Point& point = evolution.Modes[0]->Points[1];
    EXPECT_EQ(point.im, 17.3F);
    EXPECT_EQ(point.re, -0.2F);
    EXPECT_EQ(point.speed, 36.7F);
    EXPECT_EQ(point.G, -0.02F);
    EXPECT_EQ(point.f, 2.8F);
    EXPECT_EQ(evolution.Modes[1]->Id, 7);
    EXPECT_FALSE(evolution.hasParticipationFactors);
}

std::string row(std::size_t fields)
{
    std::string text = "1;1";
    for (std::size_t i = 2; i < fields; ++i)
        text += ";" + std::to_string(i);
    return "[Result Data Summary]\nheading\n" + text + "\n";
}

TEST(SemicolonReader, readsFiveFactorsFromEveryLongRow)
{
    for (const std::size_t fields : {19U, 21U, 26U, 30U}) {
        EVM evolution;
        readSemicolonText(row(fields), evolution);
        const ParticipationFactors& factors = evolution.Modes[0]->Points[0].mpf;
        ASSERT_EQ(factors.size(), 5U) << fields;
        // Each field of the row contains its own number.
        for (std::size_t i = 0; i < 5; ++i)
            EXPECT_EQ(factors[i], static_cast<float>(10 + 2 * i));
        EXPECT_TRUE(evolution.hasParticipationFactors);
    }
}

TEST(SemicolonReader, refusesALongRowThatEndsBeforeItsFactors)
{
    for (const std::size_t fields : {12U, 18U}) {
        EVM evolution;
        const auto error = errorOf([&] { readSemicolonText(row(fields), evolution); });
        ASSERT_TRUE(error) << fields;
        EXPECT_EQ(error->number(), ErrorNumber::SubscriptOutOfRange);
    }
}

TEST(SemicolonReader, readsNoFactorsFromElevenFields)
{
    EVM evolution;
    readSemicolonText(row(11), evolution);
    EXPECT_TRUE(evolution.Modes[0]->Points[0].mpf.empty());
}

TEST(SemicolonReader, findsNothingWithoutItsHeader)
{
    EVM evolution;
    readSemicolonText("No. of Speeds:;;;5\n[RESULT DATA SUMMARY]\n1;1;2;3;4;5;6;7\n", evolution);
    EXPECT_EQ(evolution.numberOfSpeeds, 5);
    EXPECT_TRUE(evolution.Modes.empty());
    readSemicolonText("", evolution);
    readSemicolonText("[Result Data Summary]", evolution);
    readSemicolonText("[Result Data Summary]\nheading", evolution);
    EXPECT_TRUE(evolution.Modes.empty());
}

TEST(SemicolonReader, namesACountThatIsNone)
{
    EVM evolution;
    const auto error = errorOf(
        [&] { readSemicolonText("Aeroel. Modes:;;;two\n[Result Data Summary]\n", evolution); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(), "Type mismatch: wing.csv, line 1, Aeroel. Modes:;;;: \"two\"");
}

TEST(SemicolonReader, readsAFileOfAnyName)
{
    const test::TemporaryFolder folder;
    folder.write("table.csv", wholeSemicolonFile);
    EVM evolution;
    evolution.Folder = folder.path().string();
    evolution.FileName = "table.csv";
    contructFromSemicolonFile(evolution);
    ASSERT_EQ(evolution.Modes.size(), 2U);
    EXPECT_EQ(evolution.Modes[0]->Parent, &evolution);
}

} // namespace

} // namespace tarsil
