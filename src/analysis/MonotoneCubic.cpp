// SPDX-License-Identifier: Apache-2.0
#include "analysis/MonotoneCubic.h"

#include <cmath>
#include <cstddef>

namespace tarsil {

namespace {

double width(std::span<const CurvePoint> points, std::size_t i)
{
    return points[i + 1].x - points[i].x;
}

double secant(std::span<const CurvePoint> points, std::size_t i)
{
    return (points[i + 1].y - points[i].y) / width(points, i);
}

double innerSlope(std::span<const CurvePoint> points, std::size_t i)
{
    const double before = secant(points, i - 1);
    const double after = secant(points, i);
    if (before * after <= 0)
        return 0;
    const double weightBefore = 2 * width(points, i) + width(points, i - 1);
    const double weightAfter = width(points, i) + 2 * width(points, i - 1);
    return (weightBefore + weightAfter) / (weightBefore / before + weightAfter / after);
}

/// The slope at an end of the curve, from the last interval and its neighbour.
double endSlope(double widthAtEnd, double widthBeside, double secantAtEnd, double secantBeside)
{
    const double slope = ((2 * widthAtEnd + widthBeside) * secantAtEnd - widthAtEnd * secantBeside)
        / (widthAtEnd + widthBeside);
    if (slope * secantAtEnd <= 0)
        return 0;
    constexpr double mostSteep = 3;
    if (secantAtEnd * secantBeside <= 0 && std::abs(slope) > mostSteep * std::abs(secantAtEnd))
        return mostSteep * secantAtEnd;
    return slope;
}

double slopeAt(std::span<const CurvePoint> points, std::size_t i)
{
    const std::size_t last = points.size() - 1;
    if (i == 0)
        return endSlope(width(points, 0), width(points, 1), secant(points, 0), secant(points, 1));
    if (i == last)
        return endSlope(width(points, last - 1), width(points, last - 2), secant(points, last - 1),
                        secant(points, last - 2));
    return innerSlope(points, i);
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
    constexpr double lastStep = 1e-10; // the error after a step is about its square
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
    const double h = width(points, index);
    const HermiteCubic cubic(from.y, to.y, h * slopeAt(points, index),
                             h * slopeAt(points, index + 1));
    return from.x + h * zeroBetween(cubic, from.y / (from.y - to.y), from.y < 0);
}

} // namespace tarsil
