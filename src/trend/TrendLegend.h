// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/FlutterTrend.h"

#include <QRect>

namespace tarsil {

class DeviceContext;

/// Draws the legend of a comparison into a rectangle, one entry below the other: levels with their
/// colours, groups with their lines, the symbols and the required speed, as far as they occur.
void drawTrendLegend(const FlutterTrend& trend, const QRect& area, DeviceContext& context);

/// A text that fits into a width in pixels: shortened in the middle, with "..." there.
QString fittingText(const QString& text, int width, const DeviceContext& context);

} // namespace tarsil
