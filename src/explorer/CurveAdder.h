#pragma once

#include <vector>

namespace tarsil {

class AeMode;
class wndEvolPlot;

/// Adds a series for each mode to the active plot, in this order, and draws the plot. Without an
/// active plot the window tells the user once and nothing changes; without modes nothing happens.
/// Errors: those of drawing; the series are there then.
void addCurves(wndEvolPlot& plots, const std::vector<AeMode*>& modes);

} // namespace tarsil
