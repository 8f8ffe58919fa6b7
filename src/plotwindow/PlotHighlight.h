// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

class QPainter;

namespace tarsil {

class EvmPlot;

/// A highlight in a plot, on the screen only: a range of speeds, and rings around points of both
/// curves of a mode.
struct PlotHighlight
{
    struct Ring
    {
        double speed = 0; ///< KEAS
        double frequency = 0; ///< Hz
        double damping = 0; ///< dimensionless; negative is stable
    };

    double fromSpeed = 0; ///< KEAS
    double toSpeed = 0; ///< KEAS
    std::vector<Ring> rings;
};

/// Paints the part of a highlight inside the canvases over the picture of a plot.
void paintHighlight(const PlotHighlight& highlight, const EvmPlot& plot, QPainter& painter);

/// Paints a ring around its points in both canvases over the picture of a plot.
void paintRing(const EvmPlot& plot, const PlotHighlight::Ring& ring, QPainter& painter);

} // namespace tarsil
