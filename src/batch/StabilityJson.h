// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace tarsil {
struct StabilityReport;
}

namespace tarsil::batch {

/// The stability of evolutions as JSON: all stretches, also noise and weak ones, the verdicts, the
/// margin if requested, the settings, the program, and each source file as it is now.
std::string stabilityJson(const StabilityReport& report);

} // namespace tarsil::batch
