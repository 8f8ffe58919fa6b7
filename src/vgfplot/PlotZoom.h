// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/PlotAxes.h"
#include "vgfplot/ScaleFit.h"

#include <QPoint>
#include <QRect>
#include <QString>

#include <array>
#include <cstddef>

namespace tarsil {

class EvmPlot;

/// The parts of a plot that the pointer can be over. The strips of the axes contain their labels
/// and titles; the strip of the speed axis separates the two halves of the canvases.
enum class PlotZone { Outside, Frequency, Damping, SpeedAxis, FrequencyAxis, DampingAxis };

/// The zone of a pixel of the plot.
PlotZone zoneAt(const EvmPlot& plot, QPoint pixel);

/// A note on a damping axis that does not begin at 0: a curve that crosses the speed axis is not at
/// a flutter speed there. Empty when it begins at 0.
QString axisNote(const EvmPlot& plot);

/// Which of the axes of a zone are changed. On an axis both choices mean that axis.
enum class ZoomChoice { SpeedAndValue, Speed, Value };

/// The axes that a gesture of zooming or panning gives a plot. The values are those of the plot at
/// the begin of the gesture; the layout must not change meanwhile.
///
/// Tick labels always show the exact values of their ticks: bounds and ticks are multiples of a
/// step that the labels can show. An axis keeps its direction and at least four of the smallest
/// steps. One that does not cross 0 never will: speeds and frequencies are not negative, and
/// zooming out returns a damping of 0 to the speed axis.
class PlotZoom
{
public:
    explicit PlotZoom(const EvmPlot& plot);

    /// The visible rubber band between two pixels. Within one half it is their rectangle. It has
    /// the full height of the canvases when it touches both halves or is flat (the speeds alone
    /// are chosen), and their full width when it is narrow (the values alone are).
    QRect band(QPoint from, QPoint to) const;

    /// The axes that show the band. Unchanged when the pixels are nearly the same.
    PlotAxes into(QPoint from, QPoint to) const;

    /// Enlarges the scale by `notches` of a wheel, or reduces it when negative, about a pixel.
    /// Repeated calls add up without rounding errors.
    PlotAxes turn(QPoint pixel, double notches, ZoomChoice choice = ZoomChoice::SpeedAndValue);

    /// The axes after the plot was dragged from a pixel to another. It moves straight while the
    /// pointer is nearly on a level with `from`, so that dragging along the speeds keeps dampings.
    PlotAxes panned(QPoint from, QPoint to, ZoomChoice choice = ZoomChoice::SpeedAndValue) const;

private:
    /// The axes in the order of `PlotBounds`.
    enum Axis : std::size_t { Speed, Frequency, Damping };
    static constexpr std::size_t axisCount = 3;

    /// The values at the begin and the end of an axis.
    struct Span
    {
        double first;
        double last;
    };

    /// What a band chooses.
    struct Chosen
    {
        bool speed;
        bool value;
        Axis axis; ///< of the value
    };

    static Steps stepsOf(std::size_t axis);
    static AxisValues& valuesOf(PlotAxes& axes, std::size_t axis);
    std::array<bool, axisCount> changedAxes(QPoint pixel, ZoomChoice choice) const;
    double fractionAt(std::size_t axis, QPoint pixel) const;
    Chosen chosenBy(QPoint from, QPoint to) const;
    void narrow(std::size_t axis, QPoint from, QPoint to, PlotAxes& axes) const;
    Span limited(std::size_t axis, Span span) const;
    Span scaled(std::size_t axis, double fraction, double factor) const;
    void shift(std::size_t axis, double fraction, PlotAxes& axes) const;

    const EvmPlot& m_plot;
    PlotAxes m_axes; ///< of the plot at the begin
    QRect m_upper; ///< the half of the frequencies
    QRect m_lower; ///< the half of the dampings
    std::array<Span, axisCount> m_start; ///< at the begin
    std::array<Span, axisCount> m_spans; ///< after the turns, not rounded
    std::array<bool, axisCount> m_isTurned {};
};

} // namespace tarsil
