// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>

namespace tarsil {

class Point;

/// The flight condition at a crossing, as far as its points and its evolution determine it.
struct FlightCondition
{
    std::optional<double> mach; ///< at the crossing, if the points have Mach numbers
    std::optional<double> altitude; ///< ft
    bool isFromDensity = false; ///< a density altitude; otherwise from speed and Mach number
};

/// The participation factor of largest magnitude at a crossing.
struct DominantFactor
{
    std::size_t number = 0; ///< counted from 1
    double value = 0;
};

/// Whether an altitude (ft) is outside the range of the standard atmosphere, -2,000 to 65,617 ft
/// (20 km). No airplane flies at the speed and Mach number, or at the density, that give it.
bool isOutsideAtmosphere(double altitude);

/// The condition on the straight line between two points, at `part` of the way. If the points have
/// density ratios, the altitude is where the standard atmosphere has that density; otherwise it is
/// the altitude of `speed` (KEAS) at the Mach number (`ISA::IsaAltitude`). `mach` is the Mach
/// number of the evolution for points without one; 0 when unknown.
FlightCondition conditionBetween(const Point& from, const Point& to, double part, double speed,
                                 float mach);

/// The dominant factor there; empty when a point has no factors.
std::optional<DominantFactor> dominantFactorBetween(const Point& from, const Point& to,
                                                    double part);

} // namespace tarsil
