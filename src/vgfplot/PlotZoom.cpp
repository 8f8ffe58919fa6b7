// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotZoom.h"

#include "base/numbers/Numbers.h"
#include "vgfplot/EvmPlot.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarsil {

namespace {

// Pixels.
constexpr int aboveSpeedAxis = 6;
constexpr int belowSpeedAxis = 20; ///< contains the tick labels
constexpr int leftOfCanvas = 60; ///< contains the tick labels
constexpr int leastBand = 8; ///< a narrower band chooses nothing in that direction

constexpr double factorOfNotch = 0.8;
constexpr double mostValue = 1e6;
constexpr int fewestSteps = 4;
constexpr int stepsOfPanning = 20; ///< for each interval between ticks

QRect lowerHalf(const EvmPlot& plot)
{
    QRect half = plot.parts().vgPlot.geometry();
    half.setTop(plot.parts().vfPlot.geometry().bottom() + 1);
    return half;
}

/// Writes a range to an axis, in the direction of `reversed`.
void setAxisRange(AxisValues& axis, const RoundRange& range, bool reversed)
{
    axis.min = static_cast<float>(reversed ? range.high : range.low);
    axis.max = static_cast<float>(reversed ? range.low : range.high);
    axis.ticks = static_cast<std::int16_t>(range.steps);
}

} // namespace

PlotZone zoneAt(const EvmPlot& plot, QPoint pixel)
{
    const PlotParts& parts = plot.parts();
    const QRect upper = parts.vfPlot.geometry();
    const QRect lower = lowerHalf(plot);
    const QRect speeds(upper.left(), lower.top() - aboveSpeedAxis, upper.width(),
                       aboveSpeedAxis + belowSpeedAxis);
    const auto strip = [](const QRect& half) {
        return QRect(half.left() - leftOfCanvas, half.top(), leftOfCanvas, half.height());
    };
    if (speeds.contains(pixel) || parts.velAxisLabel.geometry().contains(pixel))
        return PlotZone::SpeedAxis;
    if (strip(upper).contains(pixel) || parts.freqAxislabel.geometry().contains(pixel))
        return PlotZone::FrequencyAxis;
    if (strip(lower).contains(pixel) || parts.gAxisLabel.geometry().contains(pixel))
        return PlotZone::DampingAxis;
    if (upper.contains(pixel))
        return PlotZone::Frequency;
    return lower.contains(pixel) ? PlotZone::Damping : PlotZone::Outside;
}

QString axisNote(const EvmPlot& plot)
{
    const double damping = plot.parts().gAxis.Min();
    if (damping == 0)
        return {};
    return QStringLiteral("The speed axis is at the damping ")
        + QString::fromStdString(shortestText(damping));
}

PlotZoom::PlotZoom(const EvmPlot& plot)
    : m_plot(plot), m_axes(plot.axes()), m_upper(plot.parts().vfPlot.geometry()),
      m_lower(lowerHalf(plot)), m_start {}, m_spans {}
{
    for (std::size_t axis = 0; axis < axisCount; ++axis) {
        const AxisValues& values = valuesOf(m_axes, axis);
        m_start[axis] = {decimalValue(values.min), decimalValue(values.max)};
    }
    m_spans = m_start;
}

Steps PlotZoom::stepsOf(std::size_t axis)
{
    constexpr std::array<Steps, axisCount> steps = {Steps::Whole, Steps::Hundredths,
                                                    Steps::Thousandths};
    return steps[axis];
}

AxisValues& PlotZoom::valuesOf(PlotAxes& axes, std::size_t axis)
{
    const std::array<AxisValues*, axisCount> all = {&axes.speed, &axes.frequency, &axes.damping};
    return *all[axis];
}

std::array<bool, PlotZoom::axisCount> PlotZoom::changedAxes(QPoint pixel, ZoomChoice choice) const
{
    const bool hasSpeed = choice != ZoomChoice::Value;
    const bool hasValue = choice != ZoomChoice::Speed;
    switch (zoneAt(m_plot, pixel)) {
    case PlotZone::Frequency:
        return {hasSpeed, hasValue, false};
    case PlotZone::Damping:
        return {hasSpeed, false, hasValue};
    case PlotZone::SpeedAxis:
        return {true, false, false};
    case PlotZone::FrequencyAxis:
        return {false, true, false};
    case PlotZone::DampingAxis:
        return {false, false, true};
    case PlotZone::Outside:
        break;
    }
    return {};
}

/// The position of a pixel along an axis: 0 at its begin, 1 at its end.
double PlotZoom::fractionAt(std::size_t axis, QPoint pixel) const
{
    const double row = pixel.y() - m_lower.top();
    if (axis == Speed)
        return static_cast<double>(pixel.x() - m_upper.left()) / std::max(m_upper.width(), 1);
    return (axis == Frequency ? -row : row) / std::max(m_upper.height(), 1);
}

PlotZoom::Chosen PlotZoom::chosenBy(QPoint from, QPoint to) const
{
    const QPoint size = to - from;
    const bool isUpper = from.y() < m_lower.top();
    const bool touchesBoth = isUpper != (to.y() < m_lower.top());
    const bool isFlat = std::abs(size.y()) < leastBand;
    return {std::abs(size.x()) >= leastBand, !touchesBoth && !isFlat,
            isUpper ? Frequency : Damping};
}

