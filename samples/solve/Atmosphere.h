// SPDX-License-Identifier: Apache-2.0

// This header gives the air of the International Standard Atmosphere in the troposphere.
#pragma once

namespace tarsil::goland {

constexpr double seaLevelDensity = 1.225; ///< kg/m^3, ISO 2533
constexpr double metresPerSecondInKnot = 1852.0 / 3600.0;
constexpr double metresInFoot = 0.3048;

/// The air at one altitude.
struct Air
{
    double density = 0.0; ///< kg/m^3
    double soundSpeed = 0.0; ///< m/s
};

/// Density and speed of sound at an altitude in metres from 0 to 11 000 m, after ISO 2533.
Air standardAir(double altitude);

/// True airspeed in m/s of an equivalent airspeed in knots: TAS = EAS sqrt(rho0 / rho).
double trueSpeed(double equivalentKnots, const Air& air);

/// Equivalent airspeed in knots of a true airspeed in m/s.
double equivalentKnots(double trueSpeed, const Air& air);

} // namespace tarsil::goland
