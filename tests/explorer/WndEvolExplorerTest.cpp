// SPDX-License-Identifier: Apache-2.0

// The form of the explorer and its permanent nodes.

#include "document/DateText.h"
#include "explorer/ExplorerImages.h"
#include "explorer/WndEvolExplorerFixture.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDateTime>
#include <QImage>
#include <QToolBar>

#include <gmock/gmock.h>

#include <algorithm>

using namespace tarsil;
using test::partOf;
using test::WndEvolExplorerTest;
using ::testing::ElementsAre;

TEST_F(WndEvolExplorerTest, hasItsNamesAndTitle)
{
    EXPECT_EQ(explorer.objectName().toStdString(), "wndEvolExplorer");
    EXPECT_EQ(explorer.windowTitle().toStdString(), "Modal Evolutions Explorer");
    EXPECT_EQ(test::accessibleName(tree()), "Modal Evolutions Explorer");
    EXPECT_EQ(test::accessibleName(partOf<QToolBar>(explorer, "tbrEvolExp")), "Workspace");
}

TEST_F(WndEvolExplorerTest, hasItsButtonsInOrderWithTheirToolTips)
{
    test::Texts keys;
    test::Texts toolTips;
    for (const QAction* action : partOf<QToolBar>(explorer, "tbrEvolExp").actions()) {
        if (action->isSeparator())
            continue;
        keys.push_back(action->objectName().toStdString());
        toolTips.push_back(action->toolTip().toStdString());
        EXPECT_EQ(action->text(), action->toolTip()) << "what a screen reader says";
    }
    EXPECT_THAT(keys,
                ElementsAre("New", "Open", "Save", "Add", "Remove", "Select", "AddPlot", "CopyPlot",
                            "RemovePlot"));
    EXPECT_THAT(toolTips,
                ElementsAre("New Workspace", "Open Workspace", "Save Workspace",
                            "Add Modal Evolution", "Remove Modal Evolution",
                            "Select Modal Evolution", "Insert New Plot", "Copy Active Plot",
                            "Remove Active Plot"));
}

TEST_F(WndEvolExplorerTest, drawsTheImagesOfItsButtonsAfterItsFirstFrame)
{
    const auto hasImage = [](const QAction* action) {
        return action->isSeparator() || !action->icon().pixmap(20).isNull();
    };
    const QList<QAction*> buttons = partOf<QToolBar>(explorer, "tbrEvolExp").actions();
    EXPECT_FALSE(hasImage(buttons.front()));
    explorer.show();
    const QImage first = explorer.grab().toImage();
    QApplication::processEvents();
    EXPECT_TRUE(std::all_of(buttons.begin(), buttons.end(), hasImage));
    EXPECT_NE(explorer.grab().toImage(), first);
}

TEST_F(WndEvolExplorerTest, beginsWithTheTreeOfAnUntitledWorkspace)
{
    ASSERT_EQ(tree().topLevelItemCount(), 1);
    EXPECT_EQ(tree().topLevelItem(0), &node("Root"));
    EXPECT_EQ(text(node("Root")), "Untitled (Untitled.tsw)");
    EXPECT_EQ(image(node("Root")), "workspace");
    EXPECT_TRUE(node("Root").isExpanded());
    EXPECT_THAT(childTexts(node("Root")),
                ElementsAre("General Information", "Modal Evolutions", "Plots"));
    EXPECT_THAT(childTexts(node("Gener")),
                ElementsAre("Analysis Description", "Date Created", "Date Modified"));
    for (const char* const folder : {"Gener", "Evols", "Plots"}) {
        EXPECT_EQ(node(folder).parent(), &node("Root"));
        EXPECT_EQ(image(node(folder)), "folderClosed");
        EXPECT_FALSE(node(folder).isExpanded());
    }
    for (const char* const key : {"AnaDesc", "Date_Created", "Date_Modified"}) {
        EXPECT_EQ(node(key).parent(), &node("Gener"));
        ASSERT_EQ(node(key).childCount(), 1);
        EXPECT_EQ(keyOf(valueOf(key)), QString());
    }
    EXPECT_EQ(text(valueOf("AnaDesc")), "   ");
    EXPECT_EQ(text(valueOf("Date_Modified")), "");
    EXPECT_EQ(node("Evols").childCount(), 0);
}

TEST_F(WndEvolExplorerTest, isCreatedNow)
{
    const QString before = dateText(QDateTime::currentDateTime());
    document.startNew();
    const QString after = dateText(QDateTime::currentDateTime());
    const QString created = document.texts().dateCreated;
    // The clock may tick once in between; then the date is one of the two.
    EXPECT_TRUE(created == before || created == after) << created.toStdString();
    EXPECT_EQ(text(valueOf("Date_Created")), created.toStdString());
}

