// SPDX-License-Identifier: Apache-2.0

// The filter of the explorer, ticks, and several selected nodes.

#include "WndEvolExplorerFixture.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::press;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class ExplorerFilterTest : public test::WndEvolExplorerTest
{
protected:
    ExplorerFilterTest()
        : a(load("a_clean.ev2")), b(load("b_store.ev2")), c(load("c_clean.ev2")) { }

    void filter(const char* text) { test::type(explorer, "txtEvolutionFilter", text); }
    test::Texts shown()
    {
        test::Texts names;
        for (EVM* evolution : {&a, &b, &c}) {
            if (!evolutionNode(*evolution).isHidden())
                names.push_back(evolution->FileName);
        }
        return names;
    }
    test::Texts ticked()
    {
        test::Texts names;
        for (EVM* evolution : {&a, &b, &c}) {
            if (evolutionNode(*evolution).checkState(0) == Qt::Checked)
                names.push_back(evolution->FileName);
        }
        return names;
    }
    test::Texts loaded()
    {
        test::Texts names;
        for (const auto& evolution : document.evolutions().all())
            names.push_back(evolution->FileName);
        return names;
    }
    void selectAlso(EVM& evolution) { evolutionNode(evolution).setSelected(true); }

    EVM& a;
    EVM& b;
    EVM& c;
};

} // namespace

TEST_F(ExplorerFilterTest, showsWhatFits)
{
    filter("clean");
    EXPECT_THAT(shown(), ElementsAre("a_clean.ev2", "c_clean.ev2"));
    EditableParam parameters = c.Param.editable();
    parameters.mach = 0.5F;
    document.evolutions().setParameters(c, parameters);
    filter("clean mach:0.5");
    EXPECT_THAT(shown(), ElementsAre("c_clean.ev2"));
    press(test::partOf<QLineEdit>(explorer, "txtEvolutionFilter"), Qt::Key_Escape);
    EXPECT_THAT(shown(), ElementsAre("a_clean.ev2", "b_store.ev2", "c_clean.ev2"));
}

TEST_F(ExplorerFilterTest, followsChangedParametersAndLoadedFiles)
{
    filter("mach:0.5");
    EXPECT_THAT(shown(), IsEmpty());
    EditableParam parameters = b.Param.editable();
    parameters.mach = 0.5F;
    document.evolutions().setParameters(b, parameters);
    EXPECT_THAT(shown(), ElementsAre("b_store.ev2"));
    EXPECT_TRUE(evolutionNode(load("d.ev2")).isHidden());
}

TEST_F(ExplorerFilterTest, ticksAllOrNoneOfTheShownEvolutions)
{
    filter("clean");
    explorer.tickShown(true);
    EXPECT_THAT(ticked(), ElementsAre("a_clean.ev2", "c_clean.ev2"));
    filter("");
    explorer.tickShown(true);
    EXPECT_THAT(ticked(), ElementsAre("a_clean.ev2", "b_store.ev2", "c_clean.ev2"));
    explorer.tickShown(false);
    EXPECT_THAT(ticked(), IsEmpty());
}

TEST_F(ExplorerFilterTest, removesAllSelectedEvolutionsAsOneStep)
{
    document.history().clear();
    select(evolutionNode(a));
    selectAlso(c);
    choose("Remove");
    EXPECT_THAT(loaded(), ElementsAre("b_store.ev2"));
    document.history().undo();
    EXPECT_THAT(loaded(), ElementsAre("a_clean.ev2", "b_store.ev2", "c_clean.ev2"));
    EXPECT_FALSE(document.history().steps().canUndo());
}

TEST_F(ExplorerFilterTest, leavesSelectedEvolutionsAloneThatTheFilterHides)
{
    select(evolutionNode(a));
    selectAlso(b);
    filter("clean");
    EXPECT_THAT(explorer.selectedEvolutions(), ElementsAre(&a));
    choose("Remove");
    EXPECT_THAT(loaded(), ElementsAre("b_store.ev2", "c_clean.ev2"));
}

TEST_F(ExplorerFilterTest, ticksTheSelectedEvolutionsWithTheBlankKey)
{
    select(evolutionNode(a));
    selectAlso(b);
    press(tree(), Qt::Key_Space);
    EXPECT_THAT(ticked(), ElementsAre("a_clean.ev2", "b_store.ev2"));
    press(tree(), Qt::Key_Space);
    EXPECT_THAT(ticked(), IsEmpty());
}

TEST_F(ExplorerFilterTest, drawsTheSelectedEvolutionsWhenNoneIsTicked)
{
    select(evolutionNode(a));
    selectAlso(c);
    choose("Select");
    EXPECT_THAT(curves(plotAt(0)), ElementsAre("a_clean.ev2 1", "c_clean.ev2 1"));
}

TEST_F(ExplorerFilterTest, meansTheCurrentOneOfSeveralAsReference)
{
    select(evolutionNode(c));
    selectAlso(a);
    explorer.SetAsRef();
    EXPECT_EQ(document.evolutions().reference(), &c);
    EXPECT_THAT(explorer.selectedEvolutions(), ElementsAre(&a, &c));
}
