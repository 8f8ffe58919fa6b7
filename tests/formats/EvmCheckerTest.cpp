// SPDX-License-Identifier: Apache-2.0
#include "FormatFixtures.h"

#include "formats/EvmWriter.h"
#include "formats/EvolutionChecker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarsil {

namespace {

using test::evmHeader;
using test::findingsIn;
using test::with;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::vector<std::string> checkEvm(const std::string& text)
{
    return findingsIn(text, "wing.evm");
}

const std::string cleanModes = //
    "  3  0.056   35.810 1.50000E-02    2.737  3  0.057   36.749 1.21295E-02    2.741\n"
    "  3  0.058   37.717-1.28004E-02    2.745  5  0.100   35.810 0.01500        5.000\n"
    "  5  0.101   36.749      -0.020    5.100  5  0.102   37.717         0.0    5.200\n";

TEST(EvmChecker, findsNothingInACleanFile)
{
    EXPECT_THAT(checkEvm(evmHeader("3", "2") + cleanModes), ElementsAre());
    EXPECT_THAT(checkEvm(evmHeader("3", "2") + cleanModes + "\n   \n"), ElementsAre());
    EXPECT_THAT(
        checkEvm(evmHeader("3", "1") + cleanModes.substr(0, 81) + cleanModes.substr(81, 40) + "\n"),
        ElementsAre());
}

TEST(EvmChecker, findsNothingInTheTagsAfterTheModes)
{
    const std::string points = evmHeader("3", "2") + cleanModes;
    EXPECT_THAT(checkEvm(points + "  B1  T1\n"), ElementsAre());
    EXPECT_THAT(checkEvm(points + std::string(80, ' ') + "\n"), ElementsAre());
    EXPECT_THAT(checkEvm(points + "1234123412341234123412341234123412341234\n"), ElementsAre());
}

TEST(EvmChecker, reportsAnEmptyFile)
{
    EXPECT_THAT(checkEvm(""), ElementsAre("1: the file is empty"));
}

TEST(EvmChecker, reportsAFileThatEndsBeforeItsCounts)
{
    EXPECT_THAT(checkEvm("a\nb\n"),
                ElementsAre("2: the file ends before line 4, which has the counts"));
}

TEST(EvmChecker, reportsTheCountsOfAnExportedFile)
{
    EVM evolution;
    AeMode& mode = evolution.appendMode();
    mode.Id = 1;
    mode.Tag = "B1";
    mode.Points.resize(2);
    mode.Points[1].speed = 10;
    evolution.na = 1;
    evolution.numberOfSpeeds = 2;
    EXPECT_THAT(
        checkEvm(evmText(evolution)),
        ElementsAre("4: columns 61-64 (number of speeds): is blank, where a number should stand",
                    "4: the counts stand in columns 56-59 and 64-67, as in an exported file; "
                    "they are read from columns 61-64 and 65-72"));
}

TEST(EvmChecker, goesOnWithoutCounts)
{
    EXPECT_THAT(checkEvm(evmHeader("x", "y") + with(cleanModes, "   36.749", "   35.000")),
                ElementsAre("4: columns 61-64 (number of speeds): \"x\" is not a number",
                            "4: columns 65-72 (number of aeroelastic modes): \"y\" is not a number",
                            "5: mode 3, point 2: the speed falls from 35.81 to 35 KEAS"));
}

TEST(EvmChecker, reportsCountsOfNothing)
{
    EXPECT_THAT(checkEvm(evmHeader("0", "-2") + cleanModes),
                ElementsAre("4: the number of speeds is declared as 0",
                            "4: the number of aeroelastic modes is declared as -2"));
}

TEST(EvmChecker, reportsThatFewerModesAreThereThanDeclared)
{
    EXPECT_THAT(checkEvm(evmHeader("3", "32767") + cleanModes),
                ElementsAre("4: 32767 aeroelastic modes are declared, but only 2 in the file have "
                            "the declared number of points"));
}

TEST(EvmChecker, reportsThatMoreModesAreThereThanDeclared)
{
    EXPECT_THAT(
        checkEvm(evmHeader("3", "1") + cleanModes),
        ElementsAre("6: more points follow than the 1 aeroelastic modes declared in line 4; "
                    "they are not read"));
}

TEST(EvmChecker, reportsAModeThatTheFileCutsShort)
{
    EXPECT_THAT(checkEvm(evmHeader("3", "2") + cleanModes.substr(0, 162)),
                ElementsAre("4: 2 aeroelastic modes are declared, but only 1 in the file have the "
                            "declared number of points",
                            "6: mode 5 is cut short: it has 1 point, but 3 speeds are declared"));
}

TEST(EvmChecker, reportsAModeThatTheNextCutsShort)
{
    EXPECT_THAT(
        checkEvm(evmHeader("3", "2") + cleanModes.substr(0, 81) + "  5" + cleanModes.substr(84)),
        ElementsAre("4: 2 aeroelastic modes are declared, but only 1 in the file have the "
                    "declared number of points",
                    "5: mode 3 is cut short: it has 2 points, but 3 speeds are declared",
                    HasSubstr("6: mode 5, point 2: the speed falls from 37.717 to 35.81")));
}

TEST(EvmChecker, reportsAModeNumberThatComesAgain)
{
    const std::string point = "  1  0.056   35.810 1.50000E-02    2.737";
    EXPECT_THAT(
        checkEvm(evmHeader("1", "3") + point + with(point, "  1", "  2") + "\n" + point + "\n"),
        ElementsAre("6: mode number 1 comes again: there is a mode 1 that ends in line 5"));
    EXPECT_THAT(checkEvm(evmHeader("1", "2") + point + point + "\n"),
                ElementsAre("5: mode number 1 comes again: there is a mode 1 that ends in line 5"));
}

TEST(EvmChecker, reportsEqualSpeeds)
{
    EXPECT_THAT(checkEvm(evmHeader("3", "2") + with(cleanModes, "   36.749", "   35.810")),
                ElementsAre("5: mode 3, point 2: the speed is the same as at the point before, "
                            "35.81 KEAS"));
}

TEST(EvmChecker, goesOnAfterANumberThatIsNone)
{
    std::string text = with(cleanModes, " 1.21295E-02", "************");
    text = with(text, "   37.717", "   37.7x7");
    text = with(text, "  0.100", "       ");
    text = with(text, "  5.100", "1E99999");
    EXPECT_THAT(
        checkEvm(evmHeader("3", "2") + text),
        ElementsAre("5: columns 60-71 (damping): \"************\" is not a number: the value did "
                    "not fit when the file was written",
                    "6: columns 11-19 (speed): \"37.7x7\" is not a number",
                    "6: columns 44-50 (reduced frequency): is blank, where a number should "
                    "stand",
                    "7: columns 32-40 (frequency): \"1E99999\" is too large"));
}

TEST(EvmChecker, reportsAModeNumberThatIsNone)
{
    EXPECT_THAT(checkEvm(evmHeader("3", "2") + "***" + cleanModes.substr(3)),
                ElementsAre(HasSubstr("5: columns 1-3 (mode number): \"***\" is not a number")));
    EXPECT_THAT(checkEvm(evmHeader("1", "1") + "***" + cleanModes.substr(3, 37)),
                ElementsAre(HasSubstr("5: columns 1-3 (mode number): \"***\" is not a number")));
}

TEST(EvmChecker, reportsALastRowThatIsCut)
{
    // The last point has 5.2 Hz in the last of 80 columns: "    5.200".
    const std::string whole = evmHeader("3", "2") + cleanModes;
    const auto without = [&whole](std::size_t bytes) {
        return whole.substr(0, whole.size() - bytes);
    };
    EXPECT_THAT(checkEvm(without(1)), ElementsAre()) << "no number is cut";
    EXPECT_THAT(checkEvm(without(3)),
                ElementsAre("7: the file ends in column 78 of this line without an end of line: "
                            "its last number may be cut"));
    EXPECT_THAT(checkEvm(without(5)), ElementsAre(HasSubstr("7: the file ends in column 76 of")));
    EXPECT_THAT(checkEvm(without(5) + "\n"),
                ElementsAre("7: the line ends in column 76, but the points before it in column 80: "
                            "its last number may be cut"));
}

TEST(EvmChecker, reportsAFirstHalfThatIsCut)
{
    const std::string one = evmHeader("1", "1") + cleanModes.substr(0, 38);
    EXPECT_THAT(checkEvm(one),
                ElementsAre("5: the file ends in column 38 of this line without an end of line: "
                            "its last number may be cut"));
    EXPECT_THAT(checkEvm(one + "\n"), ElementsAre()) << "the width of a number is unknown";
    EXPECT_THAT(checkEvm(one + " "), ElementsAre());
}

TEST(EvmChecker, acceptsNumbersAtTheLeftOfTheirColumns)
{
    EXPECT_THAT(checkEvm(evmHeader("2", "1") + "3  0.1    100      0.02        5.125\n"
                         + "3  0.1    200      0.02        5.1\n"),
                ElementsAre(HasSubstr("5: columns 41-80: blank, though more points follow")));
}

TEST(EvmChecker, reportsALineThatIsNoPoint)
{
    EXPECT_THAT(
        checkEvm(evmHeader("3", "2") + "a heading\n" + cleanModes),
        ElementsAre("5: columns 1-40: no point, though more modes are declared: \"a heading\"",
                    "5: columns 41-80: blank, though more points follow"));
}

TEST(EvmChecker, listsAThousandFindingsAtMost)
{
    std::string text = evmHeader("3", "2");
    for (int i = 0; i < 5000; ++i)
        text += "rubbish here\n";
    const auto findings = checkEvm(text);
    ASSERT_EQ(findings.size(), mostFindings + 1);
    EXPECT_THAT(findings.front(), HasSubstr("4: 2 aeroelastic modes are declared"));
    EXPECT_THAT(findings.back(), HasSubstr("9000 more findings"));
}

TEST(EvmChecker, isFastForManyBlankLines)
{
    const std::string text = evmHeader("3", "2") + std::string(1000000, '\n') + cleanModes;
    EXPECT_EQ(checkEvm(text).size(), mostFindings + 1);
}

} // namespace

} // namespace tarsil
