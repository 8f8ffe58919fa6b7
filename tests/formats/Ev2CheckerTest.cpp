// SPDX-License-Identifier: Apache-2.0
#include "FormatFixtures.h"

#include "formats/EvolutionChecker.h"

#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarsil {

namespace {

using test::ev2Header;
using test::ev2Row;
using test::findingsIn;
using test::with;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::vector<std::string> checkEv2(const std::string& text)
{
    return findingsIn(text, "wing.ev2");
}

// Model lines start at line 5; with two of them the rows start at line 13.
const std::string twoByTwo = "Aeroel_modes=2\nNo_of_speeds=2\n";
const std::string rows = //
    "1|1|17.2|-0.1|0|35.8|0.015|2.7|0|0|\n"
    "1|2|17.3|-0.2|0|36.7|0.016|2.8|0|0|\n"
    "2|1|27.2|-0.1|0|35.8|0.015|3.7|0|0|\n"
    "2|2|27.3|-0.2|0|36.7|0.016|3.8|0|0|\n";

TEST(Ev2Checker, findsNothingInACleanFile)
{
    EXPECT_THAT(checkEv2(ev2Header(twoByTwo) + rows), ElementsAre());
    EXPECT_THAT(checkEv2(ev2Header(twoByTwo) + rows + "\nremarks\n"), ElementsAre());
    EXPECT_THAT(checkEv2(ev2Header("") + ev2Row(11)), ElementsAre());
    EXPECT_THAT(checkEv2(ev2Header("") + ev2Row(21)), ElementsAre());
    EXPECT_THAT(checkEv2(ev2Header("") + ev2Row(26)), ElementsAre());
}

TEST(Ev2Checker, reportsAnEmptyFile)
{
    EXPECT_THAT(checkEv2(""), ElementsAre("1: the file is empty"));
}

TEST(Ev2Checker, reportsMissingSectionsAndChecksTheRest)
{
    EXPECT_THAT(checkEv2("text\n"),
                ElementsAre("1: the section \"[PROCESSING DATA INFO]\" is missing",
                            "1: the section \"[MODEL DATA INFO]\" is missing",
                            "1: the section \"[RESULT DATA SUMMARY]\" is missing"));
    const std::string text = ev2Header("Mach_number=x\n" + twoByTwo) + rows;
    EXPECT_THAT(checkEv2(text.substr(text.find("[MODEL"))),
                ElementsAre("2: Mach_number: the value \"x\" is not a number",
                            "14: the section \"[PROCESSING DATA INFO]\" is missing"));
}

TEST(Ev2Checker, reportsASectionThatIsSpelledDifferently)
{
    EXPECT_THAT(
        checkEv2(with(ev2Header(twoByTwo) + with(rows, "0.015", "stars"), "[MODEL DATA INFO]",
                      "[Model data info] ")),
        ElementsAre("4: the section header must be exactly \"[MODEL DATA INFO]\": the section is "
                    "not found",
                    "13: field 6 (damping): \"stars\" is not a number"));
}

TEST(Ev2Checker, reportsAMissingEmptyLineBetweenSections)
{
    EXPECT_THAT(
        checkEv2(with(ev2Header(twoByTwo) + rows, "\n\n[RESULT", "\n[RESULT")),
        ElementsAre("7: an empty line is missing before \"[RESULT DATA SUMMARY]\": the section "
                    "is not found"));
}

TEST(Ev2Checker, reportsCountsThatDisagreeWithTheRows)
{
    EXPECT_THAT(checkEv2(ev2Header("Aeroel_modes=3\nNo_of_speeds=2\n") + rows),
                ElementsAre("5: 3 aeroelastic modes are declared, but the results hold 2"));
    EXPECT_THAT(checkEv2(ev2Header("Aeroel_modes=2\nNo_of_speeds=1\n") + rows),
                ElementsAre("14: mode 1 has 2 points, but 1 speeds are declared",
                            "16: mode 2 has 2 points, but 1 speeds are declared"));
}

TEST(Ev2Checker, reportsAModeCutShort)
{
    EXPECT_THAT(checkEv2(ev2Header(twoByTwo) + rows.substr(0, rows.rfind("2|2|"))),
                ElementsAre("15: mode 2 is cut short: it has 1 point, but 2 speeds are declared"));
}

TEST(Ev2Checker, reportsRowsAfterTheEndOfTheResults)
{
    EXPECT_THAT(
        checkEv2(ev2Header(twoByTwo) + with(rows, "\n2|2", "\n\n2|2")),
        ElementsAre("15: mode 2 is cut short: it has 1 point, but 2 speeds are declared",
                    "17: this row is after the empty line that ends the results, and is not "
                    "read"));
}

TEST(Ev2Checker, reportsSpeedsThatDoNotIncrease)
{
    EXPECT_THAT(
        checkEv2(ev2Header(twoByTwo) + with(rows, "|36.7|", "|35.8|")),
        ElementsAre("14: mode 1, point 2: the speed is the same as at the point before, 35.8 "
                    "KEAS"));
    EXPECT_THAT(checkEv2(ev2Header(twoByTwo) + with(rows, "|36.7|", "|30|")),
                ElementsAre("14: mode 1, point 2: the speed falls from 35.8 to 30 KEAS"));
}

TEST(Ev2Checker, reportsAModeNumberThatComesAgain)
{
    EXPECT_THAT(
        checkEv2(ev2Header("") + rows + with(rows.substr(0, rows.find('\n') + 1), "2.7", "2.9")),
        ElementsAre("15: mode number 1 comes again: there is a mode 1 that ends in line 12"));
}

TEST(Ev2Checker, reportsFieldCountsThatCarryNoFactors)
{
    EXPECT_THAT(
        checkEv2(ev2Header("") + ev2Row(12)),
        ElementsAre("11: 12 fields: no participation factors are read from them (rows of up to "
                    "11 fields have none, rows of 21 or 26 have five)"));
}

TEST(Ev2Checker, reportsRowsOfTheSameOddFieldCountOnce)
{
    const std::string other = "2|1|2|3|4|5|6|7\n";
    EXPECT_THAT(checkEv2(ev2Header("") + with(ev2Row(22), "|5|", "|1|") + ev2Row(22) + other),
                ElementsAre(HasSubstr("11: 22 fields, up to line 12: no participation factors"),
                            "13: 8 fields, but the first row has 22"));
    EXPECT_THAT(checkEv2(ev2Header("") + with(ev2Row(22), "|5|", "|1|") + ev2Row(23) + other),
                ElementsAre(HasSubstr("11: 22 fields: no"),
                            HasSubstr("12: 23 fields, but the first row has 22: no"),
                            "13: 8 fields, but the first row has 22"));
}

TEST(Ev2Checker, reportsRowsOfAnotherWidthThanTheFirstOnce)
{
    const auto row = [](std::size_t fields, const std::string& speed) {
        return with(ev2Row(fields), "|5|", "|" + speed + "|");
    };
    EXPECT_THAT(checkEv2(ev2Header("") + row(21, "1") + row(26, "2") + row(26, "3") + row(21, "4")),
                ElementsAre("12: 26 fields, up to line 13, but the first row has 21"));
    EXPECT_THAT(checkEv2(ev2Header("") + row(11, "1") + row(21, "2")),
                ElementsAre("12: 21 fields, but the first row has 11"));
}

TEST(Ev2Checker, reportsFactorsThatDoNotCount)
{
    const std::string factors = ev2Row(21);
    const std::string none = with(ev2Row(11), "|5|", "|6|");
    const std::string other = "11 fields, but the first row has 21";
    const std::string vanish = "from here on no row has participation factors: those of the rows "
                               "before it do not count";
    EXPECT_THAT(checkEv2(ev2Header("") + factors + none),
                ElementsAre("12: " + other, "12: " + vanish));
    EXPECT_THAT(checkEv2(ev2Header("") + factors + none + with(factors, "|5|", "|7|")),
                ElementsAre("12: " + other));
}

TEST(Ev2Checker, reportsALastRowThatIsCut)
{
    const std::string whole = ev2Header("") + "1|1|2|3||20|0.1|62.4||"
        + "|0.1||0.2||0.3||0.4||0.5||\n1|2|2|3||30|0.2|62.4|||0.1||0.2||0.3||0.4||0.5||\n";
    EXPECT_THAT(checkEv2(whole), ElementsAre());
    EXPECT_THAT(checkEv2(whole.substr(0, whole.size() - 1)), ElementsAre()) << "no number is cut";
    // Read without an error, with a frequency of 6 Hz, or without any factors.
    EXPECT_THAT(checkEv2(whole.substr(0, whole.rfind("62.4") + 1)),
                ElementsAre("12: the file ends in this row without an end of line: its last field, "
                            "\"6\", may be cut",
                            "12: 8 fields, but the first row has 21",
                            "12: from here on no row has participation factors: those of the rows "
                            "before it do not count"));
    EXPECT_THAT(checkEv2(whole.substr(0, whole.rfind("0.1") + 2) + "\r\n"),
                ElementsAre(HasSubstr("12: 11 fields, but the first row has 21"),
                            HasSubstr("12: from here on no row has participation factors")));
}

TEST(Ev2Checker, reportsAFileThatEndsInItsLastNumber)
{
    const std::string text = ev2Header(twoByTwo) + rows;
    const std::string bare = text.substr(0, text.rfind("|0|0|"));
    EXPECT_THAT(checkEv2(bare),
                ElementsAre("16: the file ends in this row without an end of line: its last field, "
                            "\"3.8\", may be cut",
                            "16: 8 fields, but the first row has 11"));
    const std::string narrow = ev2Header("") + "1|1|2|3|4|5|6|7\n1|2|2|3|4|6|6|7";
    EXPECT_THAT(checkEv2(narrow),
                ElementsAre("12: the file ends in this row without an end of line: its last field, "
                            "\"7\", may be cut"));
    EXPECT_THAT(checkEv2(narrow + "\n"), ElementsAre());
    EXPECT_THAT(checkEv2(narrow + "\r"), ElementsAre()) << "the end of line itself is cut";
}

TEST(Ev2Checker, reportsARowOfTooFewFieldsAndGoesOn)
{
    EXPECT_THAT(checkEv2(ev2Header(twoByTwo) + with(rows, "\n1|2", "\n1|2|3\n1|2")),
                ElementsAre("14: a result row has at least 8 fields, this one only 3: \"1|2|3\""));
}

TEST(Ev2Checker, goesOnAfterANumberThatIsNone)
{
    std::string text = with(rows, "|17.2|", "|****|");
    text = with(text, "|36.7|", "|36.7 kts|");
    text = with(text, "\n2|1", "\n2x|1");
    text = with(text, "|0.016|2.8|", "|1e50||");
    EXPECT_THAT(
        checkEv2(ev2Header("") + text),
        ElementsAre("11: field 2 (eigenvalue, imaginary part): \"****\" is not a number: the "
                    "value did not fit when the file was written",
                    "12: field 5 (speed): \"36.7 kts\" is not a number",
                    "12: field 6 (damping): \"1e50\" is too large",
                    "12: field 7 (frequency): is blank, where a number should stand",
                    "13: field 0 (mode number): \"2x\" is not a number",
                    "13: mode 1, point 3: the speed is the same as at the point before, 35.8 "
                    "KEAS"));
}

TEST(Ev2Checker, reportsAFactorThatIsNone)
{
    EXPECT_THAT(checkEv2(ev2Header("") + with(ev2Row(26), "|13|", "|x|")),
                ElementsAre("11: field 13 (participation factor): \"x\" is not a number"));
}

TEST(Ev2Checker, reportsRepeatedAndIncompleteKeys)
{
    EXPECT_THAT(checkEv2(ev2Header("Legend(1)=a\nModif(1)=b\nLegend(1)=c\nModif(1)=d\nModif=e\n")),
                ElementsAre("7: the key \"Legend(1)\" comes twice",
                            "8: the key \"Modif(1)\" comes twice",
                            "9: the key \"Modif\" has no index in parentheses"));
}

TEST(Ev2Checker, reportsAModelLineWithoutAnEqualSign)
{
    EXPECT_THAT(checkEv2(ev2Header("Airplane WING\n")),
                ElementsAre("5: there is no \"=\" between a key and its value: \"Airplane WING\""));
}

TEST(Ev2Checker, reportsCountsThatAreNoNumbers)
{
    EXPECT_THAT(checkEv2(ev2Header("Struct_modes=\nAeroel_modes=two\nNo_of_speeds=99999\n") + rows),
                ElementsAre("5: Struct_modes: the value is blank, where a number should stand",
                            "6: Aeroel_modes: the value \"two\" is not a number",
                            "7: No_of_speeds: the value \"99999\" is too large"));
}

TEST(Ev2Checker, reportsAFileThatEndsWithinItsHeadings)
{
    std::string text = ev2Header("");
    text.resize(text.size() - 4);
    EXPECT_THAT(checkEv2(text),
                ElementsAre("8: the file ends within the four heading lines of the results"));
}

TEST(EvolutionChecker, readsTheFileOfAPath)
{
    const test::TemporaryFolder folder;
    EXPECT_TRUE(checkEvolution(folder.write("wing 1.ev2", ev2Header(twoByTwo) + rows)).empty());
    EXPECT_EQ(checkEvolution(folder.write("wing.evm", "")).size(), 1U);
    EXPECT_TRUE(test::errorOf([&] { checkEvolution(folder.file("missing.evm")); }));
    const auto error = test::errorOf([&] { checkEvolution(folder.write("wing.txt", "")); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ErrorNumber::InvalidProcedureCall);
}

} // namespace

} // namespace tarsil
