// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/FlutterTrend.h"
#include "base/numbers/ColorValue.h"

#include <QPoint>

#include <cstddef>

namespace tarsil {

class DeviceContext;

/// The symbols of a comparison. Only starts have a filled symbol.
///
///     flutter  disc       interval      bar with cross strokes from its first to its last speed
///     divergence  square  first speed   open triangle that points downwards
///                         none          open triangle that points upwards
enum class TrendSymbol { Flutter, Divergence, Interval, FirstSpeed, None };

/// The symbol of a point that is drawn.
TrendSymbol symbolOf(const TrendPoint& point);

/// Draws a symbol at `pixel`. `end` is the pixel of the last speed of an interval, otherwise not
/// used.
void drawSymbol(DeviceContext& context, TrendSymbol symbol, QPoint pixel, QPoint end,
                ColorValue color);

/// The colour of a level by its index in the settings.
ColorValue levelColor(std::size_t level);

/// The pen style of a group by its index.
int groupStyle(std::size_t group);

/// The largest distance of ink from the pixel of a symbol.
constexpr int symbolReach = 10;

} // namespace tarsil
