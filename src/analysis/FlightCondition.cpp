// SPDX-License-Identifier: Apache-2.0
#include "analysis/FlightCondition.h"

#include "analysis/Isa.h"
#include "model/Point.h"

#include <algorithm>
#include <cmath>

namespace tarsil {

namespace {

double between(float from, float to, double part)
{
    return from + part * (static_cast<double>(to) - from);
}

} // namespace

bool isOutsideAtmosphere(double altitude)
{
    constexpr double lowest = -2000;
    constexpr double highest = 65617;
    return altitude < lowest || altitude > highest;
}

FlightCondition conditionBetween(const Point& from, const Point& to, double part, double speed,
                                 float mach)
{
    FlightCondition condition;
    if (from.mach > 0 && to.mach > 0)
        condition.mach = between(from.mach, to.mach, part);
    else if (mach > 0)
        condition.mach = mach;
    if (from.sigma > 0 && to.sigma > 0) {
        condition.altitude = ISA::densityAltitude(between(from.sigma, to.sigma, part));
        condition.isFromDensity = true;
    } else if (condition.mach && speed > 0) {
        condition.altitude = ISA::IsaAltitude(speed, *condition.mach, "knot");
    }
    return condition;
}

std::optional<DominantFactor> dominantFactorBetween(const Point& from, const Point& to, double part)
{
    std::optional<DominantFactor> largest;
    const std::size_t count = std::min(from.mpf.size(), to.mpf.size());
    for (std::size_t i = 0; i < count; ++i) {
        const double value = between(from.mpf[i], to.mpf[i], part);
        if (!largest || std::fabs(value) > std::fabs(largest->value))
            largest = DominantFactor {i + 1, value};
    }
    return largest;
}

} // namespace tarsil
