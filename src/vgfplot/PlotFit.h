// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil {

class EvmPlot;

/// Fits the axes of a plot to its curves (`fitAxes`). The speed axis is then at a positive damping,
/// so a damping line "g = 0" shows where curves become unstable: what crosses the axis does not.
void fitToCurves(EvmPlot& plot);

/// Removes that line; for axes that are given afterwards. Does not draw.
void removeZeroLine(EvmPlot& plot);

} // namespace tarsil
