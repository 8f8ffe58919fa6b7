// SPDX-License-Identifier: Apache-2.0

// The nodes of the plots, and the buttons that add and remove plots.

#include "explorer/WndEvolExplorerFixture.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::WndEvolExplorerTest;
using ::testing::ElementsAre;

TEST_F(WndEvolExplorerTest, listsThePlotsAndShowsTheActiveOneBold)
{
    EXPECT_THAT(childTexts(node("Plots")), ElementsAre("Plot1"));
    EXPECT_EQ(image(node("Plot1")), "plot");
    EXPECT_EQ(taggedPlot(&node("Plot1")), &plotAt(0));
    EXPECT_EQ(taggedEvolution(&node("Plot1")), nullptr);
    EXPECT_TRUE(isBold(node("Plot1")));
    choose("AddPlot");
    EXPECT_THAT(childTexts(node("Plots")), ElementsAre("Plot1", "Plot2"));
    EXPECT_EQ(plots.ActivePlot(), &plotAt(0)) << "a new plot is not active";
    EXPECT_FALSE(isBold(node("Plot2")));
    plots.ActivatePlot(&plotAt(1));
    EXPECT_FALSE(isBold(node("Plot1")));
    EXPECT_TRUE(isBold(node("Plot2")));
    plots.ActivatePlot(nullptr);
    EXPECT_FALSE(isBold(node("Plot2")));
}

TEST_F(WndEvolExplorerTest, opensTheFolderOfANewPlot)
{
    EXPECT_FALSE(node("Plots").isExpanded());
    choose("AddPlot");
    EXPECT_TRUE(node("Plots").isExpanded()) << "nothing else shows that there is one more";
    node("Plots").setExpanded(false);
    choose("CopyPlot");
    EXPECT_TRUE(node("Plots").isExpanded());
    document.startNew();
    EXPECT_FALSE(node("Plots").isExpanded());
}

TEST_F(WndEvolExplorerTest, scrollsToANewPlot)
{
    for (int i = 0; i < 30; ++i)
        load("case" + std::to_string(i) + ".evm");
    explorer.resize(300, 200);
    explorer.show();
    const auto isSeen = [this](const char* caption) {
        const QRect area = tree().visualItemRect(&node(caption));
        return area.isValid() && tree().viewport()->rect().contains(area.center());
    };
    tree().scrollToTop();
    ASSERT_FALSE(isSeen("Plot1"));
    choose("AddPlot");
    EXPECT_TRUE(isSeen("Plot2"));
    EXPECT_EQ(user.note, "Added the plot \"Plot2\". Double-click it to show it");
    tree().scrollToTop();
    choose("CopyPlot");
    EXPECT_TRUE(isSeen("Plot1(3)"));
}

TEST_F(WndEvolExplorerTest, copiesTheActivePlot)
{
    plotAt(0).properties().setVthicks(3);
    choose("CopyPlot");
    EXPECT_THAT(childTexts(node("Plots")), ElementsAre("Plot1", "Plot1(2)"));
    EXPECT_EQ(plotAt(1).properties().vthicks(), 3);
    plots.ActivatePlot(nullptr);
    choose("CopyPlot");
    EXPECT_EQ(node("Plots").childCount(), 2);
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text, "Please select activate a plot.");
}

TEST_F(WndEvolExplorerTest, copiesTheTextThatIsBeingTypedIntoTheActivePlot)
{
    typeLegend("typed");
    choose("CopyPlot");
    EXPECT_EQ(plotAt(1).Legend().Text().toStdString(), "typed");
}

TEST_F(WndEvolExplorerTest, leavesNothingThatIsBeingTypedInANewWorkspace)
{
    QTextEdit& editor = typeLegend("typed");
    document.startNew();
    EXPECT_TRUE(editor.parentWidget()->isHidden());
    plotAt(0).commitEdits();
    EXPECT_EQ(plotAt(0).Legend().Text().toStdString(), "");
}

TEST_F(WndEvolExplorerTest, removesTheActivePlotButNotTheFirst)
{
    choose("AddPlot");
    plots.ActivatePlot(&plotAt(1));
    choose("RemovePlot");
    EXPECT_THAT(childTexts(node("Plots")), ElementsAre("Plot1"));
    EXPECT_TRUE(isBold(node("Plot1")));
    choose("RemovePlot");
    EXPECT_THAT(childTexts(node("Plots")), ElementsAre("Plot1"));
    EXPECT_EQ(plots.plots().size(), 1U);
    plots.ActivatePlot(nullptr);
    choose("RemovePlot");
    EXPECT_THAT(childTexts(node("Plots")), ElementsAre("Plot1"));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(WndEvolExplorerTest, givesAPlotACaptionOfItsOwn)
{
    plotAt(0).properties().setCaption(QStringLiteral("Plot2"));
    choose("AddPlot"); // would be Plot2 too
    EXPECT_THAT(childTexts(node("Plots")), ElementsAre("Plot2", "Plot2(2)"));
    EXPECT_EQ(plotAt(1).properties().Caption().toStdString(), "Plot2(2)");
    plots.AddPlot(QStringLiteral("Plot2"));
    EXPECT_EQ(plotAt(2).properties().Caption().toStdString(), "Plot2(3)");
    plots.AddPlot(QStringLiteral("free"));
    EXPECT_EQ(plotAt(3).properties().Caption().toStdString(), "free");
}

TEST_F(WndEvolExplorerTest, followsTheCaptionsOfThePlots)
{
    plotAt(0).properties().setCaption(QStringLiteral("first"));
    EXPECT_THAT(childTexts(node("Plots")), ElementsAre("first"));
    EXPECT_EQ(taggedPlot(&node("first")), &plotAt(0));
}

TEST_F(WndEvolExplorerTest, makesTheActivatedPlotTheActiveOne)
{
    choose("AddPlot");
    Q_EMIT tree().itemActivated(&node("Plot2"), 0); // a double click, or Enter
    EXPECT_EQ(plots.ActivePlot(), &plotAt(1));
}
