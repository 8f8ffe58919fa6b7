// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotLayout.h"

#include "surface/PixelMath.h"

#include <algorithm>

namespace tarsil {

namespace {

// Fractions of the width and height of the plot.
constexpr double canvasTop = 0.1 + 0.03;
constexpr double canvasLeft = 0.1;
constexpr double canvasWidth = 0.75;
constexpr double canvasHeight = 0.84;
constexpr double titleGap = 0.01;
constexpr double headerRightGap = 0.045;
constexpr double legendLeft = canvasLeft + canvasWidth + titleGap;

// Pixels. Even, so that the line in the middle of an axis is on a whole pixel.
constexpr int speedAxisHeight = 64;
constexpr int verticalAxisWidth = 120;
constexpr int edge = 8; ///< between a text box and the edge of the plot

/// The upper half has a whole number of pixels and the V-g canvas is exactly twice as high, so that
/// the speed axis is always on the middle row. The half is even: a position half-way between two
/// pixels then rounds to the same pixel whether it is counted from the top of the canvas (a curve)
/// or from the speed axis (a tick).
void layOutCanvases(QSize plot, PlotLayout& layout)
{
    const QPoint corner(roundToPixel(canvasLeft * plot.width()),
                        roundToPixel(canvasTop * plot.height()));
    const int width = roundToPixel(canvasWidth * plot.width());
    const int half = 2 * roundToPixel(canvasHeight / 4 * plot.height());
    layout.vfPlot = {corner, QSize(width, half)};
    layout.vgPlot = {corner, QSize(width, 2 * half)};
}

/// The vertical axes meet the speed axis at its left end.
void layOutAxes(PlotLayout& layout)
{
    const int half = layout.vfPlot.height();
    const QPoint origin(layout.vfPlot.left(), layout.vfPlot.top() + half);
    layout.velAxis = {origin.x(), origin.y() - speedAxisHeight / 2, layout.vfPlot.width(),
                      speedAxisHeight};
    const int axisLeft = origin.x() - verticalAxisWidth / 2;
    layout.freqAxis = {axisLeft, origin.y() - half, verticalAxisWidth, half};
    layout.gAxis = {axisLeft, origin.y(), verticalAxisWidth, half};
}

/// The rectangle of a title with its left edge in `column`, centred on row `middle`.
QRect titleAt(int column, int middle, QSize size)
{
    return {QPoint(column, middle - size.height() / 2), size};
}

void layOutTitles(QSize plot, const TitleSizes& titles, PlotLayout& layout)
{
    const QRect& canvas = layout.vfPlot;
    const int origin = canvas.top() + canvas.height();
    const int right = canvas.width() + canvas.left() + roundToPixel(titleGap * plot.width());
    const int besideAxis = verticalAxisWidth / 5 + canvas.left();
    layout.velAxisLabel = titleAt(right, origin, titles.speed);
    layout.freqAxislabel = titleAt(besideAxis, layout.freqAxis.top(), titles.frequency);
    layout.gAxisLabel =
        titleAt(besideAxis, layout.gAxis.top() + layout.gAxis.height(), titles.damping);
}

/// The nearest position to `position` at which an extent lies within the plot, or covers it.
int shownPosition(int position, int extent, int plot)
{
    const int room = plot - extent; // negative for a box that does not fit
    return std::clamp(position, std::min(room, 0), std::max(room, 0));
}

void layOutHeader(QSize plot, const BoxSizes& boxes, PlotLayout& layout)
{
    const int left = layout.freqAxislabel.left() + layout.freqAxislabel.width();
    const int right = roundToPixel((1 - headerRightGap) * plot.width());
    const QSize size = boxes.header.expandedTo({std::max(right - left, 0), 0});
    const int top = shownPosition(boxes.headerTop, size.height(), plot.height());
    layout.header = {{left, boxes.headerTop}, {QPoint(left, top), size}};
}

QPoint usualLegendPosition(QSize plot, int width, const PlotLayout& layout)
{
    const int column =
        std::min(roundToPixel(legendLeft * plot.width()), plot.width() - width - edge);
    return {std::max(column, 0), layout.vfPlot.top()};
}

QPoint usualSubtitlePosition(const QRect& header)
{
    return {header.left(), header.top() + header.height()};
}

} // namespace

QRect shownRectangle(const QRect& box, QSize plot)
{
    return {QPoint(shownPosition(box.left(), box.width(), plot.width()),
                   shownPosition(box.top(), box.height(), plot.height())),
            box.size()};
}

PlotLayout layOutPlot(QSize plot, const TitleSizes& titles, const BoxSizes& boxes)
{
    PlotLayout layout;
    layOutCanvases(plot, layout);
    layOutAxes(layout);
    layOutTitles(plot, titles, layout);
    layOutHeader(plot, boxes, layout);
    const auto placed = [plot](const PlacedBox& box, QPoint usual) {
        const QPoint position = box.position.value_or(usual);
        return BoxLayout {position, shownRectangle({position, box.size}, plot)};
    };
    layout.legend =
        placed(boxes.legend, usualLegendPosition(plot, boxes.legend.size.width(), layout));
    layout.mechanism = placed(boxes.mechanism, usualSubtitlePosition(layout.header.shown));
    return layout;
}

} // namespace tarsil
