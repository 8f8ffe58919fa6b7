#pragma once

#include <span>

namespace tarsil {

/// A point (x, y) of a curve.
struct CurvePoint
{
    double x = 0;
    double y = 0;
};

/// The x in the interval from `points[index]` to the next point at which the monotone cubic through
/// the points is 0; the two y must differ in sign, or one be 0. There are three or four points, in
/// rising x. Slopes inside are harmonic means of their secants (Fritsch and Butland, SIAM J. Sci.
/// Stat. Comput. 5, 1984), those at the ends three-point differences kept from changing the sign.
double zeroOfMonotoneCubic(std::span<const CurvePoint> points, std::size_t index);

} // namespace tarsil
