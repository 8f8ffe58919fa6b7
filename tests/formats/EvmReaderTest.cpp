// SPDX-License-Identifier: Apache-2.0
#include "FormatFixtures.h"

#include <gtest/gtest.h>

namespace tarsil {

namespace {

using test::errorOf;
using test::evmHeader;
using test::readEvmText;

// Two points on a line; each is number (3), reduced frequency (7), speed (9), damping (12),
// frequency (9 columns).
//    "nnnkkkkkkksssssssssddddddddddddfffffffff"
constexpr std::string_view twoModesOfThree = //
    "  3  0.056   35.810 1.50000E-02    2.737  3  0.057   36.749 1.21295E-02    2.741\n"
    "  3  0.058   37.717-1.28004E-02    2.745  5  0.100   35.810 0.01500        5.000\n"
    "  5  0.101   36.749      -0.020    5.100  5  0.102   37.717           0    5.200\n";

TEST(EvmReader, readsTheFiveNumbersOfEachPoint)
{
    EVM evolution;
    readEvmText(evmHeader("3", "2") + std::string(twoModesOfThree), evolution);
    EXPECT_EQ(evolution.numberOfSpeeds, 3);
    EXPECT_EQ(evolution.na, 2);
    ASSERT_EQ(evolution.Modes.size(), 2U);
    const AeMode& mode = *evolution.Modes[0];
    ASSERT_EQ(mode.Points.size(), 3U);
    EXPECT_EQ(mode.Points[0].kfreq, 0.056F);
    EXPECT_EQ(mode.Points[0].speed, 35.810F);
    EXPECT_EQ(mode.Points[0].f, 2.737F);
    EXPECT_EQ(mode.Points[2].kfreq, 0.058F);
    EXPECT_EQ(mode.Points[2].f, 2.745F);
    EXPECT_EQ(mode.Points[0].re, 0.0F);
    EXPECT_EQ(mode.Points[0].im, 0.0F);
    EXPECT_TRUE(mode.Points[0].mpf.empty());
}

TEST(EvmReader, turnsTheSignOfTheDamping)
{
    EVM evolution;
    readEvmText(evmHeader("3", "2") + std::string(twoModesOfThree), evolution);
    EXPECT_EQ(evolution.Modes[0]->Points[0].G, -0.015F);
    EXPECT_EQ(evolution.Modes[0]->Points[2].G, 0.0128004F);
    EXPECT_EQ(evolution.Modes[1]->Points[0].G, -0.015F);
    EXPECT_EQ(evolution.Modes[1]->Points[1].G, 0.02F);
}

TEST(EvmReader, startsAModeInTheSecondHalfOfALine)
{
    EVM evolution;
    readEvmText(evmHeader("3", "2") + std::string(twoModesOfThree), evolution);
    const AeMode& second = *evolution.Modes[1];
    ASSERT_EQ(second.Points.size(), 3U);
    EXPECT_EQ(second.Points[0].f, 5.0F);
    EXPECT_EQ(second.Points[1].f, 5.1F);
    EXPECT_EQ(second.Points[2].f, 5.2F);
}

TEST(EvmReader, keepsTheFileModeNumber)
{
    EVM evolution;
    readEvmText(evmHeader("3", "2") + std::string(twoModesOfThree), evolution);
    EXPECT_EQ(evolution.Modes[0]->Id, 3);
    EXPECT_EQ(evolution.Modes[1]->Id, 5);
}

TEST(EvmReader, usesTheModeNumberOfTheLastPoint)
{
    EVM evolution;
    readEvmText(
        evmHeader("2", "1")
            + "  3  0.056   35.810 1.50000E-02    2.737  4  0.057   36.749 1.21295E-02    2.741\n",
        evolution);
    EXPECT_EQ(evolution.Modes[0]->Id, 4);
}

TEST(EvmReader, setsTheReferencesUpwards)
{
    EVM evolution;
    readEvmText(evmHeader("3", "2") + std::string(twoModesOfThree), evolution);
    for (const auto& mode : evolution.Modes) {
        EXPECT_EQ(mode->Parent, &evolution);
        for (const Point& point : mode->Points)
            EXPECT_EQ(point.Parent, mode.get());
    }
}

TEST(EvmReader, readsTouchingFields)
{
    EVM evolution;
    readEvmText(
        evmHeader("2", "1")
            + "100100.05612345.678-1.50000E-0212345.678100100.05712346.678-1.50000E-0254321.678\n",
        evolution);
    const AeMode& mode = *evolution.Modes[0];
    EXPECT_EQ(mode.Id, 100);
    EXPECT_EQ(mode.Points[0].kfreq, 100.056F);
    EXPECT_EQ(mode.Points[0].speed, 12345.678F);
    EXPECT_EQ(mode.Points[0].G, 0.015F);
    EXPECT_EQ(mode.Points[1].f, 54321.678F);
}

TEST(EvmReader, ignoresTextAfterColumn80)
{
    EVM evolution;
    readEvmText(evmHeader("2", "1")
                    + "  3  0.056   35.810 1.50000E-02    2.737  3  0.057   36.749 1.21295E-02    "
                      "2.741 note\n",
                evolution);
    EXPECT_EQ(evolution.Modes[0]->Points.size(), 2U);
}

TEST(EvmReader, readsALastColumnThatIsShort)
{
    EVM evolution;
    readEvmText(
        evmHeader("2", "1")
            + "  3  0.056   35.810 1.50000E-02    2.737  3  0.057   36.749 1.21295E-02  2.7",
        evolution);
    EXPECT_EQ(evolution.Modes[0]->Points[1].f, 2.7F);
}

TEST(EvmReader, dropsAModeThatTheFileCutsShort)
{
    EVM evolution;
    const std::string text(twoModesOfThree);
    readEvmText(evmHeader("3", "2") + text.substr(0, text.rfind("  5  0.102")) + "\n", evolution);
    EXPECT_EQ(evolution.na, 2);
    ASSERT_EQ(evolution.Modes.size(), 1U);
    EXPECT_EQ(evolution.Modes[0]->Id, 3);
}

TEST(EvmReader, readsWhatIsThereOfFarTooManyDeclaredModes)
{
    EVM evolution;
    readEvmText(evmHeader("2", "32767") + std::string(twoModesOfThree), evolution);
    EXPECT_EQ(evolution.na, 32767);
    EXPECT_EQ(evolution.Modes.size(), 3U);
}

TEST(EvmReader, makesOnePointModesOfADeclarationOfNoSpeeds)
{
    EVM evolution;
    readEvmText(evmHeader("0", "4") + std::string(twoModesOfThree), evolution);
    ASSERT_EQ(evolution.Modes.size(), 4U);
    EXPECT_EQ(evolution.Modes[0]->Points.size(), 1U);
}

TEST(EvmReader, readsNothingForADeclarationOfNoModes)
{
    EVM evolution;
    readEvmText(evmHeader("3", "0") + "no point at all\n", evolution);
    EXPECT_TRUE(evolution.Modes.empty());
    readEvmText(evmHeader("-3", "-1") + "no point at all\n", evolution);
    EXPECT_TRUE(evolution.Modes.empty());
}

TEST(EvmReader, stopsAfterTheDeclaredModes)
{
    EVM evolution;
    readEvmText(evmHeader("3", "1") + std::string(twoModesOfThree) + "trailer\n", evolution);
    EXPECT_EQ(evolution.Modes.size(), 1U);
}

TEST(EvmReader, passesOverBlankLinesAtTheEnd)
{
    for (const std::string_view end : {"", "\n", "\n\n\n", "   \n", "\r\n  \r\n"}) {
        EVM evolution;
        readEvmText(evmHeader("3", "3") + std::string(twoModesOfThree) + std::string(end),
                    evolution);
        EXPECT_EQ(evolution.Modes.size(), 2U);
    }
    EVM evolution;
    const std::string blankLine(80, ' ');
    readEvmText(evmHeader("3", "3") + std::string(twoModesOfThree) + blankLine + "\n" + blankLine,
                evolution);
    EXPECT_EQ(evolution.Modes.size(), 2U);
}

TEST(EvmReader, passesOverABlankLastHalf)
{
    for (const std::size_t blanks : {0U, 5U, 39U, 40U, 60U}) {
        EVM evolution;
        readEvmText(evmHeader("1", "2") + "  3  0.056   35.810 1.50000E-02    2.737"
                        + std::string(blanks, ' ') + "\n",
                    evolution);
        EXPECT_EQ(evolution.Modes.size(), 1U) << blanks;
    }
}

TEST(EvmReader, refusesABlankHalfBeforeMorePoints)
{
    EVM evolution;
    const auto error = errorOf([&] {
        readEvmText(evmHeader("2", "1")
                        + "  3  0.056   35.810 1.50000E-02    2.737\n"
                          "  3  0.056   35.810 1.50000E-02    2.737\n",
                    evolution);
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error->description(),
              "Type mismatch: wing.evm, line 5, columns 41-43 (mode number): \"\"");
}

TEST(EvmReader, acceptsWindowsLineEnds)
{
    EVM evolution;
    std::string text = evmHeader("3", "2") + std::string(twoModesOfThree);
    for (std::size_t i = 0; (i = text.find('\n', i)) != std::string::npos; i += 2)
        text.insert(i, "\r");
    readEvmText(text, evolution);
    ASSERT_EQ(evolution.Modes.size(), 2U);
    EXPECT_EQ(evolution.Modes[1]->Points[2].f, 5.2F);
}

TEST(EvmReader, namesLineColumnsAndTextOfAFieldThatIsNoNumber)
{
    EVM evolution;
    const auto error = errorOf([&] {
        readEvmText(evmHeader("2", "1")
                        + "  3  0.056   35.810 1.50000E-02    2.737  3  0.057   36.749************ "
                          "   2.741\n",
                    evolution);
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error->source(), "EVM");
    EXPECT_EQ(error->description(),
              "Type mismatch: wing.evm, line 5, columns 60-71 (damping): \"************\"");
}

TEST(EvmReader, namesAModeNumberThatIsNone)
{
    EVM evolution;
    const auto error = errorOf([&] {
        readEvmText(evmHeader("2", "1") + "***  0.056   35.810 1.50000E-02    2.737\n", evolution);
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(),
              "Type mismatch: wing.evm, line 5, columns 1-3 (mode number): \"***\"");
}

TEST(EvmReader, namesACountThatIsNone)
{
    EVM evolution;
    const auto error = errorOf([&] { readEvmText(evmHeader("x", "2"), evolution); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(),
              "Type mismatch: wing.evm, line 4, columns 61-64 (number of speeds): \"   x\"");
    const auto overflow = errorOf([&] { readEvmText(evmHeader("2", "40000"), evolution); });
    ASSERT_TRUE(overflow);
    EXPECT_EQ(overflow->number(), ErrorNumber::Overflow);
}

TEST(EvmReader, saysThatAFileEndsBeforeItsCounts)
{
    EVM evolution;
    const auto error = errorOf([&] { readEvmText("WING\nCLEAN\n", evolution); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ErrorNumber::InputPastEndOfFile);
    EXPECT_EQ(error->description(), "Input past end of file: wing.evm ends after line 2");
}

} // namespace

} // namespace tarsil
