// SPDX-License-Identifier: Apache-2.0

// What the windows remember: sizes and shares, the files last opened, the folders of dialogs.

#include "app/ChildLayout.h"
#include "app/QtUserInterface.h"
#include "app/WndMainFixture.h"
#include "datacontrol/WndData.h"

#include <QFileDialog>
#include <QTimer>

#include <gmock/gmock.h>

using namespace tarsil;
using test::sample;
using test::WndMainTest;
using ::testing::ElementsAre;
using ::testing::EndsWith;

namespace {

class WindowMemory : public WndMainTest
{
protected:
    /// A second main window with the same settings, closed at once after `look`.
    template <typename Look>
    void startAgain(QSize size, Look look)
    {
        test::ScriptedUserInterface other;
        wndMain again(
            other, [](const QString&) { return true; }, OptionsStore(folder.file("tarsil.ini")));
        again.resize(size);
        again.restoreSize();
        again.show();
        again.MDIForm_Load({});
        QApplication::processEvents();
        look(again);
        other.unsaved.push_back(Unsaved::Discard);
        again.close();
    }

    static QRect frameOf(wndMain& main, const char* content)
    {
        return main.findChild<ChildFrame*>(QString::fromLatin1(content) + QStringLiteral("Frame"))
            ->geometry();
    }

    /// The paths of a menu of recent files, from the tool tips of its entries.
    std::vector<std::string> filesOf(const char* menuName)
    {
        auto* const menu = window.findChild<QMenu*>(QString::fromLatin1(menuName));
        Q_EMIT menu->aboutToShow();
        std::vector<std::string> files;
        for (const QAction* entry : menu->actions()) {
            if (entry->isEnabled())
                files.push_back(
                    entry->toolTip().section(QStringLiteral(", last"), 0, 0).toStdString());
        }
        return files;
    }
};

} // namespace

TEST_F(WindowMemory, keepsTheSharesOfTheWindowsWhenTheMainWindowIsResized)
{
    load();
    frame("wndEvolExplorer").setGeometry(0, 0, inner().width(), inner().height() / 2);
    window.resize(1400, 900);
    QApplication::processEvents();
    EXPECT_EQ(frame("wndEvolExplorer").geometry(),
              QRect(0, 0, inner().width(), inner().height() / 2));
    const QRect plot = frame("wndEvolPlot").geometry();
    EXPECT_NEAR(plot.left(), inner().width() / 2.0, 1);
    EXPECT_EQ(plot.right() + 1, inner().width());
    EXPECT_EQ(plot.height(), inner().height());
}

TEST_F(WindowMemory, bringsTheColumnWidthsOfTheGridBack)
{
    load();
    auto& data = *window.findChild<wndData*>();
    data.setColumnWidths(QStringLiteral("40|150|60|55|45"));
    window.close();
    startAgain({1000, 800}, [](wndMain& again) {
        EXPECT_EQ(again.findChild<wndData*>()->columnWidths(), QStringLiteral("40|150|60|55|45"));
    });
}

TEST_F(WindowMemory, bringsSizeAndLayoutBackAtTheNextStart)
{
    load();
    window.resize(760, 560);
    frame("wndEvolExplorer").setGeometry(10, 20, 300, 200);
    frame("wndData").hide();
    QApplication::processEvents();
    const QRect explorer = frame("wndEvolExplorer").geometry();
    window.close();
    startAgain(QSize(500, 400), [&](wndMain& again) {
        EXPECT_EQ(again.size(), QSize(760, 560));
        EXPECT_EQ(frameOf(again, "wndEvolExplorer"), explorer);
        EXPECT_FALSE(again.findChild<ChildFrame*>(QStringLiteral("wndDataFrame"))->isVisible());
    });
}

TEST_F(WindowMemory, startsInTheDefaultLayoutWhenTheUserLeftIt)
{
    load();
    window.close();
    startAgain(QSize(900, 600), [&](wndMain& again) {
        const QSize area = again.findChild<QMdiArea*>()->viewport()->size();
        EXPECT_EQ(frameOf(again, "wndEvolExplorer"),
                  QRect(0, 0, area.width() / 2, area.height() / 4));
    });
}

