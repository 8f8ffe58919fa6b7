#pragma once

#include <cstddef>
#include <optional>

namespace tarsil {

class Point;

/// The flight condition that belongs to a crossing, as far as its points and its evolution say it.
struct FlightCondition
{
    std::optional<double> mach; ///< at the crossing where the points have Mach numbers
    std::optional<double> altitude; ///< ft
    bool isFromDensity = false; ///< a density altitude; otherwise the one of speed and Mach number
};

/// The participation factor of largest magnitude at a crossing.
struct DominantFactor
{
    std::size_t number = 0; ///< counted from 1
    double value = 0;
};

/// Whether an altitude (ft) lies outside the standard atmosphere's range of -2,000 to 65,617 ft
/// (20 km): no airplane has the speed and Mach number, or the density, that it stands for.
bool isOutsideAtmosphere(double altitude);

/// The condition on the straight line between two points, at `part` of the way. Points that carry a
/// density ratio give the altitude at which the standard atmosphere has it; others the altitude of
/// `speed` (KEAS) at the Mach number (`ISA::IsaAltitude`). `mach` is that of the whole evolution,
/// for points that carry none; 0 when it is not known.
FlightCondition conditionBetween(const Point& from, const Point& to, double part, double speed,
                                 float mach);

/// The largest factor there; nothing when one of the points has no factors.
std::optional<DominantFactor> dominantFactorBetween(const Point& from, const Point& to,
                                                    double part);

} // namespace tarsil
