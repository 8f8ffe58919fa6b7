// SPDX-License-Identifier: Apache-2.0
#include "app/FlutterReportCommand.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/FlutterReport.h"
#include "analysis/ModeBuilder.h"
#include "analysis/XlsxReader.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestFiles.h"
#include "vgfplot/EvmPlot.h"

#include <QDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

/// A plot of one mode of the old format, without a Mach number, that crosses zero damping at 250
/// and at 350 KEAS.
class FlutterReportCommandTest : public ::testing::Test
{
protected:
    FlutterReportCommandTest()
    {
        evolution.FileName = "wing.evm";
        plot.rows().add(addMode(evolution, 1, {{200, -1, 4}, {300, 1, 6}, {400, -1, 8}}));
    }

    void run()
    {
        FlutterQuestions questions(user);
        FlutterReportCommand command(user, questions, [this](const QString& file) {
            opened.append(file);
            return canOpen;
        });
        command.run(plot, airplane, documents());
    }

    QString documents() { return QString::fromStdString(folder.file("documents")); }
    QStringList workbooks() { return QDir(documents()).entryList(QDir::Files, QDir::Name); }

    test::TemporaryFolder folder;
    test::ScriptedUserInterface user;
    EVM evolution;
    EvmPlot plot;
    AirplaneInfo airplane;
    QStringList opened;
    bool canOpen = true;
};

} // namespace

TEST_F(FlutterReportCommandTest, asksWritesAndOpensTheWorkbook)
{
    user.texts = {"0", "1000", "0.5", "0.6"};
    run();
    EXPECT_THAT(user.questions,
                ElementsAre(std::string(FlutterReport::dampingPrompt),
                            std::string(FlutterReport::speedLimitPrompt),
                            std::string(FlutterReport::machPrompt),
                            std::string(FlutterReport::machPrompt)));
    EXPECT_THAT(user.initials, ElementsAre("", "", "", "0.5"))
        << "the value last typed for the evolution is offered";
    EXPECT_TRUE(user.messages.empty());
    ASSERT_EQ(opened.size(), 1);
    EXPECT_TRUE(opened[0].endsWith(QStringLiteral(".xlsx")));
    const Sheet sheet = test::readXlsx(opened[0].toStdString());
    EXPECT_EQ(Sheet::textOf(sheet.cell(2, 1)), "wing.evm");
    // Half-way between the points of damping -1 and 1.
    EXPECT_EQ(Sheet::textOf(sheet.cell(2, 8)), "250");
    EXPECT_EQ(Sheet::textOf(sheet.cell(2, 9)), "350");
    EXPECT_EQ(Sheet::textOf(sheet.cell(2, 4)), "0.6") << "the Mach number typed last";
    EXPECT_EQ(workbooks().size(), 1);
}

