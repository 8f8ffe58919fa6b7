// SPDX-License-Identifier: Apache-2.0

// The buttons "Remove" and "Select" of the explorer.

#include "explorer/WndEvolExplorerFixture.h"
#include "support/Errors.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::errorNumberOf;
using test::WndEvolExplorerTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(WndEvolExplorerTest, removesTheSelectedEvolutionAndItsSeriesFromEveryPlot)
{
    EVM& a = load("a.evm", {1, 2});
    EVM& b = load("b.evm");
    plots.AddSerie(*a.Modes[1]);
    plots.AddSerie(*b.Modes[0]);
    plots.ActivatePlot(&plots.AddPlot(QString()));
    plots.AddSerie(*a.Modes[0]);
    plotAt(0).rows().add(Series()); // a series without a mode stays
    select(evolutionNode(a));
    choose("Remove");
    ASSERT_EQ(document.evolutions().all().size(), 1U);
    EXPECT_EQ(document.evolutions().all()[0].get(), &b);
    EXPECT_THAT(childTexts(node("Evols")), ElementsAre("b.evm"));
    ASSERT_EQ(plotAt(0).SeriesCollection().size(), 2U);
    EXPECT_EQ(plotAt(0).SeriesCollection()[0].Mode, b.Modes[0].get());
    EXPECT_EQ(plotAt(0).SeriesCollection()[1].Mode, nullptr);
    EXPECT_TRUE(plotAt(1).SeriesCollection().empty());
}

TEST_F(WndEvolExplorerTest, endsTheNoteOfTheCommandBefore)
{
    user.note = "The picture is in /wing.emf";
    choose("RemovePlot");
    EXPECT_EQ(user.note, "");
}

TEST_F(WndEvolExplorerTest, removesTheRowsWithoutACurveWithTheirEvolutionFromEveryPlot)
{
    EVM& a = load("a.evm");
    plots.AddSerie(*a.Modes[0]);
    plotAt(0).rows().setMode(plotAt(0).rows().at(0).id, 9);
    plots.ActivatePlot(&plots.AddPlot(QString()));
    int changed = 0;
    QObject::connect(&plotAt(0), &EvmPlot::changed, [&changed] { ++changed; });
    select(evolutionNode(a));
    choose("Remove");
    EXPECT_EQ(plotAt(0).rows().count(), 0U);
    EXPECT_GT(changed, 0) << "its grid hears of it";
}

