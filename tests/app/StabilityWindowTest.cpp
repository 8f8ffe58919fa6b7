// The window "Stability" in the program.

#include "app/WndMainFixture.h"

#include "datacontrol/SeriesGridView.h"

#include <QTableView>

#include <gtest/gtest.h>

using namespace tarsil;
using test::sample;
using test::WndMainTest;

TEST_F(WndMainTest, showsAStretchInPlotAndGridWhileTheStabilityWindowIsOpen)
{
    load({sample("goland_clean_m040.ev2")});
    choose("stability");
    auto* const dialog = window.findChild<QDialog*>(QStringLiteral("wndStability"));
    ASSERT_NE(dialog, nullptr);
    QWidget& view = *window.evolPlot().viewOf(plot());
    const QImage before = view.grab().toImage();
    dialog->findChild<QTableView*>(QStringLiteral("stretchGrid"))->selectRow(0);
    EXPECT_NE(view.grab().toImage(), before) << "range and rings";
    auto& grid = *window.findChild<SeriesGridView*>(QStringLiteral("flxSerieViewer"));
    EXPECT_EQ(grid.selectedRows(), std::vector<std::size_t> {1}) << "mode 2 flutters";
    dialog->close();
    grid.clearSelection();
    EXPECT_EQ(view.grab().toImage(), before);
}
