#pragma once

#include <string>

namespace tarsil {
struct StabilityReport;
}

namespace tarsil::batch {

/// The stretches of some evolutions as JSON: everything that was found, noise and weak ones
/// included, with the verdicts, the margin where one is asked for, the settings, the program, and
/// each source file as it is now.
std::string stabilityJson(const StabilityReport& report);

} // namespace tarsil::batch
