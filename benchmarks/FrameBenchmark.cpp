// SPDX-License-Identifier: Apache-2.0

// The time of a frame while a plot in the standard look is dragged: the pointer moves, the axes
// follow, the view paints. It is the processor's time, which other programs do not change much.

#include "RatioTable.h"
#include "model/EVM.h"
#include "plotwindow/EvmPlotView.h"
#include "vgfplot/EvolutionPlotter.h"

#include <QApplication>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <string>
#include <vector>

namespace {

using namespace tarsil;

constexpr QSize viewSize(1200, 900);
constexpr int frames = 60;

void fillEvolution(EVM& evolution, int modes, int points)
{
    for (int m = 0; m < modes; ++m) {
        AeMode& mode = evolution.appendMode();
        mode.Id = static_cast<std::int16_t>(m + 1);
        for (int i = 0; i < points; ++i) {
            Point& point = mode.Points.emplace_back();
            point.Parent = &mode;
            point.speed = 700.0F * static_cast<float>(i) / static_cast<float>(points);
            point.f = static_cast<float>(50.0 * m / modes + 3 * std::sin(0.01 * point.speed + m));
            point.G = static_cast<float>(-0.1 + 0.1 * std::sin(0.013 * point.speed + m));
        }
    }
}

void mouse(EvmPlotView& view, QEvent::Type type, QPoint position)
{
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(
        type, position, view.mapToGlobal(position), isMove ? Qt::NoButton : Qt::MiddleButton,
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MiddleButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
}

void measure(int modes, int points, bool isSelected, const char* goal)
{
    EVM evolution;
    fillEvolution(evolution, modes, points);
    EvmPlot plot;
    plotCurves(plot, {allCurvesOf(evolution)});
    plot.SetScale(200, 600, 0, 60, 0, -0.25F);
    EvmPlotView view(plot);
    view.resize(viewSize);
    view.show();
    QApplication::processEvents();
    if (isSelected)
        view.selectCurves({plot.rows().at(0).id});
    const QPoint start(600, 300);
    mouse(view, QEvent::MouseButtonPress, start);
    std::vector<double> times;
    for (int i = 1; i <= frames; ++i) {
        const std::clock_t begin = std::clock();
        mouse(view, QEvent::MouseMove, start - QPoint(20 + 15 * i, 10 + 5 * i));
        view.repaint();
        times.push_back(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    mouse(view, QEvent::MouseButtonRelease, start);
    std::sort(times.begin(), times.end());
    const double median = times[times.size() / 2];
    const double worst = times[times.size() * 95 / 100];
    const auto rounded = [](double number) {
        return std::to_string(static_cast<double>(std::lround(number * 10)) / 10).substr(0, 5);
    };
    benchmarks::printRow(
        "frame while dragging " + std::to_string(modes) + " curves of " + std::to_string(points)
            + " points" + (isSelected ? ", one selected" : ""),
        "95 of 100 frames within " + rounded(1000 * worst) + " ms",
        rounded(1000 * median) + " ms, " + std::to_string(std::lround(1 / median)) + " a second",
        goal);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    measure(80, 60, false, ">= 60 a second");
    measure(80, 60, true, ">= 60 a second");
    measure(100, 1000, false, ">= 20 a second");
    measure(100, 1000, true, ">= 20 a second");
    return 0;
}
