// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

namespace tarsil {

class AeMode;
class wndEvolPlot;

/// Adds a series for each mode to the active plot, in this order. Without an active plot it shows
/// one message and changes nothing.
void addCurves(wndEvolPlot& plots, const std::vector<AeMode*>& modes);

} // namespace tarsil
