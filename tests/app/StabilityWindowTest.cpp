// SPDX-License-Identifier: Apache-2.0

// The window "Stability" in the program.

#include "app/WndMainFixture.h"

#include "datacontrol/SeriesGridView.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QTableView>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

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

TEST_F(WndMainTest, choosesADoubtByItsSignInThePlotOfATrackedEvolution)
{
    // Two roots whose imaginary parts cross between 300 and 400 KEAS.
    std::string text =
        "[PROCESSING DATA INFO]\nProgram_version=1\n\n[MODEL DATA INFO]\nAirplane=A\n"
        "\n[RESULT DATA SUMMARY]\n-\n-\n-\n-\n";
    const char* const roots[2][5] = {{"50|-1", "60|-1", "70|-1", "71|-1", "70|-1"},
                                     {"90|-1", "81|-1", "72|-1", "80|-1", "90|-1"}};
    for (int mode = 0; mode < 2; ++mode) {
        for (int i = 0; i < 5; ++i)
            text += std::to_string(mode + 1) + "|" + std::to_string(i + 1) + "|" + roots[mode][i]
                + "|0.5|" + std::to_string(100 * (i + 1)) + "|-0.05|"
                + std::to_string(10 + 5 * mode + i) + "|1|2|\n";
    }
    load({folder.write("cross_tracked.ev2", text)});
    EvmPlotView& view = *window.evolPlot().viewOf(plot());
    const QImage before = view.grab().toImage();
    choose("stability");
    auto* const dialog = window.findChild<QDialog*>(QStringLiteral("wndStability"));
    auto& doubts = *dialog->findChild<QTableView*>(QStringLiteral("doubtGrid"));
    ASSERT_GT(doubts.model()->rowCount(), 0);
    EXPECT_NE(view.grab().toImage(), before) << "signs";
    const int row = doubts.model()->rowCount() - 1;
    const auto number = [&](int column) {
        return doubts.model()->index(row, column).data().toDouble();
    };
    const AeMode& mode =
        *window.document().evolutions().all()[0]->Modes[static_cast<std::size_t>(number(1)) - 1];
    const auto point = std::find_if(mode.Points.begin(), mode.Points.end(), [&](const Point& one) {
        return static_cast<double>(one.speed) == number(4);
    });
    const ucPlot& canvas = plot().parts().vfPlot;
    const QPoint sign =
        canvas.geometry().topLeft() + canvas.pixelOf(point->speed, point->f) - QPoint(0, 10);
    QMouseEvent press(QEvent::MouseButtonPress, sign, view.mapToGlobal(sign), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &press);
    EXPECT_EQ(doubts.currentIndex().row(), row);
    EXPECT_TRUE(dialog->findChild<QPushButton*>(QStringLiteral("exchangeBtn"))->isEnabled());
    const QImage marked = view.grab().toImage();
    dialog->close();
    EXPECT_NE(view.grab().toImage(), marked) << "the signs are gone";
}
