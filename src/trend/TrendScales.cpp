// SPDX-License-Identifier: Apache-2.0
#include "trend/TrendScales.h"

#include "vgfplot/ScaleFit.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace tarsil {

namespace {

/// The range of the values seen so far.
class ValueExtent
{
public:
    void add(double value)
    {
        m_low = m_low ? std::min(*m_low, value) : value;
        m_high = m_high ? std::max(*m_high, value) : value;
    }

    bool isEmpty() const { return !m_low; }
    double low() const { return m_low.value_or(0); }
    double high() const { return m_high.value_or(0); }

private:
    std::optional<double> m_low;
    std::optional<double> m_high;
};

constexpr double partOfRoom = 0.08; ///< of the extent, on both sides

/// A round range around an extent with at least `leastRoom` on both sides.
TrendRange rangeAround(const ValueExtent& extent, double leastRoom, Steps steps)
{
    if (extent.isEmpty())
        return {};
    const double room = std::max(leastRoom, partOfRoom * (extent.high() - extent.low()));
    const double low = extent.low() >= 0 ? std::max(0.0, extent.low() - room) : extent.low() - room;
    const RoundRange round = roundRange(low, extent.high() + room, steps);
    return {round.low, round.high, round.steps, "0"};
}

/// As many decimals as the ticks need.
void setDecimals(TrendRange& range)
{
    constexpr double notWhole = 1e-6;
    range.pattern = "0.###";
    const double step = (range.high - range.low) / range.steps;
    double scaled = step;
    std::string decimals;
    while (std::fabs(scaled - std::round(scaled)) > notWhole * scaled && decimals.size() < 4) {
        scaled *= 10;
        decimals += '0';
    }
    range.pattern = decimals.empty() ? "0" : "0." + decimals;
}

TrendRange categoryRange(const FlutterTrend& trend)
{
    const auto count = static_cast<int>(std::max<std::size_t>(trend.categories.size(), 1));
    return {0.5, count + 0.5, count, "0"};
}

TrendRange abscissaRange(const FlutterTrend& trend)
{
    constexpr double leastMach = 0.05;
    constexpr double leastAltitude = 500; // ft
    const bool isMach = trend.abscissa == TrendAbscissa::Mach;
    if (!isMach && trend.abscissa != TrendAbscissa::Altitude)
        return categoryRange(trend);
    ValueExtent extent;
    for (const TrendPoint& point : trend.points) {
        if (point.whyNotDrawn.empty())
            extent.add(*point.abscissa);
    }
    for (const TrendRequirement& one : trend.required)
        extent.add(one.abscissa);
    TrendRange range = rangeAround(extent, isMach ? leastMach : leastAltitude, Steps::Any);
    setDecimals(range);
    return range;
}

} // namespace

TrendScales scalesOf(const FlutterTrend& trend)
{
    constexpr double leastSpeed = 5; // KEAS
    constexpr double leastFrequency = 0.2; // Hz
    ValueExtent speeds;
    ValueExtent frequencies;
    for (const TrendPoint& point : trend.points) {
        if (!point.whyNotDrawn.empty())
            continue;
        speeds.add(point.speed);
        speeds.add(point.toSpeed);
        if (point.onset == TrendOnset::Start)
            frequencies.add(point.start->frequency);
    }
    for (const TrendRequirement& one : trend.required)
        speeds.add(one.speed);
    TrendScales scales {abscissaRange(trend), rangeAround(speeds, leastSpeed, Steps::Whole),
                        rangeAround(frequencies, leastFrequency, Steps::Any)};
    setDecimals(scales.speed);
    setDecimals(scales.frequency);
    return scales;
}

} // namespace tarsil
