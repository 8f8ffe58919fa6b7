// SPDX-License-Identifier: Apache-2.0
#include "analysis/Isa.h"

#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"

#include <cmath>
#include <string>

namespace tarsil::ISA {

namespace {

constexpr double knotsPerMetrePerSecond = 1.94384449244;
constexpr double squareOfSoundSpeed = 115794.8064; // at sea level, (m/s)^2
constexpr double tropopauseRatio = 0.223358;
constexpr double tropopauseAltitude = 36089; // ft
constexpr double pressureExponent = 5.2561;
constexpr double densityExponent = pressureExponent - 1;
constexpr double zeroTemperatureAltitude = 288.15 / 0.0019812; // temperature over lapse rate, ft

/// The logarithmic decay of pressure, and so of density, per foot above the tropopause.
double decayPerFoot()
{
    return -4.8063 * std::pow(10.0, -5.0);
}

double metresPerSecond(double speed, std::string_view units)
{
    if (units == "mps")
        return speed;
    if (units == "knot")
        return speed / knotsPerMetrePerSecond;
    return 0;
}

[[noreturn]] void failAtCondition(ErrorNumber number, double eas, double mach,
                                  std::string_view units)
{
    throw RunTimeError(number, "ISA",
                       "altitude of " + shortestText(eas) + " " + std::string(units) + " at Mach "
                           + shortestText(mach));
}

} // namespace

double IsaAltitude(double eas, double mach, std::string_view units)
{
    const double speed = metresPerSecond(eas, units);
    if (mach == 0)
        failAtCondition(ErrorNumber::DivisionByZero, eas, mach, units);
    const double ratio = speed / mach;
    const double delta = ratio * ratio / squareOfSoundSpeed;
    if (!std::isfinite(delta))
        failAtCondition(ErrorNumber::Overflow, eas, mach, units);
    if (delta > tropopauseRatio)
        return (1 - std::pow(delta, 1 / pressureExponent)) * zeroTemperatureAltitude;
    if (delta == 0)
        failAtCondition(ErrorNumber::InvalidProcedureCall, eas, mach, units);
    return std::log(delta / tropopauseRatio) / decayPerFoot() + tropopauseAltitude;
}

double densityAltitude(double densityRatio)
{
    const double tropopauseTheta = 1 - tropopauseAltitude / zeroTemperatureAltitude;
    const double atTropopause = std::pow(tropopauseTheta, densityExponent);
    if (densityRatio > atTropopause)
        return (1 - std::pow(densityRatio, 1 / densityExponent)) * zeroTemperatureAltitude;
    return std::log(densityRatio / atTropopause) / decayPerFoot() + tropopauseAltitude;
}

} // namespace tarsil::ISA
