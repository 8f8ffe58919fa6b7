// SPDX-License-Identifier: Apache-2.0

// The picture of 100 modes of 1000 points, and a repaint without a change.

#include "RatioTable.h"
#include "model/EVM.h"
#include "plotwindow/EvmPlotView.h"
#include "surface/PainterContext.h"
#include "vgfplot/EvmPlot.h"

#include <QApplication>
#include <QPainter>

#include <cmath>

namespace {

using namespace tarsil;
using benchmarks::bestOfTurns;
using benchmarks::printRow;

constexpr int modeCount = 100;
constexpr int pointCount = 1000;
constexpr int turns = 15;
constexpr QSize pictureSize(1600, 1200);

void fillEvolution(EVM& evolution)
{
    for (int m = 0; m < modeCount; ++m) {
        AeMode& mode = evolution.appendMode();
        mode.Id = static_cast<std::int16_t>(m + 1);
        for (int i = 0; i < pointCount; ++i) {
            Point& point = mode.Points.emplace_back();
            point.Parent = &mode;
            point.speed = 0.7F * static_cast<float>(i);
            point.f = static_cast<float>(0.5 * m + 3 * std::sin(0.01 * i + m));
            point.G = static_cast<float>(-0.1 + 0.1 * std::sin(0.013 * i + m));
        }
    }
}

QPolygonF curve(const ucPlot& canvas, const AeMode& mode, bool isDamping)
{
    QPolygonF points;
    for (const Point& point : mode.Points) {
        const QPoint pixel = canvas.pixelOf(point.speed, isDamping ? point.G : point.f);
        points.append(QPointF(pixel + canvas.geometry().topLeft()) + QPointF(0.5, 0.5));
    }
    return points;
}

/// The reference: each curve as one polyline of width 1, nothing else.
void drawPolylines(const EvmPlot& plot, QImage& image)
{
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const ucPlot* canvas : {&plot.parts().vfPlot, &plot.parts().vgPlot}) {
        for (const Series& series : plot.SeriesCollection()) {
            const ColorValue color = series.ColorIndex;
            painter.setPen(
                QPen(QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF), 1));
            painter.drawPolyline(curve(*canvas, *series.Mode, canvas == &plot.parts().vgPlot));
        }
    }
}

template <typename Change>
void changeAll(EvmPlot& plot, const Change& change)
{
    for (const PlotRow& row : plot.rows().all())
        plot.rows().change(row.id, change);
}

void measurePicture(EvmPlot& plot)
{
    QImage polylines(pictureSize, QImage::Format_RGB32);
    QImage picture(pictureSize, QImage::Format_RGB32);
    const auto drawPlot = [&] {
        QPainter painter(&picture);
        PainterContext context(painter);
        plot.Draw(context);
        context.flush();
    };
    const auto reference = [&] { drawPolylines(plot, polylines); };
    printRow("picture of 100 modes x 1000 points, 1600x1200, with axes and texts",
             "one drawPolyline per curve", bestOfTurns(turns, drawPlot, reference), "<= 3");
    const auto onScreen = [&] {
        plot.setAxes(plot.axes()); // marks everything as stale
        plot.Image();
    };
    printRow("the same on the screen's own surfaces, composed", "one drawPolyline per curve",
             bestOfTurns(turns, onScreen, reference), "<= 3");
    changeAll(plot, [](Series& series) { series.LineWidth = 2; });
    printRow("the same picture with curves 2 pixels wide", "one drawPolyline per curve, width 1",
             bestOfTurns(turns, drawPlot, reference), "(for comparison)");
    changeAll(plot, [](Series& series) {
        series.LineWidth = 1;
        series.LineStyle = penstyle::dash;
    });
    printRow("the same picture with dashed curves", "one drawPolyline per curve, solid",
             bestOfTurns(turns, drawPlot, reference), "(for comparison)");
    changeAll(plot, [](Series& series) { series.LineStyle = penstyle::solid; });
}

void measureRepaint(EvmPlot& plot)
{
    EvmPlotView view(plot);
    view.resize(pictureSize);
    for (const TextBox which : allTextBoxes)
        plot.texts().setText(which, QStringLiteral("text"));
    QImage target(pictureSize, QImage::Format_RGB32);
    view.render(&target); // draws what is stale
    const auto repaint = [&] { view.render(&target, QPoint(), QRegion(), QWidget::RenderFlags()); };
    const auto copy = [&] {
        QPainter painter(&target);
        painter.drawImage(0, 0, plot.Image());
    };
    printRow("repaint without a change, 1600x1200", "copying the finished picture",
             bestOfTurns(10 * turns, repaint, copy), "<= 2");
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    EVM evolution;
    fillEvolution(evolution);
    EvmPlot plot;
    plot.resize(pictureSize);
    for (const auto& mode : evolution.Modes)
        plot.rows().add(*mode);
    plot.plot();
    measurePicture(plot);
    measureRepaint(plot);
    return 0;
}
