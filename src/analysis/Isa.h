// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

/// The International Standard Atmosphere for the flutter report.
namespace tarsil::ISA {

/// Returns the pressure altitude in feet at which an equivalent airspeed and a Mach number occur
/// together.
///
/// `units` is the unit of `eas`: "mps" (metres per second) or "knot", case-sensitive; any other
/// text makes the speed 0. The dynamic pressure gives (eas / mach)^2 = a0^2 * delta, where a0 is
/// the speed of sound at sea level and delta the pressure ratio. The altitude follows from delta by
/// ISO 2533: the power law below the tropopause, the exponential law above. The constants are
/// rounded, so the two laws differ by up to a foot and a half at 36089 ft. Errors: 11 for Mach 0, 5
/// for speed 0 (logarithm of 0), 6 for a ratio outside the range of a double.
double IsaAltitude(double eas, double mach, std::string_view units);

/// The density altitude in feet: where the standard atmosphere has this density relative to sea
/// level, which must be positive. Density is pressure over temperature in the same atmosphere:
/// sigma = theta^4.2561 below the tropopause, 0.29707 exp(-4.8063e-5 (h - 36089)) above.
double densityAltitude(double densityRatio);

} // namespace tarsil::ISA
