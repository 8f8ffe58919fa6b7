// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/PlotSigns.h"

#include "vgfplot/EvmPlot.h"

#include <QPainter>
#include <QPolygon>

#include <array>

namespace tarsil {

namespace {

constexpr int signWidth = 14;
constexpr int signHeight = 12;
constexpr int gapAboveCurve = 5;

const QColor strongSign(225, 60, 40);
const QColor weakSign(255, 205, 40);

bool hasScale(const EvmPlot& plot)
{
    const PlotAxes axes = plot.axes();
    return axes.speed.min != axes.speed.max;
}

/// The rectangles of a sign at the curves of frequency and damping; null outside the canvas.
std::array<QRect, 2> signAreas(const PlotSign& sign, const EvmPlot& plot)
{
    const auto areaIn = [&sign](const ucPlot& canvas, double value) {
        const QPoint pixel = canvas.geometry().topLeft() + canvas.pixelOf(sign.speed, value);
        if (!canvas.geometry().contains(pixel))
            return QRect();
        return QRect(pixel.x() - signWidth / 2, pixel.y() - gapAboveCurve - signHeight, signWidth,
                     signHeight);
    };
    return {areaIn(plot.parts().vfPlot, sign.frequency), areaIn(plot.parts().vgPlot, sign.damping)};
}

void paintSign(const QRect& area, const QColor& color, QPainter& painter)
{
    const int middle = area.center().x();
    painter.setPen(Qt::black);
    painter.setBrush(color);
    painter.drawPolygon(QPolygon(
        {QPoint(middle, area.top()), area.bottomRight(), QPoint(area.left(), area.bottom())}));
    painter.drawLine(middle, area.top() + 4, middle, area.bottom() - 4);
    painter.drawPoint(middle, area.bottom() - 2);
}

} // namespace

void paintSigns(const PlotSigns& signs, const EvmPlot& plot, QPainter& painter)
{
    if (signs.empty() || !hasScale(plot))
        return;
    painter.save();
    for (const PlotSign& sign : signs) {
        for (const QRect& area : signAreas(sign, plot)) {
            if (!area.isNull())
                paintSign(area, sign.isStrong ? strongSign : weakSign, painter);
        }
    }
    painter.restore();
}

std::optional<std::size_t> signAt(const PlotSigns& signs, const EvmPlot& plot, QPoint pixel)
{
    if (signs.empty() || !hasScale(plot))
        return std::nullopt;
    for (std::size_t i = signs.size(); i-- > 0;) {
        for (const QRect& area : signAreas(signs[i], plot)) {
            if (area.contains(pixel))
                return i;
        }
    }
    return std::nullopt;
}

} // namespace tarsil
