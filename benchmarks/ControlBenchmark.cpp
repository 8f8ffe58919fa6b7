// SPDX-License-Identifier: Apache-2.0

// The cost of a click in the Data Control window with 500 rows, relative to drawing the plot alone.

#include "RatioTable.h"
#include "StrictUser.h"
#include "datacontrol/SeriesGridModel.h"
#include "datacontrol/SeriesGridView.h"
#include "datacontrol/WndData.h"
#include "document/Document.h"
#include "model/EVM.h"
#include "plotwindow/WndEvolPlot.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

#include <numeric>
#include <vector>

namespace {

using namespace tarsil;
using benchmarks::StrictUser;

constexpr int rowCount = 500;
constexpr int modeCount = 50;
constexpr int pointCount = 50;
constexpr int turns = 7;

void fillEvolution(EVM& evolution)
{
    evolution.FileName = "case.ev2";
    evolution.na = modeCount;
    evolution.Param.legends.add("1", "a wing with its fuel");
    for (int m = 0; m < modeCount; ++m) {
        AeMode& mode = evolution.appendMode();
        mode.Id = static_cast<std::int16_t>(m + 1);
        for (int i = 0; i < pointCount; ++i) {
            Point& point = mode.Points.emplace_back();
            point.Parent = &mode;
            point.speed = 14.0F * static_cast<float>(i);
            point.f = 1.0F * static_cast<float>(m) + 0.01F * static_cast<float>(i);
            point.G = -0.1F + 0.002F * static_cast<float>(m + i);
        }
    }
}

void click(QWidget& window, const char* name)
{
    window.findChild<QPushButton*>(QString::fromLatin1(name))->click();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    EVM evolution;
    fillEvolution(evolution);
    Document document;
    StrictUser user;
    wndEvolPlot plots(document.plots(), user);
    plots.resize(640, 720);
    plots.ActivatePlot(plots.plots().front());
    wndData data(document, user);
    data.resize(640, 560);
    for (int i = 0; i < rowCount; ++i)
        plots.AddSerie(*evolution.Modes[static_cast<std::size_t>(i % (modeCount - 2))]);
    EvmPlot& plot = *plots.ActivePlot();
    plot.plot();
    plots.show();
    data.show();
    auto* const grid = data.findChild<SeriesGridView*>();
    std::vector<std::size_t> rows(rowCount);
    std::iota(rows.begin(), rows.end(), std::size_t {0});
    grid->selectRows(rows, static_cast<int>(SeriesColumn::Mode));
    const auto paint = [&] {
        plots.grab();
        data.grab();
    };
    const auto draw = [&] {
        plot.plot();
        plots.grab();
    };
    const char* const reference = "drawing and painting the plot";
    const auto changeModes = [&] {
        click(data, "cmdIncMode");
        click(data, "cmdDecMode");
        paint();
    };
    benchmarks::printRow("modes of 500 rows raised and lowered, plot and grid painted", reference,
                         benchmarks::bestOfTurns(turns, changeModes, draw), "<= 3");
    data.findChild<QLineEdit*>(QStringLiteral("txtLegIdx"))->setText(QStringLiteral("0"));
    const auto writeLegend = [&] {
        click(data, "btnFilltLeg");
        click(data, "btnPlotLeg");
        paint();
    };
    benchmarks::printRow("legends of 500 rows filled and written, plot and grid painted", reference,
                         benchmarks::bestOfTurns(turns, writeLegend, draw), "<= 5");
    return 0;
}
