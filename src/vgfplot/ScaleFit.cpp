// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/ScaleFit.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarsil {

namespace {

constexpr double mostDamping = 0.5;
constexpr double leastDamping = 0.02;
constexpr double mostSteps = 10;
constexpr double largestEnd = 1e38; ///< still a single when rounded up
constexpr double frequencyHeadroom = 1.02; ///< keeps the highest curve below the axis title

bool isWhole(double number)
{
    return std::fabs(number - std::nearbyint(number)) < 1e-6;
}

/// The largest speed, frequency and damping (of either sign) of all points.
struct Extent
{
    double speed = 0;
    double frequency = 0;
    double damping = 0;
    bool hasPoints = false;
};

Extent extentOf(const SeriesList& series)
{
    Extent extent;
    for (const Series& one : series) {
        if (one.Mode == nullptr)
            continue;
        for (const Point& point : one.Mode->Points) {
            extent.hasPoints = true;
            extent.speed = std::max<double>(extent.speed, point.speed);
            extent.frequency = std::max<double>(extent.frequency, point.f);
            extent.damping = std::max<double>(extent.damping, std::fabs(point.G));
        }
    }
    return extent;
}

} // namespace

double smallestStep(Steps steps)
{
    switch (steps) {
    case Steps::Whole:
        return 1;
    case Steps::Hundredths:
        return 0.01;
    case Steps::Thousandths:
        return 0.001;
    case Steps::Any:
        break;
    }
    return 0;
}

double roundStep(double least, Steps steps)
{
    const double smallest = smallestStep(steps);
    const double atLeast = std::max(least, smallest);
    const double power = std::pow(10.0, std::floor(std::log10(atLeast)));
    for (const double digit : {1.0, 2.0, 2.5, 5.0, 10.0}) {
        const double step = digit * power;
        if (step >= atLeast * (1 - 1e-9) && (smallest == 0 || isWhole(step / smallest)))
            return step;
    }
    return 10 * power;
}

RoundRange roundRange(double low, double high, Steps steps)
{
    if (!(high > low))
        high = low + 1;
    const double step = roundStep((high - low) / mostSteps, steps);
    const double first = std::floor(low / step + 1e-9);
    const double last = std::ceil(high / step - 1e-9);
    return {first * step, last * step, static_cast<int>(last - first)};
}

RoundRange nearestRoundRange(double low, double high, Steps steps)
{
    const double step = roundStep((high - low) / mostSteps, steps);
    const double first = std::nearbyint(low / step);
    const double last = std::max(std::nearbyint(high / step), first + 1);
    return {first * step, last * step, static_cast<int>(last - first)};
}

PlotAxes fitAxes(const SeriesList& series, PlotAxes axes)
{
    const Extent extent = extentOf(series);
    if (!extent.hasPoints)
        return axes;
    const RoundRange speed = roundRange(0, std::min(extent.speed, largestEnd), Steps::Whole);
    const RoundRange frequency =
        roundRange(0, std::min(frequencyHeadroom * extent.frequency, largestEnd));
    const RoundRange damping = roundRange(0, std::clamp(extent.damping, leastDamping, mostDamping));
    axes.setBounds({0, static_cast<float>(speed.high), 0, static_cast<float>(frequency.high), 0,
                    -static_cast<float>(damping.high)});
    axes.setTicks({static_cast<std::int16_t>(speed.steps), static_cast<std::int16_t>(damping.steps),
                   static_cast<std::int16_t>(frequency.steps)});
    return axes;
}

} // namespace tarsil
