// SPDX-License-Identifier: Apache-2.0

// This header formats runs as the flutter summary that a solver prints.
#pragma once

#include "Cases.h"
#include "FlutterPoint.h"

#include <string>
#include <vector>

namespace tarsil::goland {

/// A subcase of a printed output.
struct SolvedCase
{
    FlutterCase flutterCase;
    FlutterCurves curves;
};

/// The text of a printed output: a subcase for each run, a page for each root, and every second
/// speed as true airspeed in feet per second.
std::string summaryText(const std::vector<SolvedCase>& cases);

} // namespace tarsil::goland
