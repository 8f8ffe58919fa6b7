// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/PlotAxes.h"
#include "plot/EmfRichTextBox.h"
#include "plot/SpeedLabels.h"
#include "plot/TrspLabel.h"
#include "plot/UcPlot.h"
#include "plot/XAxis.h"
#include "plot/YAxis.h"
#include "vgfplot/TextBox.h"

#include <QSize>

#include <array>
#include <cstddef>

namespace tarsil {

/// The drawn items of a V-g-f plot. Their scales and positions are set together, so that axes and
/// canvases are consistent.
///
///     f(Hz) |  V-f curves            vfPlot (upper half), freqAxis
///           |
///     ------+----------------- V     velAxis
///           |  V-g curves            vgPlot (both halves), gAxis
///         g |
struct PlotParts
{
    /// The canvases draw the series of `curves`, which must outlive them.
    explicit PlotParts(const PlotContainer& curves);

    emfRichTextBox& box(TextBox box) { return ertbTexts[static_cast<std::size_t>(box)]; }
    const emfRichTextBox& box(TextBox box) const
    {
        return ertbTexts[static_cast<std::size_t>(box)];
    }

    static constexpr std::size_t count = 9 + allTextBoxes.size();

    /// All items; the last one is on top.
    std::array<PlotControl*, count> inDrawingOrder();
    std::array<const PlotControl*, count> inDrawingOrder() const;

    /// The bounds, tick counts and titles of axes and labels.
    PlotAxes axes() const;

    /// Sets the scales of axes and canvases. The V-g canvas spans both halves; its lower half
    /// matches the damping axis.
    void setBounds(const PlotBounds& bounds);

    /// Positions every item in a plot of a given size (`layOutPlot`).
    void layOut(QSize plot);

    ucPlot vgPlot;
    ucPlot vfPlot;
    xAxis velAxis;
    SpeedLabels velLabels {velAxis}; ///< in front of the curves
    yAxis gAxis;
    yAxis freqAxis;
    trspLabel velAxisLabel;
    trspLabel gAxisLabel;
    trspLabel freqAxislabel;
    std::array<emfRichTextBox, allTextBoxes.size()> ertbTexts; ///< by `TextBox`
    double headerTop = 60; ///< upper edge of the header's row in twentieths of a point
};

} // namespace tarsil
