// SPDX-License-Identifier: Apache-2.0

// The Data Control window together with the others: a typical session in the main window.

#include "app/WndMainFixture.h"

#include "datacontrol/SeriesGridModel.h"
#include "datacontrol/SeriesGridView.h"
#include "datacontrol/WndData.h"
#include "explorer/WndEvolExplorer.h"
#include "plot/Marker.h"
#include "support/FormParts.h"

#include <QComboBox>
#include <QTreeWidget>

#include <gmock/gmock.h>

using namespace tarsil;
using test::partOf;
using test::sample;
using test::WndMainTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class DataControl : public WndMainTest
{
protected:
    DataControl()
    {
        OptionsStore(folder.file("tarsil.ini"))
            .write({QString::fromStdString(sample("goland.inp")), {}, {}, {}, {}, {}}, {});
        load();
    }

    void add(const std::vector<std::string>& files)
    {
        user.openFiles.push_back(files);
        choose("AddMenu");
    }
    QTreeWidgetItem& evolutionNode(int index)
    {
        auto& tree = partOf<QTreeWidget>(window.explorer(), "tvwEvolExplorer");
        return *tree.topLevelItem(0)->child(1)->child(index);
    }
    void selectNode(int index)
    {
        evolutionNode(index).treeWidget()->setCurrentItem(&evolutionNode(index));
    }
    wndData& data() { return partOf<wndData>(window, "wndData"); }
    QAbstractItemModel& rows() { return *partOf<SeriesGridView>(data(), "flxSerieViewer").model(); }
    std::vector<std::string> column(SeriesColumn column)
    {
        std::vector<std::string> texts;
        for (int row = 0; row < rows().rowCount(); ++row)
            texts.push_back(
                rows().index(row, static_cast<int>(column)).data().toString().toStdString());
        return texts;
    }
};

} // namespace

TEST_F(DataControl, offersTheMechanismsOfTheOptions)
{
    auto& list = partOf<QComboBox>(data(), "cmbFlutMech");
    ASSERT_EQ(list.count(), 3); // of the sample
    EXPECT_EQ(list.itemText(0), QStringLiteral("BEND-TORS"));
    list.setCurrentIndex(0);
    Q_EMIT list.activated(0);
    EXPECT_EQ(plot().axes().bounds(), (PlotBounds {0, 450, 0, 20, 0, -0.25F}));
    EXPECT_EQ(plot().properties().vthicks(), 9);
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(DataControl, showsTheCurvesThatTheExplorerAddsAndLetsGo)
{
    add({sample("goland_clean_m040.ev2"), sample("goland_tipstore_m040.ev2")});
    EXPECT_EQ(rows().rowCount(), 0);
    evolutionNode(0).setCheckState(0, Qt::Checked);
    evolutionNode(1).setCheckState(0, Qt::Checked);
    window.findChild<QAction*>(QStringLiteral("Select"))->trigger();
    EXPECT_THAT(column(SeriesColumn::Evolution),
                ElementsAre("goland_clean_m040.ev2", "goland_tipstore_m040.ev2"));
    EXPECT_THAT(column(SeriesColumn::Mode), ElementsAre("1", "1"));
    EXPECT_EQ(plot().SeriesCollection().front().MarkerStyle, markerNumber(MarkerKind::ModeNumber));
    selectNode(0);
    window.findChild<QAction*>(QStringLiteral("Remove"))->trigger();
    EXPECT_THAT(column(SeriesColumn::Evolution), ElementsAre("goland_tipstore_m040.ev2"));
}

TEST_F(DataControl, fillsTitleAndReferenceSpeedsFromTheReferenceEvolution)
{
    add({sample("goland_tipstore_m040.ev2")});
    selectNode(0);
    choose("popSetRefEvol");
    test::click(data(), "btnMakHead");
    test::click(data(), "btnAutoRef");
    EXPECT_THAT(user.messages, IsEmpty());
    EXPECT_EQ(plot().Header().Text(),
              QStringLiteral("GOLAND WING - Configuration TIP_STORE\r\n"
                             "PK Method - Mach No. 0.40\r\n"));
    // From samples/goland.inp: the ceiling at Mach 0.40, the dive speed and the limit speed.
    ASSERT_EQ(plot().parts().velAxis.marks().size(), 3U);
    EXPECT_EQ(plot().parts().velAxis.marks()[0].Speed, 113.8F);
    EXPECT_EQ(plot().parts().velAxis.marks()[1].Speed, 210);
    EXPECT_EQ(plot().parts().velAxis.marks()[2].Caption, QStringLiteral("       VL"));
}

TEST_F(DataControl, losesTheReferenceWithItsEvolution)
{
    add({sample("goland_clean_m040.ev2")});
    selectNode(0);
    choose("popSetRefEvol");
    user.unsaved = {Unsaved::Discard};
    choose("mnuNewWorkspace");
    test::click(data(), "btnMakHead");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text, "Please select a reference modal evolution.");
}

