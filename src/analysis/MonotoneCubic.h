// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>

namespace tarsil {

/// A point (x, y) of a curve.
struct CurvePoint
{
    double x = 0;
    double y = 0;
};

/// Returns the zero of the monotone cubic through the points in the interval that begins at
/// `points[index]`. The y values at its ends must differ in sign, or one be 0. Three or four
/// points, in rising x. Inner slopes are harmonic means of the secants (Fritsch and Butland, SIAM
/// J. Sci. Stat. Comput. 5, 1984); end slopes are three-point differences that keep the sign.
double zeroOfMonotoneCubic(std::span<const CurvePoint> points, std::size_t index);

} // namespace tarsil
