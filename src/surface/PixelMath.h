// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil {

/// Converts points to pixels at 96 per inch.
constexpr double pixelsOfPoints(double points)
{
    return points * 96.0 / 72.0;
}

/// The units of the positions of text boxes: twentieths of a point.
constexpr double unitsPerPixel = 15.0;

/// Rounds to the nearest whole pixel, ties to even. Conversion noise (less than a thousandth of a
/// pixel) does not break a tie, so that a point of a curve and an axis tick of the same value fall
/// on the same pixel. Saturates far outside any surface.
int roundToPixel(double position);

} // namespace tarsil
