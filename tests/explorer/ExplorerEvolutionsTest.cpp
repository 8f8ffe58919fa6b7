// SPDX-License-Identifier: Apache-2.0

// The nodes of the modal evolutions.

#include "explorer/WndEvolExplorerFixture.h"

#include <gmock/gmock.h>

#include <set>

using namespace tarsil;
using test::WndEvolExplorerTest;
using ::testing::ElementsAre;

TEST_F(WndEvolExplorerTest, listsAnEvolutionWithItsParameters)
{
    EVM& evolution = load("a.evm", {3, 5, 9});
    QTreeWidgetItem& item = evolutionNode(evolution);
    EXPECT_EQ(item.parent(), &node("Evols"));
    EXPECT_EQ(text(item), "a.evm");
    EXPECT_EQ(taggedEvolution(&item), &evolution);
    EXPECT_EQ(item.checkState(0), Qt::Unchecked);
    EXPECT_TRUE(item.flags().testFlag(Qt::ItemIsUserCheckable));
    EXPECT_EQ(image(item), "evolution");
    EXPECT_THAT(childTexts(item),
                ElementsAre("Airplane", "Mass Conf.", "Mach No.", "Method", "Legend"));
    const std::string key = evolution.path();
    EXPECT_THAT(childTexts(node(key + "_airplane")), ElementsAre("WING"));
    EXPECT_THAT(childTexts(node(key + "_mass")), ElementsAre("CLEAN"));
    EXPECT_THAT(childTexts(node(key + "_mach")), ElementsAre("0.78"));
    EXPECT_THAT(childTexts(node(key + "_method")), ElementsAre("PK"));
    EXPECT_THAT(childTexts(node(key + "_legend")), ElementsAre("Mode 3", "Mode 5", "Mode 9"));
    EXPECT_EQ(image(node(key + "_mass")), "mass");
    EXPECT_EQ(image(node(key + "_mach")), "");
    EXPECT_EQ(taggedEvolution(&node(key + "_mach")), nullptr);
}

TEST_F(WndEvolExplorerTest, listsWhereAnImportedEvolutionComesFrom)
{
    OwnedEvolutions loaded;
    EVM& evolution = *loaded.emplace_back(std::make_unique<EVM>());
    evolution.FileName = "wing_s1.ev2";
    evolution.solverVersion = "MSC Nastran  3/11/18";
    evolution.provenance = {"/runs/wing.f06", "12-480", "ft/s", "1", "ratio", "a row; a cut"};
    document.evolutions().add(std::move(loaded));
    EXPECT_THAT(childTexts(evolutionNode(evolution)),
                ElementsAre("Airplane", "Mass Conf.", "Mach No.", "Method", "Legend",
                            "Imported From", "Solver", "Printed Units", "Import Log"));
    const std::string key = evolution.path();
    EXPECT_THAT(childTexts(node(key + "_source")), ElementsAre("/runs/wing.f06", "lines 12-480"));
    EXPECT_THAT(childTexts(node(key + "_solver")), ElementsAre("MSC Nastran  3/11/18"));
    EXPECT_THAT(childTexts(node(key + "_units")),
                ElementsAre("speed: ft/s", "vref: 1", "density: ratio"));
    EXPECT_THAT(childTexts(node(key + "_importlog")), ElementsAre("a row", "a cut"));
    EXPECT_FALSE(retype(valueOf(key + "_source"), "elsewhere"));
}

TEST_F(WndEvolExplorerTest, listsTheModificationsAsTheyAre)
{
    OwnedEvolutions loaded;
    EVM& evolution = *loaded.emplace_back(std::make_unique<EVM>());
    evolution.FileName = "wing_tracked.ev2";
    document.evolutions().add(std::move(loaded));
    EXPECT_THAT(childTexts(evolutionNode(evolution)),
                ElementsAre("Airplane", "Mass Conf.", "Mach No.", "Method", "Legend"));
    EVM state;
    state.Param.modifications.add("1", "modes 4 and 5 exchanged above 382.23 KEAS (by hand)");
    document.evolutions().takePoints(evolution, state);
    EXPECT_THAT(childTexts(node(evolution.path() + "_modifications")),
                ElementsAre("modes 4 and 5 exchanged above 382.23 KEAS (by hand)"));
    document.evolutions().takePoints(evolution, EVM());
    EXPECT_THAT(childTexts(node(evolution.path() + "_modifications")), ElementsAre());
}

