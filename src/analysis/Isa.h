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

} // namespace tarsil::ISA
