#pragma once

#include <vector>

namespace tarsil {

class AeMode;
class wndEvolPlot;

/// Adds a series for each mode to the active plot, in this order. Without an active plot the user
/// gets one message and nothing changes.
void addCurves(wndEvolPlot& plots, const std::vector<AeMode*>& modes);

} // namespace tarsil
