// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/PlotAxes.h"
#include "plotwindow/PlotHighlight.h"
#include "plotwindow/PlotSigns.h"
#include "stability/DoubtModel.h"
#include "stability/PlotStability.h"

namespace tarsil {

/// The highlight of a stretch: its range, and a ring at its start and its end if they have a speed.
PlotHighlight highlightOf(const PlotStretch& stretch);

/// The highlight of a doubtful step: its range, and rings around the points of both modes after it.
PlotHighlight highlightOf(const PlotDoubt& doubt);

/// The signs of doubtful steps at the first point after each, in their order; strong for a jump.
/// Only steps of tracked evolutions whose mode has a curve in the plot have a sign; `rows` receives
/// the indices of these steps.
PlotSigns signsOf(const std::vector<PlotDoubt>& doubts, const EvmPlot& plot,
                  std::vector<std::size_t>& rows);

/// Axes around the start of a stretch; around its end if it has no start; around its peak if it has
/// neither: a quarter of the speed to either side, with round bounds of damping and frequency that
/// include the points around it. Keeps the titles and the direction of the damping axis of `axes`.
PlotAxes axesAround(const PlotStretch& stretch, PlotAxes axes);

} // namespace tarsil