TEST_F(DataControl, showsTheRowsOfAnOpenedWorkspace)
{
    user.openFiles.push_back({sample("goland.tsw")});
    choose("OpenMenu");
    EXPECT_THAT(user.messages, IsEmpty());
    EXPECT_EQ(static_cast<std::size_t>(rows().rowCount()), plot().SeriesCollection().size());
    EXPECT_GT(rows().rowCount(), 0);
    window.evolPlot().ActivatePlot(window.evolPlot().plots().back());
    EXPECT_EQ(static_cast<std::size_t>(rows().rowCount()), plot().SeriesCollection().size());
}

TEST_F(DataControl, countsWhatIsTypedAsAChangeOfTheWorkspace)
{
    user.openFiles.push_back({sample("goland.tsw")});
    choose("OpenMenu");
    rows().setData(rows().index(0, static_cast<int>(SeriesColumn::Legend)), QStringLiteral("new"),
                   Qt::EditRole);
    choose("mnuNewWorkspace");
    EXPECT_EQ(user.questions.size(), 1U);
    EXPECT_GT(rows().rowCount(), 0) << "the answer was no";
}

TEST_F(DataControl, commitsWhatIsBeingTypedBeforeItIsAskedAboutOrSaved)
{
    user.openFiles.push_back({sample("goland.tsw")});
    choose("OpenMenu");
    auto& grid = partOf<SeriesGridView>(data(), "flxSerieViewer");
    const auto startTyping = [&](const QString& text) {
        grid.setCurrentIndex(rows().index(0, static_cast<int>(SeriesColumn::Legend)));
        grid.edit(grid.currentIndex());
        test::openEditor(grid)->setText(text);
    };
    for (const char* command : {"mnuNewWorkspace", "OpenMenu", "QuitMenu"}) {
        startTyping(QString::fromLatin1(command));
        user.questions.clear();
        choose(command);
        EXPECT_EQ(user.questions.size(), 1U) << command;
        EXPECT_TRUE(window.isVisible()) << "the answer was no";
    }
    startTyping(QStringLiteral("typed last"));
    user.saveFiles.push_back(folder.file("case.tsw"));
    choose("mnuSaveWorkspace");
    EXPECT_THAT(test::fileBytes(folder.file("case.tsw")), ::testing::HasSubstr("typed last"));
}

TEST_F(DataControl, commitsALabelThatIsBeingTypedToo)
{
    auto& tree = partOf<QTreeWidget>(window.explorer(), "tvwEvolExplorer");
    QTreeWidgetItem* const description = tree.topLevelItem(0)->child(0)->child(0)->child(0);
    tree.expandAll();
    tree.setCurrentItem(description);
    tree.editItem(description);
    test::openEditor(tree)->setText(QStringLiteral("an hour of typing"));
    choose("mnuNewWorkspace");
    EXPECT_EQ(user.questions.size(), 1U);
    EXPECT_EQ(window.document().texts().description, QStringLiteral("an hour of typing"));
}
