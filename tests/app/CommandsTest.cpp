// SPDX-License-Identifier: Apache-2.0

// The commands of the main window's menus.

#include "app/WndMainFixture.h"

#include "formats/EvolutionFile.h"
#include "formats/MdlMix.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <gmock/gmock.h>

using namespace tarsil;
using test::sample;
using test::WndMainTest;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

class Commands : public WndMainTest
{
protected:
    Commands() { load({sample("goland_clean_m040.ev2")}); }
};

/// A user whose every answer fails.
class FailingUser : public test::ScriptedUserInterface
{
public:
    std::optional<std::string> askText(const std::string&, const std::string&,
                                       const std::string&) override
    {
        fail();
    }
    std::vector<std::string> askOpenFiles(const FileQuestion&) override { fail(); }
    std::optional<std::string> askSaveFile(const FileQuestion&) override { fail(); }

private:
    [[noreturn]] static void fail()
    {
        throw RunTimeError(ErrorNumber::DeviceInputOutput, "FailingUser", "a test");
    }
};

} // namespace

TEST_F(Commands, addModalEvolutionsToTheExplorerAndDrawNone)
{
    user.openFiles.push_back({sample("goland_clean_m050.ev2"), sample("goland_clean_m040.ev2"),
                              folder.file("gone.evm")});
    const std::size_t curves = plot().SeriesCollection().size();
    choose("AddMenu");
    ASSERT_EQ(user.fileQuestions.size(), 1U);
    EXPECT_TRUE(user.fileQuestions[0].takesSeveral);
    EXPECT_EQ(window.document().evolutions().all().size(), 2U);
    EXPECT_EQ(plot().SeriesCollection().size(), curves);
    ASSERT_EQ(user.messages.size(), 2U);
    EXPECT_EQ(user.messages[0].text, "Modal Evolution [goland_clean_m040.ev2] Already Loaded.");
    EXPECT_THAT(user.messages[1].text, StartsWith("Modal evolution file not found:\n"));
}

TEST_F(Commands, addNothingWhenTheDialogIsCancelled)
{
    choose("AddMenu");
    EXPECT_EQ(window.document().evolutions().all().size(), 1U);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Commands, exportTheCurvesOfThePlotAsOneFile)
{
    plot().SerieMove(1, 3);
    user.saveFiles.push_back(folder.file("all.mix"));
    choose("ExportMenu");
    EXPECT_TRUE(user.messages.empty());
    std::vector<const AeMode*> modes;
    for (const Series& series : plot().SeriesCollection())
        modes.push_back(series.Mode);
    ASSERT_GT(modes.size(), 3U);
    PrintEVM(*mdlMix::gather(modes), folder.file("expected.mix"));
    EXPECT_EQ(test::fileBytes(folder.file("all.mix")),
              test::fileBytes(folder.file("expected.mix")));
    EXPECT_EQ(user.statuses.back(), "Ready");
}

TEST_F(Commands, exportNoModeOfARowWithoutACurveAndSaySo)
{
    plot().rows().setMode(plot().rows().at(1).id, 0);
    std::vector<const AeMode*> modes;
    for (const auto& mode : window.document().evolutions().all().front()->Modes)
        modes.push_back(mode.get());
    modes.erase(modes.begin() + 1);
    PrintEVM(*mdlMix::gather(modes), folder.file("expected.mix"));
    user.saveFiles.push_back(folder.file("all.mix"));
    choose("ExportMenu");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text,
              "Rows without a curve are left out of the mixed modal evolution:\n"
              "There is no mode 0 in modal evolution goland_clean_m040.ev2 (row 2)");
    EXPECT_EQ(test::fileBytes(folder.file("all.mix")),
              test::fileBytes(folder.file("expected.mix")));
}

TEST_F(Commands, setTheScaleOfTheActivePlot)
{
    QTimer::singleShot(0, [] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>(QStringLiteral("inpVmax"))->setText(QStringLiteral("123"));
        dialog->findChild<QPushButton*>(QStringLiteral("OKButton"))->click();
    });
    choose("popSetScale");
    EXPECT_EQ(plot().axes().speed.max, 123.0F);
}

