// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/ScaleFit.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarsil {

namespace {

constexpr double highestDamping = 0.1;
constexpr double lowestDamping = -0.4;
constexpr double leastDampings = 0.02; ///< length of the damping axis
constexpr double mostSteps = 10;
constexpr double largestEnd = 1e38; ///< still a single when rounded up
constexpr double frequencyHeadroom = 1.02; ///< keeps the highest curve below the axis title
constexpr double singleNoise = 1e-6; ///< relative error of a sum of values of single precision
constexpr double almostZero = 0.01; ///< of the highest frequency: less is on the speed axis

bool isWhole(double number)
{
    return std::fabs(number - std::nearbyint(number)) < 1e-6;
}

/// The bounds of the values of all points.
struct Extent
{
    double speed = 0; ///< the largest
    double lowestFrequency = largestEnd;
    double highestFrequency = 0;
    double lowestDamping = 0; ///< at most 0
    double highestDamping = 0; ///< at least 0
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
            extent.lowestFrequency = std::min<double>(extent.lowestFrequency, point.f);
            extent.highestFrequency = std::max<double>(extent.highestFrequency, point.f);
            extent.lowestDamping = std::min<double>(extent.lowestDamping, point.G);
            extent.highestDamping = std::max<double>(extent.highestDamping, point.G);
        }
    }
    return extent;
}

RoundRange frequenciesOf(const Extent& extent)
{
    const double highest = std::min(frequencyHeadroom * extent.highestFrequency, largestEnd);
    RoundRange range = roundRange(0, highest, Steps::Hundredths);
    if (extent.lowestFrequency < almostZero * range.high) {
        range.low = -range.high / range.steps;
        ++range.steps;
    }
    return range;
}

/// A range in which 0 is neither the first nor the last tick, because the ends have no labels.
RoundRange dampingsOf(const Extent& extent)
{
    const double high = std::min(extent.highestDamping, highestDamping);
    const double low =
        std::min(std::max(extent.lowestDamping, lowestDamping), high - leastDampings);
    const double step = roundStep((1 - singleNoise) * (high - low) / mostSteps, Steps::Thousandths);
    const double above = std::max(std::ceil(high / step - singleNoise), 1.0);
    const double below = std::max(std::ceil(-low / step - singleNoise), 1.0);
    return {-below * step, above * step, static_cast<int>(above + below)};
}

} // namespace

double smallestStep(Steps steps)
{
    switch (steps) {
    case Steps::Whole:
    case Steps::PlainWhole:
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
        if (steps == Steps::PlainWhole && digit == 2.5)
            continue;
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
    const RoundRange speed = roundRange(0, std::min(extent.speed, largestEnd), Steps::PlainWhole);
    const RoundRange frequency = frequenciesOf(extent);
    const RoundRange damping = dampingsOf(extent);
    axes.setBounds({0, static_cast<float>(speed.high), static_cast<float>(frequency.low),
                    static_cast<float>(frequency.high), static_cast<float>(damping.high),
                    static_cast<float>(damping.low)});
    axes.setTicks({static_cast<std::int16_t>(speed.steps), static_cast<std::int16_t>(damping.steps),
                   static_cast<std::int16_t>(frequency.steps)});
    return axes;
}

} // namespace tarsil
