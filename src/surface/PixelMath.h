#pragma once

namespace tarsil {

/// A length in points as pixels at 96 per inch.
constexpr double pixelsOfPoints(double points)
{
    return points * 96.0 / 72.0;
}

/// The plot's own units, in which the positions of text boxes are kept: twentieths of a point.
constexpr double unitsPerPixel = 15.0;

/// The nearest whole pixel, ties to even. What the conversion of a length leaves behind as noise
/// (less than a thousandth of a pixel) does not decide a tie, so that a curve's point and an axis'
/// tick of the same value fall on the same pixel. Saturates far outside of any surface.
int roundToPixel(double position);

} // namespace tarsil
