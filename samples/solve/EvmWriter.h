// SPDX-License-Identifier: Apache-2.0

// This header writes the result of a run as an .evm file, the older form with fixed columns.
#pragma once

#include "Cases.h"
#include "FlutterPoint.h"

#include <string>

namespace tarsil::goland {

/// The text of the .evm file of a run; the damping has the opposite sign, positive when stable.
std::string evmText(const FlutterCase& flutterCase, const FlutterCurves& curves);

} // namespace tarsil::goland
