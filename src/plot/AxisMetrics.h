// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"
#include "surface/PixelMath.h"

namespace tarsil::axis {

constexpr double thick = pixelsOfPoints(8); ///< the unit of all stroke lengths of an axis
constexpr double endMark = 1.8 * thick;

constexpr Pen pen {};
constexpr ColorValue textColor = 0;
constexpr ColorValue ground = rgb(255, 255, 255); ///< behind labels in front of curves

/// Rounds a position to a pixel.
inline QPoint pixel(double column, double row)
{
    return {roundToPixel(column), roundToPixel(row)};
}

/// Raises error 11 "Division by zero" for a tick count of 0.
void requireIntervals(int count, const char* source);

} // namespace tarsil::axis
