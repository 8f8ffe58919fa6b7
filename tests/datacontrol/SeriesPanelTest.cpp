// SPDX-License-Identifier: Apache-2.0

// The grid and its commands, alone.

#include "DataPanelFixture.h"

#include "datacontrol/MarkerPanel.h"
#include "datacontrol/SeriesGridView.h"
#include "datacontrol/SeriesPanel.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::warning;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int modeColumnOfGrid = static_cast<int>(SeriesColumn::Mode);

class SeriesPanelTest : public test::DataPanelTest
{
protected:
    SeriesPanelTest()
    {
        EVM& evolution = load("a.ev2");
        for (const std::size_t mode : {1U, 2U, 3U})
            add(evolution, mode);
        history.note(QStringLiteral("rows"));
    }

    void click(const char* button) { test::click(panel, button); }
    int rowCount() { return panel.grid().model()->rowCount(); }

    MarkerPanel markers {commands};
    SeriesPanel panel {commands, markers};
};

} // namespace

TEST_F(SeriesPanelTest, showsTheRowsOfTheActivePlot)
{
    EXPECT_EQ(rowCount(), 3);
    plots.ActivatePlot(nullptr);
    EXPECT_EQ(rowCount(), 0);
    click("cmdDrawPlot");
    EXPECT_THAT(user.messages, ElementsAre(warning("Please select activate a plot.")));
}

TEST_F(SeriesPanelTest, selectsTheRowOfACurve)
{
    const EVM& evolution = *evolutions().front();
    panel.selectCurve(evolution, 2);
    EXPECT_THAT(panel.grid().selectedRows(), ElementsAre(1U));
    panel.selectCurve(evolution, 99);
    EXPECT_THAT(panel.grid().selectedRows(), ElementsAre(1U)) << "there is no such row";
}

TEST_F(SeriesPanelTest, raisesTheSelectedModesAsOneStep)
{
    panel.grid().selectRows({0, 1}, modeColumnOfGrid);
    click("cmdIncMode");
    EXPECT_THAT(drawnModes(), ElementsAre(2, 3, 3));
    EXPECT_EQ(history.steps().undoText(), QStringLiteral("Raise Modes"));
    history.undo();
    EXPECT_THAT(drawnModes(), ElementsAre(1, 2, 3));
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(SeriesPanelTest, removesTheSelectedRowsAndGoesToTheNext)
{
    panel.grid().selectRows({0, 1}, modeColumnOfGrid);
    click("cmdRemove");
    EXPECT_THAT(drawnModes(), ElementsAre(3));
    EXPECT_THAT(panel.grid().selectedRows(), ElementsAre(0U));
}

TEST_F(SeriesPanelTest, drawsWithTheMarkersOfTheirPanel)
{
    change(1, [](Series& look) { look.MarkerSize = 20; });
    click("cmdDrawPlot");
    EXPECT_EQ(series()[1].MarkerSize, 8);
    EXPECT_EQ(commits, 1);
}

TEST_F(SeriesPanelTest, showsTheMarkersOfThePlotThatBecomesActive)
{
    change(0, [](Series& look) { look.MarkerSize = 5; });
    EvmPlot& first = plot();
    plots.ActivatePlot(nullptr);
    plots.ActivatePlot(&first);
    EXPECT_EQ(markers.options().size, 5);
}
