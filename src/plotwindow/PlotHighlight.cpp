// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/PlotHighlight.h"

#include "vgfplot/EvmPlot.h"
#include "vgfplot/PlotReading.h"

#include <QPainter>

namespace tarsil {

namespace {

const QColor rangeColor(255, 170, 0, 44);
const QColor edgeColor(200, 110, 0, 160);
const QColor ringColor(210, 0, 0);
constexpr int ringRadius = 7;

/// The columns of the range inside the canvas.
QRect rangeIn(const ucPlot& canvas, const PlotHighlight& highlight)
{
    const QRect area = canvas.geometry();
    const int from = area.left() + canvas.pixelOf(highlight.fromSpeed, 0).x();
    const int to = area.left() + canvas.pixelOf(highlight.toSpeed, 0).x();
    return QRect(QPoint(from, area.top()), QPoint(to, area.bottom()));
}

/// White around red, visible on curves of every colour.
void paintRing(const ucPlot& canvas, double speed, double value, QPainter& painter)
{
    const QPoint centre = canvas.geometry().topLeft() + canvas.pixelOf(speed, value);
    painter.setClipRect(canvas.geometry());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 5));
    painter.drawEllipse(centre, ringRadius, ringRadius);
    painter.setPen(QPen(ringColor, 2));
    painter.drawEllipse(centre, ringRadius, ringRadius);
}

} // namespace

void paintHighlight(const PlotHighlight& highlight, const EvmPlot& plot, QPainter& painter)
{
    if (!hasValidScale(plot))
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect range = rangeIn(plot.parts().vgPlot, highlight);
    painter.setClipRect(plot.parts().vgPlot.geometry());
    painter.fillRect(range, rangeColor);
    painter.setPen(QPen(edgeColor, 1, Qt::DashLine));
    painter.drawLine(range.topLeft(), range.bottomLeft());
    painter.drawLine(range.topRight(), range.bottomRight());
    for (const PlotHighlight::Ring& ring : highlight.rings)
        paintRing(plot, ring, painter);
    painter.restore();
}

void paintRing(const EvmPlot& plot, const PlotHighlight::Ring& ring, QPainter& painter)
{
    paintRing(plot.parts().vfPlot, ring.speed, ring.frequency, painter);
    paintRing(plot.parts().vgPlot, ring.speed, ring.damping, painter);
}

} // namespace tarsil
