// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>

#include <cstddef>
#include <optional>
#include <vector>

class QPainter;

namespace tarsil {

class EvmPlot;

/// A sign at a point of both curves of a mode, on the screen only: something to check, which the
/// user can click.
struct PlotSign
{
    double speed = 0; ///< KEAS
    double frequency = 0; ///< Hz
    double damping = 0; ///< dimensionless; negative is stable
    bool isStrong = false; ///< red instead of yellow
};

using PlotSigns = std::vector<PlotSign>;

/// Paints signs inside the canvases over the picture of a plot: triangles with an exclamation mark,
/// each above its point.
void paintSigns(const PlotSigns& signs, const EvmPlot& plot, QPainter& painter);

/// The index of the sign that covers a pixel of the plot, the last one painted there; empty when
/// there is none.
std::optional<std::size_t> signAt(const PlotSigns& signs, const EvmPlot& plot, QPoint pixel);

} // namespace tarsil
