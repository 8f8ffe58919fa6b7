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

/// The value at the division `k` of `count` equal ones from `first` to `last`: the one that decimal
/// arithmetic gives, without what binary fractions leave behind (three quarters of the way from 0
/// to -0.35 are -0.2625 and not -0.26249999999999996), so that a label half-way between two
/// decimals is seen as such.
double divisionValue(double first, double last, int k, int count);

/// Raises error 11 "Division by zero" for a tick count that divides nothing.
void requireIntervals(int count, const char* source);

} // namespace tarsil::axis