TEST_F(WndEvolExplorerTest, showsTheTextsOfAWorkspace)
{
    document.setTexts({QStringLiteral("wing"), QStringLiteral("clean wing"), QStringLiteral("a"),
                       QStringLiteral("b")});
    EXPECT_EQ(text(node("Root")), "wing");
    EXPECT_EQ(text(valueOf("AnaDesc")), "clean wing");
    EXPECT_EQ(text(valueOf("Date_Created")), "a");
    EXPECT_EQ(text(valueOf("Date_Modified")), "b");
}

TEST_F(WndEvolExplorerTest, opensTheFolderInItsImage)
{
    for (const char* const folder : {"Gener", "Plots"}) {
        node(folder).setExpanded(true);
        EXPECT_EQ(image(node(folder)), "folderOpen");
        node(folder).setExpanded(false);
        EXPECT_EQ(image(node(folder)), "folderClosed");
    }
    node("AnaDesc").setExpanded(true);
    EXPECT_EQ(image(node("AnaDesc")), "") << "is no folder";
    node("Root").setExpanded(false);
    EXPECT_EQ(image(node("Root")), "workspace");
}

TEST_F(WndEvolExplorerTest, drawsEveryImageSharpAtTwiceTheDensity)
{
    ExplorerImages images;
    images.load();
    for (const char* const name :
         {"workspace", "folderClosed", "folderOpen", "mass", "evolution", "plot", "warning"}) {
        const QPixmap pixmap = images.image(QString::fromLatin1(name)).pixmap(QSize(16, 16), 2);
        EXPECT_EQ(pixmap.size(), QSize(32, 32)) << name;
    }
    EXPECT_TRUE(images.image(QString()).isNull());
}

TEST_F(WndEvolExplorerTest, announcesWhatNeedsFiles)
{
    test::Texts wanted;
    QObject::connect(&explorer, &wndEvolExplorer::newWanted, [&] { wanted.push_back("new"); });
    QObject::connect(&explorer, &wndEvolExplorer::openWanted, [&] { wanted.push_back("open"); });
    QObject::connect(&explorer, &wndEvolExplorer::saveWanted, [&] { wanted.push_back("save"); });
    QObject::connect(&explorer, &wndEvolExplorer::addWanted, [&] { wanted.push_back("add"); });
    for (const char* const key : {"New", "Open", "Save", "Add"})
        choose(key);
    EXPECT_THAT(wanted, ElementsAre("new", "open", "save", "add"));
}

TEST_F(WndEvolExplorerTest, asksForItsMenuWhereTheRightButtonWas)
{
    explorer.show();
    std::vector<QPoint> positions;
    QObject::connect(&explorer, &wndEvolExplorer::menuRequested,
                     [&](QPoint position) { positions.push_back(position); });
    const QPoint position(30, 20);
    const QPoint global = tree().viewport()->mapToGlobal(position);
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, global);
    QApplication::sendEvent(tree().viewport(), &event);
    EXPECT_THAT(positions, ElementsAre(global));
}

TEST_F(WndEvolExplorerTest, startsAnewWithTheTreeOfTheBeginning)
{
    EVM& evolution = load("a.evm");
    select(evolutionNode(evolution));
    explorer.SetAsRef();
    plots.AddSerie(*evolution.Modes[0]);
    plots.AddPlot(QStringLiteral("second"));
    plots.ActivatePlot(&plotAt(1));
    plots.AddSerie(*evolution.Modes[0]);
    plotAt(0).properties().setCaption(QStringLiteral("mine"));
    plotAt(0).properties().setVthicks(3);
    const QString old = QStringLiteral("old");
    document.setTexts({old, old, old, old});
    node("Evols").setExpanded(true);

    document.startNew();
    EXPECT_TRUE(document.evolutions().all().empty());
    EXPECT_EQ(document.evolutions().reference(), nullptr);
    EXPECT_EQ(text(node("Root")), "Untitled (Untitled.tsw)");
    EXPECT_EQ(text(valueOf("AnaDesc")), "   ");
    EXPECT_EQ(text(valueOf("Date_Modified")), "");
    EXPECT_EQ(node("Evols").childCount(), 0);
    EXPECT_EQ(image(node("Evols")), "folderClosed");
    EXPECT_THAT(childTexts(node("Plots")), ElementsAre("Plot1"));
    EXPECT_TRUE(isBold(node("Plot1")));
    ASSERT_EQ(plots.plots().size(), 1U);
    EXPECT_TRUE(plotAt(0).SeriesCollection().empty());
    EXPECT_EQ(plotAt(0).properties().vthicks(), 7) << "as in a new plot";
    EXPECT_TRUE(user.questions.empty());
}

TEST_F(WndEvolExplorerTest, startsNewWithTheAxesThatNewPlotsHave)
{
    const PlotAxes axes {{"V", 0, 100, 4}, {"f", 0, 10, 2}, {"g", 0, -1, 3}};
    document.plots().setNewPlotAxes(axes);
    document.startNew();
    EXPECT_EQ(plotAt(0).axes(), axes);
}
