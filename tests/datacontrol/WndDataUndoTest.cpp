// SPDX-License-Identifier: Apache-2.0

// Undo and redo of the commands of the Data Control window.

#include "WndDataFixture.h"

#include "document/PlotState.h"
#include "document/UndoHistory.h"

#include <QComboBox>
#include <QMenu>
#include <QRadioButton>
#include <QToolButton>

#include <gmock/gmock.h>

#include <functional>
#include <utility>
#include <vector>

using namespace tarsil;
using test::partOf;
using ::testing::ElementsAre;

namespace {

class WndDataUndo : public test::WndDataTest
{
protected:
    /// Three rows with the markers of the window, and a reference evolution.
    WndDataUndo()
    {
        EVM& evolution = load("a.ev2");
        evolution.Param.legends.add("1", "clean wing");
        for (std::size_t mode = 1; mode <= 3; ++mode)
            add(evolution, mode);
        setReference(evolution);
    }
    std::pair<PlotState, PlotRows::Rows> stateAndRows()
    {
        return {stateOf(plot()), plot().rows().all()};
    }
    void moveBy(int action)
    {
        partOf<QToolButton>(data, "btnSerieMove").menu()->actions().at(action)->trigger();
    }
    void clickOption(const char* name) { partOf<QRadioButton>(data, name).click(); }
    void chooseMechanism(int index)
    {
        auto& box = partOf<QComboBox>(data, "cmbFlutMech");
        box.setCurrentIndex(index);
        Q_EMIT box.activated(index);
    }
};

} // namespace

TEST_F(WndDataUndo, undoesEveryCommandInOneStep)
{
    select(1, 2, SeriesColumn::Mode);
    const std::vector<std::pair<const char*, std::function<void()>>> steps = {
        {"Lower Modes", [this] { click("cmdDecMode"); }},
        {"Raise Modes", [this] { click("cmdIncMode"); }},
        {"Mode", [this] { type(0, SeriesColumn::Mode, "9"); }},
        {"Tag", [this] { type(1, SeriesColumn::Tag, "B"); }},
        {"Legend Text", [this] { type(1, SeriesColumn::Legend, "torsion"); }},
        {"Move Rows", [this] { partOf<QToolButton>(data, "btnSerieMove").click(); }},
        {"Move Rows", [this] { moveBy(1); }},
        {"Move Rows", [this] { moveBy(2); }},
        {"Reset Colors", [this] { click("btnResColor"); }},
        {"Move Rows", [this] { moveBy(3); }},
        {"Marker Options", [this] { clickOption("womkBtn"); }},
        {"Marker Options", [this] { clickOption("tagBtn"); }},
        {"Marker Options", [this] { test::type(data, "mksizeInp", "12"); }},
        {"Fill Legend", [this] { click("btnFilltLeg"); }},
        {"Plot Legend", [this] { click("btnPlotLeg"); }},
        {"Header", [this] { click("btnMakHead"); }},
        {"Reference Speeds", [this] { click("btnAutoRef"); }},
        {"Flutter Mechanism", [this] { chooseMechanism(0); }},
        {"Fit Frequency Axis", [this] { click("btnFitFreq"); }},
        {"Remove Rows", [this] { click("cmdRemove"); }}};
    for (const auto& [name, command] : steps) {
        const std::string where = name;
        history.clear();
        const auto before = stateAndRows();
        command();
        ASSERT_EQ(history.steps().count(), 1) << where;
        EXPECT_EQ(history.steps().undoText(), QString::fromLatin1(name));
        const auto after = stateAndRows();
        history.undo();
        EXPECT_EQ(stateAndRows(), before) << where;
        history.redo();
        EXPECT_EQ(stateAndRows(), after) << where;
    }
}

TEST_F(WndDataUndo, makesNoStepOfPlotWhereNothingIsNew)
{
    click("cmdDrawPlot");
    history.clear();
    click("cmdDrawPlot");
    EXPECT_EQ(history.steps().count(), 0);
}

TEST_F(WndDataUndo, makesNoStepOfACommandThatFails)
{
    test::type(data, "mksizeInp", "big");
    history.clear();
    const auto before = stateAndRows();
    select(0, 3, SeriesColumn::Mode);
    for (const char* button : {"cmdIncMode", "cmdRemove", "cmdDrawPlot", "btnPlotLeg"})
        click(button);
    EXPECT_EQ(user.messages.size(), 4U);
    EXPECT_EQ(history.steps().count(), 0);
    EXPECT_EQ(stateAndRows(), before);
}

TEST_F(WndDataUndo, showsInTheGridWhatIsUndone)
{
    select(0, 1, SeriesColumn::Legend);
    grid().setCurrentIndex(model().index(2, static_cast<int>(SeriesColumn::Legend)));
    type(1, SeriesColumn::Mode, "9");
    select(1, 1, SeriesColumn::Mode);
    click("cmdRemove");
    history.undo();
    EXPECT_THAT(column(SeriesColumn::Mode), ElementsAre("1", "9", "3"));
    history.undo();
    EXPECT_THAT(column(SeriesColumn::Mode), ElementsAre("1", "2", "3"));
    EXPECT_EQ(drawnModes(), (std::vector<int> {1, 2, 3}));
}

TEST_F(WndDataUndo, joinsWhatIsTypedIntoOneMarkerOption)
{
    history.clear();
    for (const char* typed : {"1", "12", "120"})
        test::type(data, "mkspaceInp", typed);
    EXPECT_EQ(history.steps().count(), 1);
    history.undo();
    EXPECT_EQ(series().front().MarkerSpacing, 10);
}