TEST_F(FlutterReportCommandTest, writesTheStabilityOfWholeEvolutionsOnASecondSheet)
{
    addMode(evolution, 2, {{200, 1, 4}, {300, -1, 4}}); // not in the plot
    evolution.Param.Mach = 0.5F;
    airplane.FlutterEnvs.push_back({100, 200, 150, "0.50"});
    plot.rows().add(*evolution.Modes[0]);
    user.texts = {"0", "1000"};
    run();
    const std::string path = opened[0].toStdString();
    EXPECT_EQ(Sheet::textOf(test::readXlsx(path).cell(2, 8)), "250") << "the first sheet";
    const Sheet sheet = test::readXlsx(path, 2);
    EXPECT_EQ(sheet.title(), "Stability");
    EXPECT_EQ(Sheet::textOf(sheet.cell(2, 4)), "unstable from the first speed: modes 2");
    // Four levels, then the margin to 1.15 x 200.
    EXPECT_EQ(Sheet::textOf(sheet.cell(6, 4)),
              "fail: unstable from the first speed; required is 1.15 x 200 = 230 KEAS at g = 0.03");
    EXPECT_EQ(Sheet::textOf(sheet.cell(7, 4)), "becomes stable");
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(FlutterReportCommandTest, writesNothingAfterAStop)
{
    const auto runUntil = [this](std::size_t stop) {
        user.texts = {"0", "1000", "0.5", "0.5"};
        user.progress.clear();
        user.stopsAt = stop;
        run();
    };
    runUntil(0);
    EXPECT_EQ(opened.size(), 1);
    // The table, the search for stretches, the source files, and the rows of two sheets.
    const std::size_t reports = user.progress.size();
    EXPECT_GT(reports, 2U + 1U + 1U + 2U);
    for (std::size_t stop = 1; stop <= reports; ++stop) {
        runUntil(stop);
        EXPECT_EQ(user.progress.size(), stop) << "no further look after a stop";
        EXPECT_EQ(user.note, "Stopped: no workbook was written");
    }
    EXPECT_EQ(workbooks().size(), 1) << "that of the first run";
    EXPECT_EQ(opened.size(), 1);
    EXPECT_EQ(user.statuses.back(), "Ready");
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(FlutterReportCommandTest, containsHiddenRows)
{
    plot.rows().setHidden({0}, true);
    user.texts = {"0", "1000", "0.5", "0.5"};
    run();
    ASSERT_EQ(opened.size(), 1);
    const std::string path = opened[0].toStdString();
    EXPECT_EQ(Sheet::textOf(test::readXlsx(path).cell(2, 8)), "250");
    EXPECT_EQ(Sheet::textOf(test::readXlsx(path, 2).cell(2, 1)), "wing.evm");
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(FlutterReportCommandTest, judgesAtTheReferenceDampingAsWell)
{
    user.texts = {"0.5", "1000", "0.5", "0.5"};
    run();
    const Sheet sheet = test::readXlsx(opened[0].toStdString(), 2);
    EXPECT_EQ(Sheet::textOf(sheet.cell(6, 2)), "0.5");
    // Three quarters of the way from -1 to 1, at Mach 0.5 as it was answered.
    EXPECT_THAT(Sheet::textOf(sheet.cell(6, 4)), HasSubstr(" KEAS, 5.50 Hz, flutter, mode 1 (B)"));
}

TEST_F(FlutterReportCommandTest, leavesOutRowsWithoutACurveAndSaysWhich)
{
    plot.rows().add(*evolution.Modes[0]);
    plot.rows().add(*evolution.Modes[0]);
    plot.rows().setMode(plot.rows().at(0).id, 2);
    plot.rows().setMode(plot.rows().at(2).id, 0);
    user.texts = {"-5", "1000"};
    run();
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text,
              "Rows without a curve are left out of the flutter report:\n"
              "There is no mode 2 in modal evolution wing.evm (row 1)\n"
              "There is no mode 0 in modal evolution wing.evm (row 3)");
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(test::readXlsx(opened[0].toStdString()).rowCount(), 2U) << "headings and one row";
}

TEST_F(FlutterReportCommandTest, offersNoAnswerThatWasNoNumber)
{
    FlutterQuestions questions(user);
    FlutterReportCommand command(user, questions, [](const QString&) { return true; });
    user.texts = {"0", "1000", "0.5", "fast"};
    command.run(plot, airplane, documents());
    user.texts = {"0", "1000", "", ""};
    command.run(plot, airplane, documents());
    EXPECT_EQ(user.initials.back(), "0.5");
}

TEST_F(FlutterReportCommandTest, saysThatItNeedsTimeAndWhoseMachNumberIsAsked)
{
    user.texts = {"0", "1000", "0.5", "0.5"};
    run();
    EXPECT_THAT(user.statuses,
                ElementsAre("Calculate Flutter Speeds. Please Wait ...", "wing.evm",
                            "Calculate Flutter Speeds. Please Wait ...", "wing.evm",
                            "Calculate Flutter Speeds. Please Wait ...", "Ready"));
}

TEST_F(FlutterReportCommandTest, saysInTheTitleOfWhichModeTheMachNumberIsAsked)
{
    plot.rows().add(addMode(evolution, 7, {{200, -1, 4}, {300, 1, 6}}));
    user.texts = {"0", "1000", "0.5", "0.5", "0.5"};
    run();
    EXPECT_THAT(user.titles,
                ElementsAre("Tarsil", "Tarsil", "Tarsil - wing.evm, mode 1",
                            "Tarsil - wing.evm, mode 1", "Tarsil - wing.evm, mode 7"));
}

TEST_F(FlutterReportCommandTest, endsWithoutAnAnswer)
{
    run();
    user.texts = {""};
    run();
    user.texts = {"0"};
    run();
    user.texts = {"0", ""};
    run();
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(workbooks().isEmpty());
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(FlutterReportCommandTest, writesAFileOfItsOwnForEachRun)
{
    for (int i = 0; i < 3; ++i) {
        user.texts = {"-5", "1000"};
        run();
    }
    EXPECT_EQ(workbooks().size(), 3);
    EXPECT_EQ(QStringList(opened).removeDuplicates(), 0);
}

TEST_F(FlutterReportCommandTest, keepsTheCellsWrittenSoFarAfterAnError)
{
    user.texts = {"0", "1000", "no number"};
    run();
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, HasSubstr("Error # 13 was generated by FlutterReport"));
    EXPECT_THAT(user.messages[0].text, HasSubstr(" in Module wndMain\r"));
    ASSERT_EQ(opened.size(), 1);
    const Sheet sheet = test::readXlsx(opened[0].toStdString());
    EXPECT_EQ(Sheet::textOf(sheet.cell(2, 8)), "250");
    EXPECT_EQ(Sheet::textOf(sheet.cell(2, 9)), "");
    EXPECT_THAT(Sheet::textOf(test::readXlsx(opened[0].toStdString(), 2).cell(2, 4)),
                HasSubstr(" KEAS, 5.00 Hz, flutter, mode 1 (B)"))
        << "the second sheet is whole";
}

TEST_F(FlutterReportCommandTest, reportsAnAnswerThatIsNoNumber)
{
    user.texts = {"zero", "1000"};
    run();
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, HasSubstr("Error # 13 "));
    EXPECT_TRUE(workbooks().isEmpty());
}

TEST_F(FlutterReportCommandTest, saysWhereTheFileIsWhenNothingOpensIt)
{
    canOpen = false;
    user.texts = {"-5", "1000"};
    run();
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, HasSubstr(opened[0].toStdString()));
}

TEST_F(FlutterReportCommandTest, reportsAFolderThatCannotBeWritten)
{
    folder.write("documents", "a file of that name");
    user.texts = {"-5", "1000"};
    run();
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, HasSubstr("Error # 76 "));
    EXPECT_TRUE(opened.isEmpty());
}
