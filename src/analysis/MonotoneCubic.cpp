// SPDX-License-Identifier: Apache-2.0
#include "analysis/MonotoneCubic.h"

#include <cmath>
#include <cstddef>

namespace tarsil {

namespace {

/// An interval of the curve.
struct Interval
{
    Interval(const CurvePoint& from, const CurvePoint& to)
        : width(to.x - from.x), secant((to.y - from.y) / width)
    { }

    double width;
    double secant;
};

/// The slope between two intervals: the harmonic mean of their secants, weighted by their widths.
double innerSlope(const Interval& before, const Interval& after)
{
    const double product = before.secant * after.secant;
    if (product <= 0)
        return 0;
    const double weightBefore = 2 * after.width + before.width;
    const double weightAfter = after.width + 2 * before.width;
    return (weightBefore + weightAfter) * product
        / (weightBefore * after.secant + weightAfter * before.secant);
}

/// The slope at an end of the curve, from the last interval and its neighbour.
double endSlope(const Interval& last, const Interval& neighbour)
{
    const double slope =
        ((2 * last.width + neighbour.width) * last.secant - last.width * neighbour.secant)
        / (last.width + neighbour.width);
    if (slope * last.secant <= 0)
        return 0;
    constexpr double mostSteep = 3;
    if (last.secant * neighbour.secant <= 0 && std::abs(slope) > mostSteep * std::abs(last.secant))
        return mostSteep * last.secant;
    return slope;
}

/// A cubic over t in 0..1, given by its values and slopes at both ends.
class HermiteCubic
{
public:
    HermiteCubic(double from, double to, double slopeFrom, double slopeTo)
        : m_constant(from), m_linear(slopeFrom),
          m_square(3 * (to - from) - 2 * slopeFrom - slopeTo),
          m_cube(2 * (from - to) + slopeFrom + slopeTo)
    { }

    double value(double t) const
    {
        return m_constant + t * (m_linear + t * (m_square + t * m_cube));
    }
    double slope(double t) const { return m_linear + t * (2 * m_square + 3 * t * m_cube); }

private:
    double m_constant;
    double m_linear;
    double m_square;
    double m_cube;
};

/// The zero of a monotone cubic by Newton's method, from a first estimate, with bisection where a
/// step would leave the interval.
double zeroBetween(const HermiteCubic& cubic, double estimate, bool isRising)
{
    constexpr int mostSteps = 60;
    constexpr double lastStep = 1e-6; // the error is smaller, in most cases about the square
    double low = 0;
    double high = 1;
    double t = estimate;
    for (int i = 0; i < mostSteps; ++i) {
        const double value = cubic.value(t);
        if (value == 0)
            return t;
        ((value < 0) == isRising ? low : high) = t;
        double next = t - value / cubic.slope(t);
        if (!(next > low && next < high))
            next = (low + high) / 2;
        if (std::abs(next - t) <= lastStep)
            return next;
        t = next;
    }
    return t;
}

} // namespace

double zeroOfMonotoneCubic(std::span<const CurvePoint> points, std::size_t index)
{
    const CurvePoint from = points[index];
    const CurvePoint to = points[index + 1];
    if (from.y == 0)
        return from.x;
    const Interval middle(from, to);
    const bool isFirst = index == 0;
    const bool isLast = index + 2 == points.size();
    const Interval before = isFirst ? middle : Interval(points[index - 1], from);
    const Interval after = isLast ? middle : Interval(to, points[index + 2]);
    const double slopeFrom = isFirst ? endSlope(middle, after) : innerSlope(before, middle);
    const double slopeTo = isLast ? endSlope(middle, before) : innerSlope(middle, after);
    const HermiteCubic cubic(from.y, to.y, middle.width * slopeFrom, middle.width * slopeTo);
    return from.x + middle.width * zeroBetween(cubic, from.y / (from.y - to.y), from.y < 0);
}

} // namespace tarsil
