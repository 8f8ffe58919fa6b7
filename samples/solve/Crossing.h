// SPDX-License-Identifier: Apache-2.0

// This header finds the flutter speeds in the curves of a flutter solution.
#pragma once

#include "FlutterPoint.h"

#include <vector>

namespace tarsil::goland {

/// A zero of the damping of a mode.
struct Crossing
{
    int mode = 0; ///< numbered from 1
    double knots = 0.0; ///< KEAS
    double frequency = 0.0; ///< Hz
    bool becomesUnstable = false; ///< damping grows through zero with the speed
};

/// All zeros of the damping by linear interpolation between neighbouring points, mode by mode.
std::vector<Crossing> findCrossings(const FlutterCurves& curves);

} // namespace tarsil::goland
