// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "vgfplot/EvmPlot.h"

#include <QPoint>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace tarsil {

/// A point on a curve: its mode and its values.
struct CurveReading
{
    QString evolution; ///< file name; empty when the mode belongs to no evolution
    std::int16_t mode = 0; ///< the mode number of the file
    QString tag; ///< the series' marker tag
    double speed = 0; ///< knots (KEAS)
    double frequency = 0; ///< Hz
    double damping = 0; ///< dimensionless; negative is stable
    RowId row {}; ///< of the curve
};

/// The values at a pixel of a V-g-f plot.
struct PlotReading
{
    /// The quantity of the rows: frequency above the speed axis, damping on it and below.
    enum class Ordinate { Frequency, Damping };

    double speed = 0; ///< KEAS
    Ordinate ordinate = Ordinate::Frequency;
    double value = 0; ///< Hz, or dimensionless damping
    std::optional<CurveReading> curve; ///< the nearest curve, if one is within reach
};

/// The largest distance of a pixel from a curve in pixels.
constexpr int curveReach = 12;

/// Reads the values at a pixel of the plot by inverting the scales of the canvases. Columns are
/// counted from the left edge of the canvas, rows from the speed axis:
///
///     V = vmin + column (vmax - vmin) / width
///     f = fmin - row (fmax - fmin) / half        rows above the speed axis are negative
///     g = gmin + row (gmax - gmin) / half
///
/// The nearest curve is the one with the drawn segment, clipped to its canvas, closest to the
/// pixel: V-f curves in the upper half, V-g curves in both. Among equal distances the curve drawn
/// last, on top, wins. Values are linear between the two points of the segment, at the foot of the
/// perpendicular or at the nearer end of the segment.
///
/// Empty outside the canvases and when an axis has equal bounds. Ignores series that draw no line
/// (no mode, no line style, too many points), and the gaps of broken
/// curves (`ucPlot::joins`).
std::optional<PlotReading> readAt(const EvmPlot& plot, QPoint pixel);

/// The values of the point with an index, counted from 0, of the curve of a row. The row must have
/// a curve with that point.
CurveReading readPoint(const PlotRow& row, std::size_t point);

/// Whether no axis has equal bounds, so that values have pixels.
bool hasValidScale(const EvmPlot& plot);

/// "V 312.4 KEAS   f 11.25 Hz" (or "g -0.0123"). For a curve there is a second line: "goland.ev2,
/// mode 2 [3]: V 311.9 KEAS, f 11.20 Hz, g -0.0123". Empty parts are omitted.
QString readingText(const PlotReading& reading);

/// The second line.
QString readingText(const CurveReading& curve);

/// Its begin, which names the curve of a row: "goland.ev2, mode 2 [3]". The row must have a curve.
QString curveName(const PlotRow& row);

} // namespace tarsil
