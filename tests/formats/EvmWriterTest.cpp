// SPDX-License-Identifier: Apache-2.0
#include "FormatFixtures.h"

#include "formats/EvmWriter.h"
#include "formats/EvolutionFile.h"

#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarsil {

namespace {

using test::errorOf;

AeMode& addMode(EVM& evolution, std::int16_t id, int points)
{
    AeMode& mode = evolution.appendMode();
    mode.Id = id;
    for (int i = 0; i < points; ++i) {
        Point& point = mode.Points.emplace_back();
        point.Parent = &mode;
        point.kfreq = 0.0564F;
        point.speed = 100.0F + static_cast<float>(i);
        point.G = -0.015F;
        point.f = 2.7371F;
    }
    evolution.na = static_cast<std::int16_t>(evolution.Modes.size());
    return mode;
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find("\r\n", start);
        EXPECT_NE(end, std::string::npos);
        lines.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

TEST(EvmWriter, writesTheCountsAtTheirOwnColumns)
{
    EVM evolution;
    evolution.numberOfSpeeds = 41;
    addMode(evolution, 1, 1);
    const auto lines = linesOf(evmText(evolution));
    EXPECT_EQ(lines[0] + lines[1] + lines[2], "");
    // Columns 56-59 and 64-67, of 80.
    EXPECT_EQ(lines[3], std::string(55, ' ') + "  41" + "    " + "   1" + std::string(13, ' '));
}

TEST(EvmWriter, writesTwoPointsToALineWithTheSignAsStored)
{
    EVM evolution;
    evolution.numberOfSpeeds = 2;
    addMode(evolution, 3, 2);
    const auto lines = linesOf(evmText(evolution));
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[4],
              "  3  0.056  100.000-1.50000E-02    2.737  3  0.056  101.000-1.50000E-02    2.737");
}

TEST(EvmWriter, startsAModeInTheSecondHalfAndWritesTheLastHalfLine)
{
    EVM evolution;
    evolution.numberOfSpeeds = 1;
    for (std::int16_t id = 1; id <= 3; ++id)
        addMode(evolution, id, 1);
    const auto lines = linesOf(evmText(evolution));
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[4].substr(40, 3), "  2");
    EXPECT_EQ(lines[5], "  3  0.056  100.000-1.50000E-02    2.737");
}

TEST(EvmWriter, writesTwentyTagsToALine)
{
    EVM evolution;
    for (std::int16_t i = 0; i < 21; ++i)
        addMode(evolution, i, 0).Tag = "T" + std::to_string(i);
    const auto lines = linesOf(evmText(evolution));
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[4].size(), 80U);
    EXPECT_EQ(lines[4].substr(0, 8), "  T0  T1"); // the k-th in columns 4k+1 to 4k+4
    EXPECT_EQ(lines[4].substr(76), " T19");
    EXPECT_EQ(lines[5], " T20");
}

TEST(EvmWriter, writesFourCharactersOfATagAtMost)
{
    EVM evolution;
    addMode(evolution, 1, 0).Tag = "bending";
    addMode(evolution, 2, 0).Tag = "";
    addMode(evolution, 3, 0).Tag = "\xC3\xBC"; // one character of two bytes
    const auto lines = linesOf(evmText(evolution));
    EXPECT_EQ(lines.back(), "bend       \xC3\xBC");
}

TEST(EvmWriter, writesZeroCountsAndNumbersAsNothing)
{
    EVM evolution;
    EXPECT_EQ(evmText(evolution), "\r\n\r\n\r\n" + std::string(80, ' ') + "\r\n");
    addMode(evolution, 0, 1);
    EXPECT_EQ(linesOf(evmText(evolution))[4].substr(0, 10), "     0.056");
}

TEST(EvmWriter, refusesAValueThatDoesNotFitItsColumns)
{
    const test::TemporaryFolder folder;
    EVM evolution;
    addMode(evolution, 7, 2).Points[1].speed = 123456.0F;
    const auto error = errorOf([&] { PrintEVM(evolution, folder.file("out.mix")); });
    ASSERT_TRUE(error);
    EXPECT_EQ(static_cast<int>(error->number()), 5);
    EXPECT_NE(error->description().find("mode 7, point 2: \"123456.000\""), std::string::npos)
        << error->description();
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST(EvmWriter, refusesCountsAndModeNumbersThatDoNotFit)
{
    EVM evolution;
    evolution.numberOfSpeeds = 10000;
    EXPECT_TRUE(errorOf([&] { evmText(evolution); }));
    evolution.numberOfSpeeds = 1;
    addMode(evolution, 1000, 1);
    EXPECT_TRUE(errorOf([&] { evmText(evolution); }));
}

TEST(EvmWriter, leavesTheOldFileWhenAValueDoesNotFit)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.write("out.mix", "old");
    EVM evolution;
    addMode(evolution, 1, 1).Points[0].f = -100000.0F;
    EXPECT_TRUE(errorOf([&] { PrintEVM(evolution, path); }));
    EXPECT_EQ(test::fileBytes(path), "old");
}

TEST(EvmWriter, fillsTheWidestColumns)
{
    EVM evolution;
    Point& point = addMode(evolution, 999, 1).Points[0];
    point.kfreq = -99.999F;
    point.speed = 99999.0F;
    point.G = -1E-38F;
    point.f = -9999.999F;
    EXPECT_EQ(linesOf(evmText(evolution))[4], "999-99.99999999.000-1.00000E-38-9999.999");
}

TEST(EvmWriter, writesAFileThatReadsBackOnceItsCountsAreMoved)
{
    EVM evolution;
    evolution.numberOfSpeeds = 3;
    addMode(evolution, 4, 3);
    addMode(evolution, 6, 3);
    const test::TemporaryFolder folder;
    PrintEVM(evolution, folder.file("out.evm"));
    std::string text = test::fileBytes(folder.file("out.evm"));
    EVM back;
    EXPECT_TRUE(errorOf([&] { test::readEvmText(text, back); })); // columns 61-64 are blank
    text.replace(6, 80, std::string(60, ' ') + "   3       2");
    test::readEvmText(text, back);
    ASSERT_EQ(back.Modes.size(), 2U);
    EXPECT_EQ(back.Modes[1]->Id, 6);
    EXPECT_EQ(back.Modes[1]->Points[2].speed, 102.0F);
    EXPECT_EQ(back.Modes[1]->Points[2].G, 0.015F); // written as stored, read with the opposite sign
}

} // namespace

} // namespace tarsil
