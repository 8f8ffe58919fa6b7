#include "vgfplot/PlotLayout.h"

#include "surface/PixelMath.h"

#include <algorithm>

namespace tarsil {

namespace {

// Fractions of the plot's own width and height.
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
constexpr int edge = 8; ///< between a text box and the plot's edge

/// The upper half is rounded to pixels and the V-g canvas is exactly two of it, so that the speed
/// axis is on the row of the middle, whatever the size. Half is an even number: a position half-way
/// between two pixels then falls on the same one, counted from the canvas' upper edge (a curve) or
/// from the speed axis (a tick).
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

/// A title whose left edge is in that column and whose middle is in that row.
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

} // namespace

PlotLayout layOutPlot(QSize plot, const TitleSizes& titles)
{
    PlotLayout layout;
    layOutCanvases(plot, layout);
    layOutAxes(layout);
    layOutTitles(plot, titles, layout);
    layout.headerLeft = layout.freqAxislabel.left() + layout.freqAxislabel.width();
    const int headerRight = roundToPixel((1 - headerRightGap) * plot.width());
    layout.headerWidth = std::max(headerRight - layout.headerLeft, 0);
    return layout;
}

QPoint usualLegendPosition(QSize plot, const PlotLayout& layout, QSize legend)
{
    const int column =
        std::min(roundToPixel(legendLeft * plot.width()), plot.width() - legend.width() - edge);
    return {std::max(column, 0), layout.vfPlot.top()};
}

QPoint usualSubtitlePosition(const PlotLayout& layout, const QRect& header)
{
    return {layout.headerLeft, header.top() + header.height()};
}

} // namespace tarsil