TEST_F(WndEvolExplorerTest, drawsThePlotsAgainThatLostSeries)
{
    EVM& a = load("a.evm");
    plots.AddSerie(*a.Modes[0]);
    plotAt(0).plot();
    const QImage withCurve = plotAt(0).Image();
    select(evolutionNode(a));
    choose("Remove");
    EXPECT_NE(plotAt(0).Image(), withCurve);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(WndEvolExplorerTest, removesAnEvolutionAlsoWhenAPlotCannotBeDrawn)
{
    EVM& a = load("a.evm");
    plots.AddSerie(*a.Modes[0]);
    plots.AddSerie(*load("long.evm").Modes[0]);
    document.evolutions().all()[1]->Modes[0]->Points.resize(
        32768); // more points than a canvas draws
    select(evolutionNode(a));
    choose("Remove");
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(document.evolutions().all().size(), 1U);
    EXPECT_THAT(childTexts(node("Evols")), ElementsAre("long.evm"));
    EXPECT_EQ(errorNumberOf([this] { plotAt(0).Image(); }), ErrorNumber::Overflow)
        << "is reported by the window of the plot when it draws";
}

TEST_F(WndEvolExplorerTest, namesItsChangesAsStepsThatCanBeUndone)
{
    EVM& a = load("a.evm");
    document.history().clear();
    const auto lastStep = [this] { return document.history().steps().undoText().toStdString(); };
    tick(evolutionNode(a));
    choose("Select");
    EXPECT_EQ(lastStep(), "Select Modal Evolution");
    choose("AddPlot");
    EXPECT_EQ(lastStep(), "Insert New Plot");
    select(evolutionNode(a));
    choose("Remove");
    EXPECT_EQ(lastStep(), "Remove Modal Evolution");
    EXPECT_TRUE(plotAt(0).rows().isEmpty());
    document.history().undo();
    EXPECT_THAT(childTexts(node("Evols")), ElementsAre("a.evm"));
    EXPECT_EQ(plotAt(0).rows().count(), 1U);
    document.history().undo();
    EXPECT_EQ(document.plots().all().size(), 1U);
    document.history().undo();
    EXPECT_TRUE(plotAt(0).rows().isEmpty());
}

TEST_F(WndEvolExplorerTest, removesTheReferenceEvolutionAsSuch)
{
    EVM& a = load("a.evm");
    select(evolutionNode(a));
    explorer.SetAsRef();
    choose("Remove");
    EXPECT_EQ(document.evolutions().reference(), nullptr);
    EXPECT_FALSE(isBold(evolutionNode(load("a.evm")))) << "it has come again as any other";
}

TEST_F(WndEvolExplorerTest, removesNothingWhenNoEvolutionIsSelected)
{
    load("a.evm");
    select(node("Evols"));
    choose("Remove");
    EXPECT_EQ(document.evolutions().all().size(), 1U);
    EXPECT_THAT(user.messages, ElementsAre(test::noEvolution));
}

TEST_F(WndEvolExplorerTest, listsAnEvolutionAgainThatIsLoadedAgain)
{
    EVM& a = load("a.evm");
    select(evolutionNode(a));
    choose("Remove");
    load("a.evm");
    EXPECT_THAT(childTexts(node("Evols")), ElementsAre("a.evm"));
}

TEST_F(WndEvolExplorerTest, drawsTheFirstModeOfEachTickedEvolution)
{
    EVM& a = load("a.evm", {7, 8});
    EVM& b = load("b.evm");
    EVM& c = load("c.evm", {2});
    tick(evolutionNode(c));
    tick(evolutionNode(a));
    select(evolutionNode(b));
    const QImage empty = plotAt(0).Image();
    choose("Select");
    EXPECT_THAT(curves(plotAt(0)), ElementsAre("a.evm 7", "c.evm 2"));
    EXPECT_NE(plotAt(0).Image(), empty);
    choose("Select");
    EXPECT_EQ(plotAt(0).SeriesCollection().size(), 4U) << "the boxes stay ticked";
}

TEST_F(WndEvolExplorerTest, drawsTheSelectedEvolutionWhenNoneIsTicked)
{
    load("a.evm");
    EVM& b = load("b.evm");
    choose("Select");
    EXPECT_THAT(curves(plotAt(0)), IsEmpty());
    select(evolutionNode(b));
    choose("Select");
    EXPECT_THAT(curves(plotAt(0)), ElementsAre("b.evm 1"));
}

TEST_F(WndEvolExplorerTest, addsNoCurveWhenATickedEvolutionHasNoModes)
{
    EVM& a = load("a.evm");
    EVM& none = load("none.evm", {});
    tick(evolutionNode(a));
    tick(evolutionNode(none));
    choose("Select");
    EXPECT_THAT(curves(plotAt(0)), IsEmpty());
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text,
              "Error # 9 was generated by wndEvolExplorer in Module wndEvolExplorer\r"
              "Subscript out of range: mode 1 of \"none.evm\", which has no modes");
}

TEST_F(WndEvolExplorerTest, asksOnceForAPlotWhenNoneIsActive)
{
    EVM& a = load("a.evm");
    EVM& b = load("b.evm");
    tick(evolutionNode(a));
    tick(evolutionNode(b));
    plots.ActivatePlot(nullptr);
    choose("Select");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text, "Please select activate a plot.");
    EXPECT_THAT(curves(plotAt(0)), IsEmpty());
}
