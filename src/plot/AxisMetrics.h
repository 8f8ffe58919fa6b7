#pragma once

#include "surface/DeviceContext.h"
#include "surface/PixelMath.h"

namespace tarsil::axis {

constexpr double thick =
    pixelsOfPoints(8); ///< the length that every stroke of an axis is measured in
constexpr double endMark = 1.8 * thick;

constexpr Pen pen {};
constexpr ColorValue textColor = 0;

/// A pixel from a position that need not be whole.
inline QPoint pixel(double column, double row)
{
    return {roundToPixel(column), roundToPixel(row)};
}

/// Raises error 11 "Division by zero" for a tick count that divides nothing.
void requireIntervals(int count, const char* source);

} // namespace tarsil::axis
