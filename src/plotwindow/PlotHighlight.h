#pragma once

#include <vector>

class QPainter;

namespace tarsil {

class EvmPlot;

/// What is pointed out in a plot, on the screen only: a range of speeds, and rings around points of
/// both curves of a mode.
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

/// Paints a highlight over the picture of a plot, as far as it lies in the canvases.
void paintHighlight(const PlotHighlight& highlight, const EvmPlot& plot, QPainter& painter);

} // namespace tarsil
