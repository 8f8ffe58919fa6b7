// SPDX-License-Identifier: Apache-2.0
#include "stability/CrossingView.h"

#include "analysis/TrackedFile.h"
#include "model/EVM.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/ScaleFit.h"

#include <algorithm>
#include <cmath>

namespace tarsil {

namespace {

void addRing(const std::optional<Crossing>& crossing, float level, PlotHighlight& highlight)
{
    if (crossing && hasSpeed(*crossing))
        highlight.rings.push_back({crossing->speed, crossing->frequency, level});
}

/// The part of a stretch to show.
struct Target
{
    double speed;
    double frequency;
};

Target targetOf(const Stretch& stretch)
{
    if (stretch.start)
        return {stretch.start->speed, stretch.start->frequency};
    if (stretch.end)
        return {stretch.end->speed, stretch.end->frequency};
    return {stretch.peakSpeed, stretch.peakFrequency};
}

/// A range of values.
struct Span
{
    double low;
    double high;

    void add(double value)
    {
        low = std::min(low, value);
        high = std::max(high, value);
    }
};

/// Sets round bounds and ticks.
void setRange(AxisValues& axis, const Span& span, Steps steps = Steps::Any)
{
    const RoundRange range = roundRange(span.low, span.high, steps);
    axis.min = static_cast<float>(range.low);
    axis.max = static_cast<float>(range.high);
    axis.ticks = static_cast<std::int16_t>(range.steps);
}

const AeMode* modeOf(const EVM& evolution, std::int16_t number)
{
    for (const auto& mode : evolution.Modes) {
        if (mode->Id == number)
            return mode.get();
    }
    return nullptr;
}

/// A ring around the point of a mode at a speed.
void addRing(const EVM& evolution, std::int16_t number, float speed, PlotHighlight& highlight)
{
    const AeMode* const mode = modeOf(evolution, number);
    if (mode == nullptr)
        return;
    for (const Point& point : mode->Points) {
        if (point.speed == speed)
            highlight.rings.push_back({point.speed, point.f, point.G});
    }
}

/// The point of the mode after a doubtful step; null when it does not exist.
const Point* pointAfter(const EVM& evolution, const TrackingDoubt& step)
{
    const AeMode* const mode = modeOf(evolution, step.mode);
    if (mode == nullptr)
        return nullptr;
    const auto found =
        std::find_if(mode->Points.begin(), mode->Points.end(),
                     [&step](const Point& point) { return point.speed == step.toSpeed; });
    return found == mode->Points.end() ? nullptr : &*found;
}

bool hasCurveOf(const EvmPlot& plot, const AeMode& mode)
{
    const SeriesList& series = plot.SeriesCollection();
    return std::any_of(series.begin(), series.end(),
                       [&mode](const Series& one) { return one.Mode == &mode; });
}

} // namespace

PlotSigns signsOf(const std::vector<PlotDoubt>& doubts, const EvmPlot& plot,
                  std::vector<std::size_t>& rows)
{
    PlotSigns signs;
    rows.clear();
    for (std::size_t i = 0; i < doubts.size(); ++i) {
        const TrackingDoubt& step = doubts[i].doubt;
        const EVM& evolution = *doubts[i].evolution;
        const Point* const point = pointAfter(evolution, step);
        if (!isTracked(evolution) || point == nullptr || !hasCurveOf(plot, *point->Parent))
            continue;
        signs.push_back({point->speed, point->f, point->G, step.isJump});
        rows.push_back(i);
    }
    return signs;
}

PlotHighlight highlightOf(const PlotDoubt& doubt)
{
    const TrackingDoubt& step = doubt.doubt;
    PlotHighlight highlight {step.fromSpeed, step.toSpeed, {}};
    for (const std::int16_t mode : {step.mode, step.nearestMode})
        addRing(*doubt.evolution, mode, step.toSpeed, highlight);
    return highlight;
}

PlotHighlight highlightOf(const PlotStretch& stretch)
{
    const Stretch& found = stretch.line.stretch;
    PlotHighlight highlight;
    highlight.toSpeed = lastSpeedOf(*stretch.evolution);
    if (found.start)
        highlight.fromSpeed = hasSpeed(*found.start) ? found.start->speed : found.start->fromSpeed;
    if (found.end)
        highlight.toSpeed = hasSpeed(*found.end) ? found.end->speed : found.end->toSpeed;
    addRing(found.start, stretch.line.level, highlight);
    addRing(found.end, stretch.line.level, highlight);
    return highlight;
}

PlotAxes axesAround(const PlotStretch& stretch, PlotAxes axes)
{
    constexpr double part = 0.25; ///< of the speed, to either side
    constexpr double leastDamping = 0.05;
    constexpr double mostDamping = 0.25;
    const Target target = targetOf(stretch.line.stretch);
    const Span speeds {target.speed * (1 - part), target.speed * (1 + part)};
    Span dampings {stretch.line.level - leastDamping, stretch.line.level + leastDamping};
    Span frequencies {target.frequency * (1 - part), target.frequency * (1 + part)};
    if (const AeMode* const mode = modeOf(*stretch.evolution, stretch.line.mode)) {
        for (const Point& point : mode->Points) {
            if (point.speed < speeds.low || point.speed > speeds.high)
                continue;
            dampings.add(std::clamp<double>(point.G, -mostDamping, mostDamping));
            frequencies.add(point.f);
        }
    }
    const bool isUpsideDown = axes.damping.max < axes.damping.min;
    setRange(axes.speed, speeds, Steps::Whole);
    setRange(axes.frequency, frequencies);
    setRange(axes.damping, dampings);
    if (isUpsideDown)
        std::swap(axes.damping.min, axes.damping.max);
    return axes;
}

} // namespace tarsil
