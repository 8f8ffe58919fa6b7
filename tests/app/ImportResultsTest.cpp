// SPDX-License-Identifier: Apache-2.0

// Solver outputs from the menu, from the command line, and dropped on the main window.

#include "app/WndMainFixture.h"
#include "importing/DlgImport.h"
#include "solver/PrintedPages.h"
#include "support/FormParts.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTreeWidget>
#include <QUrl>

using namespace tarsil;
using test::partOf;
using test::sample;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

class ImportResults : public test::WndMainTest
{
protected:
    /// A summary of one analysis.
    std::string writeSummary(std::string_view name) const
    {
        return folder.write(name, test::printed({.rows = {test::row("1.0E+02")}}));
    }

    /// Null when the dialog is not on the screen.
    dlgImport* dialog()
    {
        auto* const found = window.findChild<dlgImport*>();
        return found != nullptr && found->isVisible() ? found : nullptr;
    }

    std::vector<std::string> listedFiles()
    {
        std::vector<std::string> names;
        const auto& tree = partOf<QTreeWidget>(*dialog(), "treAnalyses");
        for (int i = 0; i < tree.topLevelItemCount(); ++i)
            names.push_back(tree.topLevelItem(i)->text(0).toStdString());
        return names;
    }

    void drop(const std::vector<std::string>& paths)
    {
        QList<QUrl> urls;
        for (const std::string& path : paths)
            urls.append(QUrl::fromLocalFile(QString::fromStdString(path)));
        QMimeData data;
        data.setUrls(urls);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        static_cast<QObject&>(window).event(&event); // no drag source
        QApplication::processEvents();
    }

    std::size_t evolutions() { return window.document().evolutions().all().size(); }
};

} // namespace

TEST_F(ImportResults, openTheDialogFromTheMenu)
{
    load();
    choose("ImportMenu"); // cancelled
    EXPECT_EQ(dialog(), nullptr);
    user.openFiles = {{writeSummary("wing.f06"), writeSummary("tail.f06")}};
    choose("ImportMenu");
    ASSERT_NE(dialog(), nullptr);
    EXPECT_THAT(listedFiles(), ElementsAre("wing.f06", "tail.f06"));
    EXPECT_TRUE(user.fileQuestions.back().takesSeveral);
}

TEST_F(ImportResults, openTheDialogFromTheCommandLine)
{
    load({writeSummary("wing.f06"), sample("goland_clean_m040.ev2"), writeSummary("plain")});
    ASSERT_NE(dialog(), nullptr);
    EXPECT_THAT(listedFiles(), ElementsAre("wing.f06", "plain"));
    EXPECT_EQ(evolutions(), 1U);
}

TEST_F(ImportResults, openTheDialogWhenTheyAreDropped)
{
    load();
    drop({writeSummary("wing.f06"), sample("goland_clean_m040.ev2")});
    ASSERT_NE(dialog(), nullptr);
    EXPECT_THAT(listedFiles(), ElementsAre("wing.f06"));
    EXPECT_EQ(evolutions(), 1U);
    drop({writeSummary("tail.f06")});
    EXPECT_THAT(listedFiles(), ElementsAre("wing.f06", "tail.f06"));
}

TEST_F(ImportResults, areAcceptedByTheWindowAndOtherThingsAreNot)
{
    load();
    const auto isTaken = [this](const QMimeData& data) {
        QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        static_cast<QObject&>(window).event(&event);
        return event.isAccepted();
    };
    QMimeData data;
    data.setText(QStringLiteral("words"));
    EXPECT_FALSE(isTaken(data));
    data.setUrls({QUrl(QStringLiteral("https://example.org/wing.f06"))});
    EXPECT_FALSE(isTaken(data));
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/runs/wing.f06"))});
    EXPECT_TRUE(isTaken(data));
}

TEST_F(ImportResults, goIntoTheExplorer)
{
    load({writeSummary("wing.f06")});
    partOf<QComboBox>(*dialog(), "cboSpeed").setCurrentIndex(1);
    test::click(*dialog(), "btnImport");
    QApplication::processEvents();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(evolutions(), 1U);
    EXPECT_EQ(
        window.findChild<QTreeWidget*>(QStringLiteral("tvwEvolExplorer"))
            ->findItems(QStringLiteral("wing_s1_M0.30.ev2"), Qt::MatchExactly | Qt::MatchRecursive)
            .size(),
        1);
    EXPECT_THAT(user.note, HasSubstr("imported"));
}

TEST_F(ImportResults, areRefusedWhenTheyHoldNoSummary)
{
    load({folder.write("notes.txt", "notes\n")});
    EXPECT_EQ(dialog(), nullptr);
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, HasSubstr("notes.txt contains no flutter summary"));
}

TEST_F(ImportResults, leaveWorkspacesToThemselves)
{
    load();
    drop({sample("goland.tsw"), writeSummary("wing.f06")});
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(window.document().path(), sample("goland.tsw"));
}

TEST_F(ImportResults, areNoFoldersAndNothing)
{
    load();
    drop({folder.path().string()});
    drop({folder.file("gone.f06")});
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(ImportResults, readAnAircraftFileThatIsDropped)
{
    load();
    drop({sample("goland.inp"), sample("goland_clean_m040.ev2")});
    EXPECT_EQ(window.document().airplane().Filename, sample("goland.inp"));
    EXPECT_FALSE(window.document().airplane().MassConfs.empty());
    EXPECT_EQ(window.document().evolutions().all().size(), 1U);
    EXPECT_TRUE(user.messages.empty());
}
