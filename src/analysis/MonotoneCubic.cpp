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

/// The slope at an end, from the interval at the end and the one beside it.
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

} // namespace

double zeroOfMonotoneCubic(std::span<const CurvePoint> points, std::size_t index)
{
    const CurvePoint from = points[index];
    const CurvePoint to = points[index + 1];
    if (from.y == 0)
        return from.x;
    const double h = width(points, index);
    const double slopeFrom = h * slopeAt(points, index);
    const double slopeTo = h * slopeAt(points, index + 1);
    const auto value = [&](double t) {
        const double s = 1 - t;
        return s * s * ((1 + 2 * t) * from.y + t * slopeFrom)
            + t * t * ((3 - 2 * t) * to.y - s * slopeTo);
    };
    double low = 0;
    double high = 1;
    constexpr int halvings = 60;
    for (int i = 0; i < halvings; ++i) {
        const double middle = (low + high) / 2;
        if ((value(middle) < 0) == (from.y < 0))
            low = middle;
        else
            high = middle;
    }
    return from.x + h * (low + high) / 2;
}

} // namespace tarsil
