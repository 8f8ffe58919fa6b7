// SPDX-License-Identifier: Apache-2.0

// The commands on the selected rows that the pop-up of a curve offers.

#include "datacontrol/CurveMenu.h"

#include "DataPanelFixture.h"

#include "datacontrol/DlgSeriesStyle.h"
#include "datacontrol/MarkerPanel.h"
#include "datacontrol/SeriesGridView.h"
#include "datacontrol/SeriesPanel.h"

#include <QApplication>
#include <QTimer>

#include <gmock/gmock.h>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class CurveMenuTest : public test::DataPanelTest
{
protected:
    CurveMenuTest()
    {
        EVM& evolution = load("a.ev2");
        for (const std::size_t mode : {1U, 2U, 3U})
            add(evolution, mode);
        QObject::connect(&panel, &SeriesPanel::rowsSelected, &panel,
                         [this](const std::vector<RowId>& rows) { selected = rows; });
        select({1});
        history.note(QStringLiteral("rows"));
    }

    RowId id(std::size_t row) { return plot().rows().at(row).id; }
    void select(const std::vector<std::size_t>& rows)
    {
        std::vector<RowId> ids;
        for (const std::size_t row : rows)
            ids.push_back(id(row));
        panel.selectRows(ids);
    }
    void choose(const char* name)
    {
        for (QAction* const action : menu.actions()) {
            if (action->objectName() == QString::fromLatin1(name))
                return action->trigger();
        }
        ADD_FAILURE() << name;
    }
    std::string lastStep() { return history.steps().undoText().toStdString(); }

    MarkerPanel markers {commands};
    SeriesPanel panel {commands, markers};
    CurveMenu menu {commands, panel, nullptr};
    std::vector<RowId> selected;
};

} // namespace

TEST_F(CurveMenuTest, selectsRowsByTheirIdsAndReportsThem)
{
    EXPECT_THAT(panel.grid().selectedRows(), ElementsAre(1U));
    EXPECT_THAT(selected, ElementsAre(id(1)));
    panel.grid().selectRows({0, 2}, static_cast<int>(SeriesColumn::Legend));
    EXPECT_THAT(selected, ElementsAre(id(0), id(2)));
    select({0, 2});
    EXPECT_FALSE(panel.grid().isSelectedOnlyIn(static_cast<int>(SeriesColumn::Mode)))
        << "the cells of these rows stay selected";
    select({});
    EXPECT_THAT(selected, IsEmpty());
    EXPECT_THAT(panel.grid().selectedRows(), IsEmpty());
}

TEST_F(CurveMenuTest, reportsTheRowsThatAreLeftWhenSelectedOnesGo)
{
    select({1, 2});
    const RowId last = id(2);
    plot().rows().remove({1});
    EXPECT_THAT(selected, ElementsAre(last));
}

TEST_F(CurveMenuTest, raisesAndLowersTheModeOfTheSelectedRows)
{
    panel.grid().selectRows({0, 1}, static_cast<int>(SeriesColumn::Legend));
    choose("curveModeUp");
    EXPECT_THAT(drawnModes(), ElementsAre(2, 3, 3));
    EXPECT_EQ(lastStep(), "Raise Modes");
    choose("curveModeDown");
    choose("curveModeDown");
    EXPECT_THAT(drawnModes(), ElementsAre(1, 3)) << "row 1 has mode 0";
    EXPECT_EQ(commits, 3);
}

TEST_F(CurveMenuTest, asksForTagAndLegend)
{
    select({1, 2});
    user.texts = {"B\r\nx", "the wing"};
    choose("curveTag");
    choose("curveLegend");
    EXPECT_EQ(series()[0].MarkerTag, QStringLiteral("0"));
    EXPECT_EQ(series()[1].MarkerTag, QStringLiteral("B x"));
    EXPECT_EQ(series()[2].MarkerTag, QStringLiteral("B x"));
    EXPECT_EQ(series()[2].LegendText, QStringLiteral("the wing"));
    EXPECT_EQ(lastStep(), "Legend Text");
    history.undo();
    EXPECT_EQ(series()[2].LegendText, QString());
    choose("curveTag"); // cancelled
    EXPECT_EQ(series()[1].MarkerTag, QStringLiteral("B x"));
}

TEST_F(CurveMenuTest, choosesTheLineOfTheSelectedRows)
{
    select({0, 2});
    QTimer::singleShot(0, &panel, [] {
        auto* const dialog = qobject_cast<dlgSeriesStyle*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->setColor(rgb(1, 2, 3));
        dialog->accept();
    });
    choose("curveLine");
    EXPECT_EQ(series()[0].ColorIndex, rgb(1, 2, 3));
    EXPECT_NE(series()[1].ColorIndex, rgb(1, 2, 3));
    EXPECT_EQ(series()[2].ColorIndex, rgb(1, 2, 3));
}

TEST_F(CurveMenuTest, removesTheSelectedRows)
{
    select({0, 1});
    choose("curveRemove");
    EXPECT_THAT(drawnModes(), ElementsAre(3));
    EXPECT_EQ(lastStep(), "Remove Rows");
}
