// SPDX-License-Identifier: Apache-2.0
#include "analysis/FlutterReport.h"

#include "analysis/Isa.h"
#include "analysis/ModeBuilder.h"
#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "support/Errors.h"
#include "support/RecordedProgress.h"
#include "support/Separators.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

using namespace tarsil;
using test::addMode;

namespace {

std::string text(const Sheet& sheet, std::size_t row, std::size_t column)
{
    return Sheet::textOf(sheet.cell(row, column));
}

double number(const Sheet& sheet, std::size_t row, std::size_t column)
{
    const auto* value = std::get_if<double>(&sheet.cell(row, column));
    EXPECT_NE(value, nullptr) << "no number in row " << row << ", column " << column;
    return value != nullptr ? *value : 0;
}

bool isEmpty(const Sheet& sheet, std::size_t row, std::size_t column)
{
    return std::holds_alternative<std::monostate>(sheet.cell(row, column));
}

/// No answer; a test that expects no question fails.
std::optional<std::string> noQuestion(const AeMode&, std::string_view)
{
    ADD_FAILURE() << "asked for a Mach number";
    return std::nullopt;
}

/// Counts the questions and always gives the same answer.
struct Answer
{
    std::optional<std::string> text;
    int questions = 0;
    std::vector<int> modes {}; ///< that the question was about

    FlutterReport::MachQuestion asker()
    {
        return [this](const AeMode& mode, std::string_view prompt) {
            modes.push_back(mode.Id);
            EXPECT_EQ(prompt,
                      "Tarsil does not know the Mach No.Please enter manually or use EV2 files.");
            ++questions;
            return text;
        };
    }
};

void describe(EVM& evolution, bool isNew)
{
    evolution.FileName = isNew ? "wing.ev2" : "wing.evm";
    evolution.isNewFormat = isNew;
    evolution.Param.Mass = "FULL FUEL";
    evolution.Param.Mach = isNew ? 0.78F : 0.0F;
}

std::optional<RunTimeError> reportError(const FlutterReport& report,
                                        const std::vector<ReportRow>& rows, Sheet& sheet)
{
    return test::errorOf([&] { report.write(rows, sheet); });
}

/// The headings of a report with up to two crossings and one factor.
void expectHeadings(const Sheet& sheet)
{
    const std::vector<std::string> headings = {"Modal Evolution",
                                               "Case",
                                               "Mass",
                                               "Mach No.",
                                               "Aero Mode",
                                               "gmax value",
                                               "gmax speed",
                                               "Flutter Speed",
                                               "",
                                               "Flutter Frequency",
                                               "",
                                               "Flutter Altitude",
                                               "",
                                               "MPF(1)",
                                               ""};
    for (std::size_t i = 0; i < headings.size(); ++i)
        EXPECT_EQ(text(sheet, 1, i + 1), headings[i]) << "column " << i + 1;
}

} // namespace

TEST(Report, asksInTheGivenWords)
{
    EXPECT_EQ(FlutterReport::dampingPrompt, "Enter reference damping (g) for flutter calculation:");
    EXPECT_EQ(FlutterReport::speedLimitPrompt, "Enter speed limit for maximum damping calculation");
}

