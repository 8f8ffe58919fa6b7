// SPDX-License-Identifier: Apache-2.0
#include "trend/TrendSymbols.h"

#include "surface/DeviceContext.h"

#include <array>
#include <cstdlib>

namespace tarsil {

namespace {

constexpr int squareHalf = 4;
constexpr int crossStroke = 5;
constexpr int triangleHalf = 6;

/// A disc of a radius of four pixels, as horizontal lines.
void drawDisc(DeviceContext& context, QPoint centre, const Pen& pen)
{
    constexpr std::array<int, 5> halfWidths = {4, 4, 4, 3, 2}; // by distance from the centre
    for (int row = -4; row <= 4; ++row) {
        const int half = halfWidths.at(static_cast<std::size_t>(std::abs(row)));
        context.drawLine(centre + QPoint(-half, row), centre + QPoint(half, row), pen);
    }
}

/// As lines too: some players (Inkscape) lose the pen after a filled rectangle.
void drawSquare(DeviceContext& context, QPoint centre, const Pen& pen)
{
    for (int row = -squareHalf; row <= squareHalf; ++row)
        context.drawLine(centre + QPoint(-squareHalf, row), centre + QPoint(squareHalf, row), pen);
}

/// `up` is -1 for a triangle that points upwards, 1 for downwards. Its base is at the speed.
void drawTriangle(DeviceContext& context, QPoint base, int up, const Pen& pen)
{
    const QPoint left = base + QPoint(-triangleHalf, 0);
    const QPoint right = base + QPoint(triangleHalf, 0);
    const QPoint tip = base + QPoint(0, up * symbolReach);
    context.drawLine(left, right, pen);
    context.drawLine(right, tip, pen);
    context.drawLine(tip, left, pen);
}

void drawBar(DeviceContext& context, QPoint from, QPoint to, const Pen& pen)
{
    context.drawLine(from, to, pen);
    for (const QPoint end : {from, to})
        context.drawLine(end + QPoint(-crossStroke, 0), end + QPoint(crossStroke, 0), pen);
}

} // namespace

TrendSymbol symbolOf(const TrendPoint& point)
{
    switch (point.onset) {
    case TrendOnset::Start:
        return point.start->kind == CrossingKind::Divergence ? TrendSymbol::Divergence
                                                             : TrendSymbol::Flutter;
    case TrendOnset::Interval:
        return TrendSymbol::Interval;
    case TrendOnset::FirstSpeed:
        return TrendSymbol::FirstSpeed;
    case TrendOnset::None:
    case TrendOnset::Unknown:
        break;
    }
    return TrendSymbol::None;
}

void drawSymbol(DeviceContext& context, TrendSymbol symbol, QPoint pixel, QPoint end,
                ColorValue color)
{
    const Pen pen {penstyle::solid, 0, color};
    switch (symbol) {
    case TrendSymbol::Flutter:
        drawDisc(context, pixel, pen);
        break;
    case TrendSymbol::Divergence:
        drawSquare(context, pixel, pen);
        break;
    case TrendSymbol::Interval:
        drawBar(context, pixel, end, pen);
        break;
    case TrendSymbol::FirstSpeed:
        drawTriangle(context, pixel, 1, pen);
        break;
    case TrendSymbol::None:
        drawTriangle(context, pixel, -1, pen);
        break;
    }
}

ColorValue levelColor(std::size_t level)
{
    constexpr std::array<ColorValue, 6> colors = {rgb(0, 0, 220),   rgb(0, 128, 0),
                                                  rgb(170, 0, 170), rgb(210, 0, 0),
                                                  rgb(0, 140, 160), rgb(130, 110, 0)};
    return colors.at(level % colors.size());
}

int groupStyle(std::size_t group)
{
    constexpr std::array<int, 5> styles = {penstyle::solid, penstyle::dash, penstyle::dot,
                                           penstyle::dashDot, penstyle::dashDotDot};
    return styles.at(group % styles.size());
}

} // namespace tarsil