TEST_F(WindowMemory, ignoresALayoutThatWouldPutAWindowOutOfSight)
{
    const OptionsStore memory = OptionsStore(folder.file("tarsil.ini")).memory();
    for (const char* damaged :
         {"5 5 6 6 1|0 0.25 0.5 1 1|0.5 0 1 1 1", "0 0 nan 1 1|0 0 1 1 1|0 0 1 1 1", "x", "|||",
          "0 0 0.5 0.25 1|0 0.25 0.5 1 1"}) {
        memory.rememberQuietly(remembered::windows,
                               {{QStringLiteral("childWindows"), QString::fromLatin1(damaged)}});
        startAgain(QSize(900, 600), [&](wndMain& again) {
            const QSize area = again.findChild<QMdiArea*>()->viewport()->size();
            EXPECT_EQ(frameOf(again, "wndEvolExplorer"),
                      QRect(0, 0, area.width() / 2, area.height() / 4))
                << damaged;
        });
    }
}

TEST_F(WindowMemory, leavesTheFileOfTheOptionsAlone)
{
    load();
    window.close();
    EXPECT_FALSE(std::filesystem::exists(folder.file("tarsil.ini")));
    EXPECT_TRUE(std::filesystem::exists(folder.file("windows.ini")));
}

TEST_F(WindowMemory, offersTheFilesLastOpened)
{
    EXPECT_THAT(filesOf("recentWorkspaces"), ElementsAre());
    load({sample("goland_clean_m040.ev2"), sample("goland_clean_m050.ev2")});
    EXPECT_THAT(filesOf("recentEvolutions"),
                ElementsAre(EndsWith("goland_clean_m050.ev2"), EndsWith("goland_clean_m040.ev2")));
    user.unsaved.push_back(Unsaved::Discard);
    user.openFiles.push_back({sample("goland.tsw")});
    choose("OpenMenu");
    EXPECT_THAT(filesOf("recentWorkspaces"), ElementsAre(EndsWith("goland.tsw")));
}

TEST_F(WindowMemory, opensAFileThatIsChosenFromTheMenu)
{
    load({sample("goland.tsw")});
    EXPECT_THAT(filesOf("recentWorkspaces"), ElementsAre(EndsWith("goland.tsw")));
    choose("mnuNewWorkspace");
    EXPECT_TRUE(window.document().evolutions().all().empty());
    auto* const menu = window.findChild<QMenu*>(QStringLiteral("recentWorkspaces"));
    Q_EMIT menu->aboutToShow();
    menu->actions().front()->trigger();
    EXPECT_THAT(window.document().path(), EndsWith("goland.tsw"));
    EXPECT_THAT(user.messages, ElementsAre());
}

TEST(FolderMemory, bringsAFileDialogToTheFolderOfTheLastChoice)
{
    const test::TemporaryFolder folder;
    const test::TemporaryFolder runs;
    runs.write("wing.evm", "1");
    QtUserInterface userInterface;
    userInterface.rememberFolders(OptionsStore(folder.file("windows.ini")));
    const auto answer = [](const QString& file) {
        QTimer::singleShot(0, [file] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            if (file.isEmpty()) {
                dialog->reject();
            } else {
                dialog->selectFile(file);
                QMetaObject::invokeMethod(dialog, "accept");
            }
        });
    };
    const FileQuestion question {"Evolutions|*.evm|", 1, false, {}};
    answer(QString::fromStdString(runs.file("wing.evm")));
    EXPECT_THAT(userInterface.askOpenFiles(question), ElementsAre(runs.file("wing.evm")));
    QString second;
    QTimer::singleShot(0, [&second] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        second = dialog->directory().absolutePath();
        dialog->reject();
    });
    QtUserInterface another;
    another.rememberFolders(OptionsStore(folder.file("windows.ini")));
    another.askOpenFiles(question);
    EXPECT_EQ(second.toStdString(), runs.path().string());
}