TEST(Report, laysOutBlocksOfTheLargestNumberOfCrossings)
{
    EVM evolution;
    describe(evolution, true);
    evolution.hasParticipationFactors = true;
    AeMode& first = addMode(evolution, 3, {{300, -1, 4}, {400, 1, 6}});
    AeMode& second = addMode(evolution, 5, {{200, -1, 8}, {300, 1, 10}, {400, -1, 14}});
    for (AeMode* mode : {&first, &second}) {
        for (Point& point : mode->Points)
            point.mpf.append(point.f * 10);
    }
    Sheet sheet;
    FlutterReport(0, 350, noQuestion).write({{&first, "case A"}, {&second, "case B"}}, sheet);

    expectHeadings(sheet);
    EXPECT_EQ(sheet.rowCount(), 3U);
    EXPECT_EQ(sheet.columnCount(), 15U);

    EXPECT_EQ(text(sheet, 2, 1), "wing.ev2");
    EXPECT_EQ(text(sheet, 2, 2), "case A");
    EXPECT_EQ(text(sheet, 2, 3), "FULL FUEL");
    EXPECT_EQ(number(sheet, 2, 4), 0.78) << "not 0.7799999713897705, the single as a double";
    EXPECT_EQ(number(sheet, 2, 5), 3);
    EXPECT_EQ(number(sheet, 2, 6), -1) << "350 KEAS is before the second point";
    EXPECT_EQ(number(sheet, 2, 7), 300) << "the speed of the first point, which is the maximum";

    // All half-way between the points.
    EXPECT_EQ(number(sheet, 2, 8), 350);
    EXPECT_TRUE(isEmpty(sheet, 2, 9));
    EXPECT_EQ(number(sheet, 2, 10), 5);
    EXPECT_TRUE(isEmpty(sheet, 2, 11));
    EXPECT_EQ(number(sheet, 2, 12), ISA::IsaAltitude(350, double {0.78F}, "knot"));
    EXPECT_EQ(number(sheet, 2, 14), 50);

    EXPECT_EQ(number(sheet, 3, 6), 1);
    EXPECT_EQ(number(sheet, 3, 7), 300);
    EXPECT_EQ(number(sheet, 3, 8), 250);
    EXPECT_EQ(number(sheet, 3, 9), 350);
    EXPECT_EQ(number(sheet, 3, 10), 9);
    EXPECT_EQ(number(sheet, 3, 11), 12);
    EXPECT_EQ(number(sheet, 3, 13), ISA::IsaAltitude(350, double {0.78F}, "knot"));
    EXPECT_EQ(number(sheet, 3, 14), 90);
    EXPECT_EQ(number(sheet, 3, 15), 120);
}

TEST(Report, canBeStoppedAtEachSearchAndEachRow)
{
    EVM evolution;
    describe(evolution, true);
    AeMode& mode = addMode(evolution, 1, {{300, -1, 4}, {400, 1, 6}});
    const std::vector<ReportRow> rows(10, ReportRow {&mode, ""});
    const FlutterReport report(0, 1000, noQuestion);
    test::RecordedProgress whole;
    Sheet sheet;
    EXPECT_TRUE(report.write(rows, sheet, whole.receiver()));
    EXPECT_EQ(sheet.rowCount(), 11U);
    EXPECT_EQ(whole.count(), 20U);
    EXPECT_TRUE(whole.rises());
    for (std::size_t stop = 1; stop <= whole.count(); ++stop) {
        test::RecordedProgress progress(stop);
        Sheet part;
        EXPECT_FALSE(report.write(rows, part, progress.receiver()));
        EXPECT_EQ(progress.count(), stop);
        EXPECT_EQ(part.rowCount(), stop <= 10 ? 1 : stop - 10 + 1);
    }
}

TEST(Report, looksForTheReferenceDampingItself)
{
    EVM evolution;
    describe(evolution, true);
    AeMode& mode = addMode(evolution, 1, {{300, -0.5F, 4}, {400, 0.5F, 8}});
    Sheet sheet;
    FlutterReport(-0.25, 1000, noQuestion).write({{&mode, ""}}, sheet);
    EXPECT_EQ(number(sheet, 2, 8), 325); // a quarter of the way from -0.5 to 0.5
}

TEST(Report, writesSinglesAsAPersonReadsThem)
{
    EVM evolution;
    describe(evolution, true);
    AeMode& mode = addMode(evolution, 1, {{352.1F, -0.0131F}, {400, -0.2F}});
    Sheet sheet;
    FlutterReport(0, 1000, noQuestion).write({{&mode, ""}}, sheet);
    EXPECT_EQ(number(sheet, 2, 6), -0.0131);
    EXPECT_EQ(number(sheet, 2, 7), 352.1);
}

TEST(Report, writesAllBlockHeadingsIntoOneColumnWithoutCrossings)
{
    EVM evolution;
    describe(evolution, true);
    AeMode& mode = addMode(evolution, 1, {{300, -2, 4}, {400, -1, 8}});
    Sheet sheet;
    FlutterReport(0, 1000, noQuestion).write({{&mode, "case"}}, sheet);
    EXPECT_EQ(text(sheet, 1, 8), "MPF(1)");
    EXPECT_EQ(sheet.columnCount(), 8U);
    EXPECT_TRUE(isEmpty(sheet, 2, 8));
}

