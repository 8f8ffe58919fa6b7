// SPDX-License-Identifier: Apache-2.0

// Curves are hidden and shown again by the actions of Data Control.

#include "datacontrol/HideCommands.h"

#include "DataPanelFixture.h"

#include "datacontrol/MarkerPanel.h"
#include "datacontrol/SeriesGridView.h"
#include "datacontrol/SeriesPanel.h"
#include "datacontrol/SeriesSort.h"
#include "document/MdlData.h"
#include "support/FormParts.h"

#include <QAction>
#include <QSpinBox>

#include <gmock/gmock.h>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class HideCommandsTest : public test::DataPanelTest
{
protected:
    HideCommandsTest()
    {
        EVM& evolution = load("a.ev2");
        for (const std::size_t mode : {1U, 2U, 3U})
            add(evolution, mode);
        history.note(QStringLiteral("rows"));
    }

    void select(const std::vector<std::size_t>& rows)
    {
        panel.grid().selectRows(rows, static_cast<int>(SeriesColumn::Mode));
    }
    void choose(qsizetype action) { panel.hideActions()[action]->trigger(); }
    void hide() { choose(0); }
    void show() { choose(1); }
    void showAll() { choose(2); }
    PlotRows::Indices hidden() { return plot().rows().hidden(); }
    std::string lastStep() { return history.steps().undoText().toStdString(); }

    MarkerPanel markers {commands};
    SeriesPanel panel {commands, markers};
};

} // namespace

TEST_F(HideCommandsTest, areInThePopupOfTheGridWithTheirKeys)
{
    const QList<QAction*> grid = panel.grid().actions();
    std::vector<std::string> texts;
    for (QAction* const action : panel.hideActions()) {
        EXPECT_TRUE(grid.contains(action));
        texts.push_back((action->text() + u' ' + action->shortcut().toString()).toStdString());
    }
    EXPECT_THAT(texts, ElementsAre("&Hide Ctrl+H", "&Show Ctrl+Shift+H", "Show &All Hidden "));
}

TEST_F(HideCommandsTest, hideAndShowTheSelectedRows)
{
    const PlotRows::Rows before = plot().rows().all();
    select({0, 2});
    hide();
    EXPECT_THAT(hidden(), ElementsAre(0, 2));
    EXPECT_THAT(drawnModes(), ElementsAre(2));
    EXPECT_EQ(lastStep(), "Hide 2 Curves");
    EXPECT_EQ(user.note, "Hidden curves: 2 of 3");
    EXPECT_EQ(commits, 1) << "what is being typed";
    select({1, 2});
    show();
    EXPECT_THAT(hidden(), ElementsAre(0));
    EXPECT_EQ(lastStep(), "Show Curve") << "row 1 was not hidden";
    select({1});
    hide();
    EXPECT_EQ(lastStep(), "Hide Curve");
    showAll();
    EXPECT_EQ(lastStep(), "Show 2 Curves");
    EXPECT_EQ(plot().rows().all(), before);
    EXPECT_EQ(history.steps().count(), 5);
}

TEST_F(HideCommandsTest, areUndoneAndRedoneInOneStepEach)
{
    select({0, 1});
    hide();
    showAll();
    history.undo();
    EXPECT_THAT(hidden(), ElementsAre(0, 1));
    history.undo();
    EXPECT_THAT(hidden(), IsEmpty());
    EXPECT_EQ(history.steps().redoText(), QStringLiteral("Hide 2 Curves"));
    history.redo();
    EXPECT_THAT(hidden(), ElementsAre(0, 1));
}

TEST_F(HideCommandsTest, makeNoStepWhereNothingChanges)
{
    const int steps = history.steps().count();
    select({1});
    show();
    showAll();
    EXPECT_EQ(history.steps().count(), steps);
    EXPECT_EQ(user.note, "Hidden curves: 0 of 3");
    panel.grid().clearSelection();
    hide();
    show();
    EXPECT_EQ(history.steps().count(), steps);
    EXPECT_THAT(
        user.messages,
        ElementsAre(test::warning("Please select curves, or rows of Data Control, to hide."),
                    test::warning("Please select hidden rows of Data Control to show.")));
}

TEST_F(HideCommandsTest, needAnActivePlot)
{
    plots.ActivatePlot(nullptr);
    showAll();
    EXPECT_THAT(user.messages, ElementsAre(test::warning("Please select activate a plot.")));
}

TEST_F(HideCommandsTest, keepCurvesHiddenWhateverTheOtherCommandsDo)
{
    select({1});
    hide();
    const Series look = plot().rows().at(1).series;
    test::click(panel, "cmdDrawPlot");
    EXPECT_THAT(hidden(), ElementsAre(1)) << "Plot";
    EXPECT_EQ(plot().rows().at(1).series.LineStyle, look.LineStyle);
    mdlData::changeMarkers(plot().rows(), {}, {20, 1, MarkerKind::Tag, 2});
    EXPECT_EQ(plot().rows().at(1).series.MarkerSize, 20) << "for when it is shown again";
    test::click(panel, "btnResColor");
    EXPECT_THAT(hidden(), ElementsAre(1)) << "markers and colours";
    sortRows(plot().rows(), SeriesColumn::Index, Qt::DescendingOrder);
    mdlData::moveRowsDown(plot(), {1});
    EXPECT_THAT(hidden(), ElementsAre(2)) << "sorted and moved";
    EXPECT_EQ(plot().rows().at(2).mode, 2);
    test::click(panel, "cmdIncMode");
    EXPECT_THAT(hidden(), ElementsAre(2)) << "another mode";
}

TEST_F(HideCommandsTest, leaveTheRowSelectableByItsMode)
{
    const EVM& evolution = *evolutions().front();
    select({1});
    hide();
    panel.grid().clearSelection();
    panel.selectCurve(evolution, 2);
    EXPECT_THAT(panel.grid().selectedRows(), ElementsAre(1U));
}