TEST_F(WndEvolExplorerTest, listsNoEvolutionTwice)
{
    load("a.evm");
    explorer.FillEvolsNode();
    EXPECT_THAT(childTexts(node("Evols")), ElementsAre("a.evm"));
    load("b.evm");
    explorer.FillEvolsNode();
    EXPECT_THAT(childTexts(node("Evols")), ElementsAre("a.evm", "b.evm"));
}

TEST_F(WndEvolExplorerTest, listsWhatWasLoadedBeforeItself)
{
    load("a.evm");
    wndEvolExplorer later(document, plots, user);
    EXPECT_EQ(test::partOf<QTreeWidget>(later, "tvwEvolExplorer")
                  .findItems(QStringLiteral("a.evm"), Qt::MatchExactly | Qt::MatchRecursive)
                  .size(),
              1);
}

TEST_F(WndEvolExplorerTest, keepsEvolutionsOfOnePathApart)
{
    load("a.evm");
    load("a.evm");
    load("a.evm");
    EXPECT_THAT(childTexts(node("Evols")), ElementsAre("a.evm", "a.evm", "a.evm"));
    std::set<std::string> keys;
    for (int i = 0; i < 3; ++i)
        keys.insert(keyOf(*node("Evols").child(i)).toStdString());
    EXPECT_EQ(keys.size(), 3U);
}

TEST_F(WndEvolExplorerTest, listsAThousandEvolutionsInTheirOrder)
{
    for (int i = 0; i < 1000; ++i)
        load(std::to_string(i) + ".evm");
    ASSERT_EQ(node("Evols").childCount(), 1000);
    for (const int i : {0, 1, 500, 999})
        EXPECT_EQ(text(*node("Evols").child(i)), std::to_string(i) + ".evm");
}

TEST_F(WndEvolExplorerTest, knowsTheEvolutionOfTheSelectedNodeOrOneAbove)
{
    EVM& a = load("a.evm");
    EVM& b = load("b.evm");
    EXPECT_EQ(explorer.selectedEvolution(), nullptr) << "nothing is selected";
    select(evolutionNode(b));
    EXPECT_EQ(explorer.selectedEvolution(), &b);
    EXPECT_EQ(explorer.evolutionOfSelectedNode(), &b);
    select(node(a.path() + "_mach"));
    EXPECT_EQ(explorer.selectedEvolution(), &a);
    EXPECT_EQ(explorer.evolutionOfSelectedNode(), nullptr);
    select(valueOf(a.path() + "_mach"));
    EXPECT_EQ(explorer.selectedEvolution(), &a);
    for (const char* const key : {"Root", "Evols", "Plots", "Plot1", "AnaDesc"}) {
        select(node(key));
        EXPECT_EQ(explorer.selectedEvolution(), nullptr) << key;
    }
}

TEST_F(WndEvolExplorerTest, showsTheReferenceEvolutionBold)
{
    EVM& a = load("a.evm");
    EVM& b = load("b.evm");
    select(evolutionNode(a));
    explorer.SetAsRef();
    explorer.SetAsRef(); // is already
    EXPECT_EQ(document.evolutions().reference(), &a);
    EXPECT_TRUE(isBold(evolutionNode(a)));
    EXPECT_FALSE(isBold(evolutionNode(b)));
    select(valueOf(b.path() + "_mass"));
    explorer.SetAsRef();
    EXPECT_EQ(document.evolutions().reference(), &b);
    EXPECT_FALSE(isBold(evolutionNode(a)));
    EXPECT_TRUE(isBold(evolutionNode(b)));
}

TEST_F(WndEvolExplorerTest, keepsTheReferenceEvolutionWhenNoneIsSelected)
{
    EVM& a = load("a.evm");
    select(evolutionNode(a));
    explorer.SetAsRef();
    select(node("Root"));
    explorer.SetAsRef();
    EXPECT_EQ(document.evolutions().reference(), &a);
    EXPECT_THAT(user.messages, ElementsAre(test::noEvolution));
}
