#pragma once

#include "model/PlotAxes.h"
#include "plotwindow/PlotHighlight.h"
#include "stability/DoubtModel.h"
#include "stability/PlotStability.h"

namespace tarsil {

/// How a stretch is shown in a plot: its range, and a ring where it starts and where it ends as far
/// as these have a speed.
PlotHighlight highlightOf(const PlotStretch& stretch);

/// How a doubt is shown: the step, and rings around the points of both modes after it.
PlotHighlight highlightOf(const PlotDoubt& doubt);

/// The axes around the start of a stretch, or around its end, or its peak, where the one before is
/// missing: a quarter of the speed to both sides, damping and frequency as the points beside it
/// need, in round numbers. Titles and the direction of the damping axis stay as in `axes`.
PlotAxes axesAround(const PlotStretch& stretch, PlotAxes axes);

} // namespace tarsil