QRect PlotZoom::band(QPoint from, QPoint to) const
{
    const Chosen chosen = chosenBy(from, to);
    const QRect canvases = m_upper | m_lower;
    if (!chosen.speed && !chosen.value)
        return {};
    QRect band = QRect(from, to).normalized() & canvases;
    if (!chosen.value) {
        band.setTop(canvases.top());
        band.setBottom(canvases.bottom());
    }
    if (!chosen.speed) {
        band.setLeft(canvases.left());
        band.setRight(canvases.right());
    }
    return band;
}

PlotAxes PlotZoom::into(QPoint from, QPoint to) const
{
    const Chosen chosen = chosenBy(from, to);
    PlotAxes axes = m_axes;
    if (chosen.speed)
        narrow(Speed, from, to, axes);
    if (chosen.value)
        narrow(chosen.axis, from, to, axes);
    return axes;
}

/// Sets an axis to the values between two pixels, out to the next round ones.
void PlotZoom::narrow(std::size_t axis, QPoint from, QPoint to, PlotAxes& axes) const
{
    const Span start = m_start[axis];
    const auto valueAt = [&](QPoint pixel) {
        return std::lerp(start.first, start.last, std::clamp(fractionAt(axis, pixel), 0.0, 1.0));
    };
    const Span span = limited(axis, {valueAt(from), valueAt(to)});
    const auto [low, high] = std::minmax(span.first, span.last);
    setAxisRange(valuesOf(axes, axis), roundRange(low, high, stepsOf(axis)),
                 start.last < start.first);
}

/// The span, extended to the shortest one if necessary, within 0 and the largest value.
PlotZoom::Span PlotZoom::limited(std::size_t axis, Span span) const
{
    const double least = fewestSteps * smallestStep(stepsOf(axis));
    const auto [startLow, startHigh] = std::minmax(m_start[axis].first, m_start[axis].last);
    const double lowest = startLow >= 0 ? 0 : std::min(startLow, -mostValue);
    const double highest = startLow < 0 && startHigh <= 0 ? 0 : std::max(startHigh, mostValue);
    const double centre = (span.first + span.last) / 2;
    const double half = std::max(std::fabs(span.last - span.first), least) / 2;
    const double low = std::clamp(centre - half, lowest, highest - least);
    const double high = std::clamp(centre + half, low + least, highest);
    return span.last < span.first ? Span {high, low} : Span {low, high};
}

/// A span after scaling about the position `fraction`.
PlotZoom::Span PlotZoom::scaled(std::size_t axis, double fraction, double factor) const
{
    const Span span = m_spans[axis];
    const double centre = std::lerp(span.first, span.last, fraction);
    return limited(axis,
                   {std::lerp(centre, span.first, factor), std::lerp(centre, span.last, factor)});
}

PlotAxes PlotZoom::turn(QPoint pixel, double notches, ZoomChoice choice)
{
    const std::array<bool, axisCount> changed = changedAxes(pixel, choice);
    const double factor = std::pow(factorOfNotch, notches);
    PlotAxes axes = m_axes;
    for (std::size_t axis = 0; axis < axisCount; ++axis) {
        if (changed[axis]) {
            m_spans[axis] = scaled(axis, fractionAt(axis, pixel), factor);
            m_isTurned[axis] = true;
        }
        if (!m_isTurned[axis])
            continue;
        const auto [low, high] = std::minmax(m_spans[axis].first, m_spans[axis].last);
        setAxisRange(valuesOf(axes, axis), nearestRoundRange(low, high, stepsOf(axis)),
                     m_start[axis].last < m_start[axis].first);
    }
    return axes;
}

PlotAxes PlotZoom::panned(QPoint from, QPoint to, ZoomChoice choice) const
{
    const std::array<bool, axisCount> changed = changedAxes(from, choice);
    if (std::abs(to.x() - from.x()) < leastBand)
        to.setX(from.x());
    if (std::abs(to.y() - from.y()) < leastBand)
        to.setY(from.y());
    PlotAxes axes = m_axes;
    for (std::size_t axis = 0; axis < axisCount; ++axis) {
        if (changed[axis] && fractionAt(axis, from) != fractionAt(axis, to))
            shift(axis, fractionAt(axis, from) - fractionAt(axis, to), axes);
    }
    return axes;
}

/// Moves an axis by a fraction of its length, in steps that its labels can show, but not beyond 0.
void PlotZoom::shift(std::size_t axis, double fraction, PlotAxes& axes) const
{
    const Span start = m_start[axis];
    AxisValues& values = valuesOf(axes, axis);
    const double length = std::fabs(start.last - start.first);
    const double step =
        roundStep(length / (std::max<int>(values.ticks, 1) * stepsOfPanning), stepsOf(axis));
    const auto [low, high] = std::minmax(start.first, start.last);
    double distance = std::nearbyint(fraction * (start.last - start.first) / step) * step;
    if (low >= 0)
        distance = std::max(distance, -low);
    if (high <= 0)
        distance = std::min(distance, -high);
    values.min = static_cast<float>(start.first + distance);
    values.max = static_cast<float>(start.last + distance);
}

} // namespace tarsil