TEST(Report, hasHeadingsWithoutRows)
{
    Sheet sheet;
    FlutterReport(0, 1000, noQuestion).write({}, sheet);
    EXPECT_EQ(sheet.rowCount(), 1U);
    EXPECT_EQ(text(sheet, 1, 1), "Modal Evolution");
    EXPECT_EQ(text(sheet, 1, 8), "MPF(1)");
}

TEST(Report, leavesTheCaseOfAnOldFormatEmpty)
{
    EVM evolution;
    describe(evolution, false);
    AeMode& mode = addMode(evolution, 1, {{300, -2, 4}, {400, -1, 8}});
    Sheet sheet;
    FlutterReport(0, 1000, noQuestion).write({{&mode, "case"}}, sheet);
    EXPECT_TRUE(isEmpty(sheet, 2, 2));
    EXPECT_EQ(number(sheet, 2, 4), 0) << "no crossing, so the Mach number was not asked for";
}

TEST(Report, leavesFactorsOutWhereTheEvolutionHasNone)
{
    EVM evolution;
    describe(evolution, true);
    AeMode& mode = addMode(evolution, 1, {{300, -1, 4}, {400, 1, 8}});
    for (Point& point : mode.Points)
        point.mpf.append(1);
    Sheet sheet;
    FlutterReport(0, 1000, noQuestion).write({{&mode, ""}}, sheet);
    EXPECT_TRUE(isEmpty(sheet, 2, 11));
    EXPECT_EQ(text(sheet, 1, 11), "MPF(1)");
}

TEST(Report, toleratesACrossingWithoutFactors)
{
    EVM evolution;
    describe(evolution, true);
    evolution.hasParticipationFactors = true;
    AeMode& mode = addMode(evolution, 1, {{300, -1, 4}, {400, 1, 8}});
    Sheet sheet;
    EXPECT_NO_THROW(FlutterReport(0, 1000, noQuestion).write({{&mode, ""}}, sheet));
    EXPECT_TRUE(isEmpty(sheet, 2, 11));
}

TEST(Report, asksForTheMachNumberOncePerCrossing)
{
    EVM evolution;
    describe(evolution, false);
    AeMode& first = addMode(evolution, 1, {{200, -1, 1}, {300, 1, 1}, {400, -1, 1}});
    AeMode& second = addMode(evolution, 2, {{200, -1, 1}, {300, 1, 1}});
    AeMode& stable = addMode(evolution, 3, {{200, -1, 1}, {300, -1, 1}});
    Answer answer {"0.5"};
    Sheet sheet;
    FlutterReport(0, 1000, answer.asker())
        .write({{&first, ""}, {&second, ""}, {&stable, ""}}, sheet);
    EXPECT_EQ(answer.questions, 3);
    EXPECT_EQ(answer.modes, std::vector<int>({1, 1, 2}));
    EXPECT_EQ(number(sheet, 2, 4), 0.5);
    EXPECT_EQ(number(sheet, 2, 12), ISA::IsaAltitude(250, 0.5, "knot"));
    EXPECT_EQ(number(sheet, 3, 4), 0.5);
    EXPECT_EQ(number(sheet, 4, 4), 0);
}

TEST(Report, treatsNoAnswerAndAWrongAnswerAsTypeMismatch)
{
    EVM evolution;
    describe(evolution, false);
    AeMode& mode = addMode(evolution, 1, {{200, -1, 1}, {300, 1, 1.5F}});
    const std::optional<std::string> answers[] = {std::nullopt, "", "fast"};
    for (const auto& text : answers) {
        Answer answer {text};
        Sheet sheet;
        const auto error =
            reportError(FlutterReport(0, 1000, answer.asker()), {{&mode, ""}}, sheet);
        EXPECT_EQ(error.value().number(), ErrorNumber::TypeMismatch);
        EXPECT_EQ(number(sheet, 2, 8), 250) << "the cells written so far stay";
        EXPECT_EQ(number(sheet, 2, 9), 1.25);
        EXPECT_TRUE(isEmpty(sheet, 2, 10));
    }
}

