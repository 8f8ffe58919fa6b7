// SPDX-License-Identifier: Apache-2.0

// This file computes the standard atmosphere and the conversions between airspeeds.
#include "Atmosphere.h"

#include <cmath>

namespace tarsil::goland {

Air standardAir(double altitude)
{
    const double seaLevelTemperature = 288.15;
    const double lapseRate = 0.0065;
    const double gasConstant = 287.05287;
    const double gravity = 9.80665;
    const double heatRatio = 1.4;
    const double temperature = seaLevelTemperature - lapseRate * altitude;
    const double exponent = gravity / (gasConstant * lapseRate) - 1.0;
    Air air;
    air.density = seaLevelDensity * std::pow(temperature / seaLevelTemperature, exponent);
    air.soundSpeed = std::sqrt(heatRatio * gasConstant * temperature);
    return air;
}

double trueSpeed(double equivalentKnots, const Air& air)
{
    return equivalentKnots * metresPerSecondInKnot * std::sqrt(seaLevelDensity / air.density);
}

double equivalentKnots(double trueSpeed, const Air& air)
{
    return trueSpeed / metresPerSecondInKnot * std::sqrt(air.density / seaLevelDensity);
}

} // namespace tarsil::goland
