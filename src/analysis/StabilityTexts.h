// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/Stability.h"

#include <string>

namespace tarsil {

/// The verdict as one line: "266.24 +- 0.01 KEAS, 11.15 Hz, flutter, mode 2 (A)", "unstable from
/// the first speed: modes 2, 3" or "no instability up to 420 KEAS".
std::string verdictText(const StabilityVerdict& verdict, float lastSpeed);

/// The speed of a point in KEAS, rounded to a hundredth: "266.5".
std::string speedText(double speed);

/// The uncertainty of a crossing's speed in KEAS, from the curve through its points: "0.01".
std::string doubtText(const Crossing& crossing);

/// "becomes unstable" (up to the last speed), "hump", "becomes stable" or "unstable throughout".
std::string directionText(const Stretch& stretch);

/// Remarks: "unstable from the first speed", "up to the last speed", and the interval of a crossing
/// between different roots.
std::string remarkText(const Stretch& stretch);

/// "3 noise, 1 weak stretches left out".
std::string leftOutText(std::size_t noise, std::size_t weak);

/// All settings as one line.
std::string settingsText(const StabilitySettings& settings);

/// "flutter", "divergence", "mixed"; "A", "B", "C"; "noise", "weak", "real".
std::string nameOf(CrossingKind kind);
std::string nameOf(Confidence confidence);
std::string nameOf(StretchHeight height);

} // namespace tarsil
