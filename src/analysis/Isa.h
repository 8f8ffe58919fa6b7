#pragma once

#include <string_view>

/// The International Standard Atmosphere, as far as the flutter report needs it.
namespace tarsil::ISA {

/// The pressure altitude in feet at which an equivalent airspeed and a Mach number occur together.
///
/// `eas` is in the unit that `units` names: "mps" (metres per second) or "knot", exactly so; with
/// any other text the speed is 0. From dynamic pressure, (eas / mach)^2 = a0^2 * delta, where a0 is
/// the speed of sound at sea level and delta the pressure ratio; the altitude follows from delta by
/// the pressure laws of ISO 2533: the power law below the tropopause, the exponential one above.
/// The constants are rounded, so that the two meet within a foot and a half at 36089 ft. Errors: 11
/// for Mach 0, 5 for speed 0 (logarithm of 0), 6 for a ratio beyond the range of a double.
double IsaAltitude(double eas, double mach, std::string_view units);

/// The density altitude in feet: where the standard atmosphere has this density as a ratio to that
/// at sea level, which must be greater than 0. Density is pressure over temperature of the same
/// atmosphere: sigma = theta^4.2561 below the tropopause, 0.29707 exp(-4.8063e-5 (h - 36089))
/// above.
double densityAltitude(double densityRatio);

} // namespace tarsil::ISA
