#include "solver/SolverUnits.h"

#include <algorithm>
#include <cmath>

namespace tarsil::solver {

namespace {

constexpr double knotsPerMetreAndSecond = 1.94384449244;

template <typename Units>
std::optional<Unit> find(const Units& units, std::string_view name)
{
    const auto found = std::find_if(units.begin(), units.end(),
                                    [name](const Unit& unit) { return unit.name == name; });
    return found == units.end() ? std::nullopt : std::optional<Unit>(*found);
}

} // namespace

std::optional<Unit> speedUnit(std::string_view name)
{
    return find(speedUnits, name);
}

std::optional<Unit> densityUnit(std::string_view name)
{
    return find(densityUnits, name);
}

double equivalentAirspeed(double printedSpeed, double sigma, const UnitChoice& units)
{
    const double speed =
        std::abs(printedSpeed) * units.speed.factor * units.vref * knotsPerMetreAndSecond;
    return units.isEquivalent ? speed : speed * std::sqrt(sigma);
}

} // namespace tarsil::solver