TEST_F(Commands, addAndClearReferenceSpeedsAndDampingLines)
{
    choose("mnuAddRef");
    auto* const refSpeed = window.findChild<QDialog*>(QStringLiteral("dlgRefSpeed"));
    ASSERT_NE(refSpeed, nullptr);
    EXPECT_TRUE(refSpeed->isVisible());
    refSpeed->findChild<QPushButton*>(QStringLiteral("AddRefBtn"))->click();
    EXPECT_EQ(plot().parts().velAxis.marks().size(), 1U);
    choose("popClearRef");
    EXPECT_TRUE(plot().parts().velAxis.marks().empty());

    choose("popClearDamp"); // fitted axes have a line at 0
    choose("popAddDamp");
    auto* const dampLine = window.findChild<QDialog*>(QStringLiteral("dlgDampLine"));
    ASSERT_NE(dampLine, nullptr);
    dampLine->findChild<QPushButton*>(QStringLiteral("sdampBtn"))->click();
    EXPECT_EQ(plot().parts().vgPlot.lines().size(), 1U);
    choose("mnuClearDamp");
    EXPECT_TRUE(plot().parts().vgPlot.lines().empty());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Commands, makeADialogOnceAndShowItAgain)
{
    choose("mnuAddRef");
    auto* const dialog = window.findChild<QDialog*>(QStringLiteral("dlgRefSpeed"));
    dialog->close();
    choose("popAddRef");
    EXPECT_EQ(window.findChild<QDialog*>(QStringLiteral("dlgRefSpeed")), dialog);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(Commands, showTheKeysOnF1)
{
    choose("help");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, HasSubstr("F2"));
}

TEST_F(Commands, turnEveryFailureIntoTheOneReportAndGoOn)
{
    FailingUser failing;
    wndMain other(
        failing, [](const QString&) { return true; }, OptionsStore(folder.file("other.ini")));
    other.show();
    other.MDIForm_Load({sample("goland_clean_m040.ev2")});
    for (const auto& [name, module] :
         {std::pair("AddMenu", "mdlMain"), std::pair("ExportMenu", "mdlMix"),
          std::pair("mnuFlutCalc", "wndMain"), std::pair("popFlutCalc", "wndMain")}) {
        failing.messages.clear();
        other.findChild<QAction*>(QString::fromLatin1(name))->trigger();
        ASSERT_EQ(failing.messages.size(), 1U) << name;
        EXPECT_THAT(failing.messages[0].text,
                    StartsWith("Error # 57 was generated by FailingUser in Module "
                               + std::string(module) + "\r"));
        EXPECT_EQ(failing.messages[0].title, "Error");
        EXPECT_EQ(failing.messages[0].icon, MessageIcon::Critical);
    }
}

TEST_F(Commands, reportThatNoPlotIsActive)
{
    wndMain other(
        user, [](const QString&) { return true; }, OptionsStore(folder.file("other.ini")));
    for (const char* name :
         {"ExportMenu", "mnuSetScale", "popSetScale", "mnuClearRef", "popClearRef", "mnuClearDamp",
          "popClearDamp", "mnuFlutCalc", "popFlutCalc"}) {
        user.messages.clear();
        other.findChild<QAction*>(QString::fromLatin1(name))->trigger();
        ASSERT_EQ(user.messages.size(), 1U) << name;
        EXPECT_THAT(user.messages[0].text,
                    StartsWith("Error # 91 was generated by wndMain in Module wndMain\r"));
    }
    user.messages.clear();
    Q_EMIT other.stBar().panelClicked(3);
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, StartsWith("Error # 91 "));
}

TEST_F(Commands, haveTwinsOfTheSameCaption)
{
    for (const auto& [name, twin] :
         {std::pair("mnuSetScale", "popSetScale"), std::pair("mnuAddRef", "popAddRef"),
          std::pair("mnuClearRef", "popClearRef"), std::pair("mnuAddDamp", "popAddDamp"),
          std::pair("mnuClearDamp", "popClearDamp"), std::pair("mnuFlutCalc", "popFlutCalc")})
        EXPECT_EQ(action(name).text(), action(twin).text());
}

TEST_F(Commands, reportADampingLineThatCannotBeDrawn)
{
    plot().SetScale(0, 0, 0, 50, 0, -0.25F);
    user.messages.clear();
    choose("mnuClearDamp");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, StartsWith("Error # 11 "));
}