TEST(Report, keepsTheAnswerThatMakesTheAltitudeFail)
{
    EVM evolution;
    describe(evolution, false);
    AeMode& mode = addMode(evolution, 1, {{200, -1, 1}, {300, 0.5F, 1}});
    Answer answer {"0"};
    Sheet sheet;
    const auto error = reportError(FlutterReport(0, 1000, answer.asker()), {{&mode, ""}}, sheet);
    EXPECT_EQ(error.value().number(), ErrorNumber::DivisionByZero);
    // Two thirds of the way, as a single: not 266.6666564941406, its value as a double.
    EXPECT_THAT(error.value().description(),
                ::testing::HasSubstr("mode 1: altitude of 266.66666 knots at Mach 0"));
    EXPECT_EQ(number(sheet, 2, 4), 0);
}

TEST(Report, keepsTheFirstHeadingsWhenASearchFails)
{
    EVM evolution;
    describe(evolution, true);
    AeMode& mode = addMode(evolution, 1, {{300, -1, 1}, {300, 1, 1}});
    Sheet sheet;
    const auto error = reportError(FlutterReport(0, 1000, noQuestion), {{&mode, ""}}, sheet);
    EXPECT_EQ(error.value().number(), ErrorNumber::DivisionByZero);
    EXPECT_EQ(sheet.rowCount(), 1U);
    EXPECT_EQ(sheet.columnCount(), 7U);
}

TEST(Report, keepsTheRowsBeforeAModeWithoutPoints)
{
    EVM evolution;
    describe(evolution, true);
    AeMode& good = addMode(evolution, 1, {{300, -1, 1}});
    AeMode& empty = addMode(evolution, 2, {});
    Sheet sheet;
    const auto error =
        reportError(FlutterReport(0, 1000, noQuestion), {{&good, ""}, {&empty, ""}}, sheet);
    EXPECT_EQ(error.value().number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(number(sheet, 2, 6), -1);
    EXPECT_EQ(number(sheet, 3, 5), 2);
    EXPECT_TRUE(isEmpty(sheet, 3, 6));
}

TEST(Report, writesTheOtherRowsWhenASearchFails)
{
    EVM evolution;
    describe(evolution, true);
    // Crosses zero at 250 KEAS before the search fails: none of the two crossings is written.
    AeMode& jump = addMode(evolution, 1, {{200, -1, 1}, {300, 1, 1}, {300, -1, 1}});
    AeMode& good = addMode(evolution, 2, {{300, -1, 4}, {400, 1, 6}});
    Sheet sheet;
    std::vector<std::string> errors;
    FlutterReport(0, 1000, noQuestion)
        .writeWhatCan({{&jump, ""}, {&good, ""}}, sheet, [&errors](const RunTimeError& error) {
            errors.push_back(error.description());
        });
    EXPECT_THAT(errors,
                ::testing::ElementsAre("Division by zero: " + test::systemSeparators("/wing.ev2")
                                       + ", mode 1, between the speeds 300 and 300"));
    EXPECT_EQ(sheet.columnCount(), 11U) << "one crossing at most";
    EXPECT_EQ(number(sheet, 2, 5), 1);
    EXPECT_EQ(number(sheet, 2, 6), 1) << "the largest damping needs no search";
    for (std::size_t column = 8; column <= 11; ++column)
        EXPECT_TRUE(isEmpty(sheet, 2, column)) << column;
    EXPECT_EQ(number(sheet, 3, 8), 350);
    EXPECT_EQ(number(sheet, 3, 9), 5);
    EXPECT_TRUE(jump.flutterPoints.empty());
}

TEST(Report, writesTheOtherCellsWhenAMaximumOrAnAltitudeFails)
{
    EVM evolution;
    describe(evolution, true);
    AeMode& empty = addMode(evolution, 1, {});
    // Crosses zero at standstill, where the Mach number has no altitude, and at 150 KEAS.
    AeMode& still = addMode(evolution, 2, {{-100, -1, 1}, {100, 1, 1}, {200, -1, 1}});
    Sheet sheet;
    int errors = 0;
    FlutterReport(0, 1000, noQuestion)
        .writeWhatCan({{&empty, ""}, {&still, ""}}, sheet,
                      [&errors](const RunTimeError&) { ++errors; });
    EXPECT_EQ(errors, 2);
    EXPECT_TRUE(isEmpty(sheet, 2, 6));
    EXPECT_EQ(number(sheet, 3, 8), 0);
    EXPECT_EQ(number(sheet, 3, 9), 150);
    EXPECT_TRUE(isEmpty(sheet, 3, 12));
    EXPECT_EQ(number(sheet, 3, 13), ISA::IsaAltitude(150, double {0.78F}, "knot"));
}
