#pragma once

#include "vgfplot/EvmPlot.h"

#include <QPoint>
#include <QString>

#include <cstdint>
#include <optional>

namespace tarsil {

/// A place on a curve: whose curve it is, and its values there.
struct CurveReading
{
    QString evolution; ///< file name; empty when the mode belongs to no evolution
    std::int16_t mode = 0; ///< the mode number as written in the file
    QString tag; ///< the series' marker tag
    double speed = 0; ///< knots (KEAS)
    double frequency = 0; ///< Hz
    double damping = 0; ///< dimensionless; negative is stable
};

/// What a pixel of a V-g-f plot stands for.
struct PlotReading
{
    /// What the rows mean: frequency above the speed axis, damping on it and below.
    enum class Ordinate { Frequency, Damping };

    double speed = 0; ///< knots (KEAS)
    Ordinate ordinate = Ordinate::Frequency;
    double value = 0; ///< Hz, or dimensionless damping
    std::optional<CurveReading> curve; ///< the nearest curve, when there is one within reach
};

/// How far from a curve a pixel may be, in pixels, to be a place on it.
constexpr int curveReach = 12;

/// The values at a pixel of the plot, by the inverse of the canvases' scales, with columns counted
/// from the canvas' left edge and rows from the row of the speed axis:
///
///     V = vmin + column (vmax - vmin) / width
///     f = fmin - row (fmax - fmin) / half        rows above the speed axis are negative
///     g = gmin + row (gmax - gmin) / half
///
/// The nearest curve is the one whose drawn segments, as far as they lie in their canvas, come
/// closest to the pixel: V-f curves in the upper half, V-g curves in both, since their canvas spans
/// both. Of equal distances the one drawn last counts, which lies on top. Its values are linear
/// between the two points of the segment, at the foot of the perpendicular (or at the segment's end
/// when the foot lies beyond it).
///
/// None outside the canvases, and none when the bounds of an axis are equal: no value belongs to a
/// pixel then. Series that draw no line (no mode, no line style, too many points) are passed over.
std::optional<PlotReading> readAt(const EvmPlot& plot, QPoint pixel);

/// "V 312.4 KEAS   f 11.25 Hz" (or "g -0.0123"), and for a curve a second line
/// "goland.ev2, mode 2 [3]: V 311.9 KEAS, f 11.20 Hz, g -0.0123"; what is empty is left out.
QString readingText(const PlotReading& reading);

} // namespace tarsil
