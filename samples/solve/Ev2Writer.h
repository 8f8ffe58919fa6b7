// SPDX-License-Identifier: Apache-2.0

// This header writes the result of a run as an .ev2 file.
#pragma once

#include "Cases.h"
#include "FlutterPoint.h"

#include <string>

namespace tarsil::goland {

/// The text of the .ev2 file of a run; the damping is negative when stable.
std::string ev2Text(const FlutterCase& flutterCase, const FlutterCurves& curves);

} // namespace tarsil::goland
