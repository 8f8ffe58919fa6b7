// SPDX-License-Identifier: Apache-2.0
#include "solver/SolverUnits.h"

#include "base/numbers/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

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

std::string unitText(const UnitChoice& units)
{
    return std::string(units.speed.name) + '|' + shortestText(units.vref) + '|'
        + std::string(units.density.name) + '|' + (units.isEquivalent ? "equivalent" : "");
}

std::optional<UnitChoice> unitsFromText(std::string_view text)
{
    std::array<std::string_view, 4> fields;
    for (std::string_view& field : fields) {
        const std::size_t end = std::min(text.find('|'), text.size());
        field = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    const auto speed = speedUnit(fields[0]);
    const auto density = densityUnit(fields[2]);
    double vref = 0;
    if (!speed || !density || parseDouble(fields[1], vref) != NumberStatus::Ok || !(vref > 0))
        return std::nullopt;
    return UnitChoice {*speed, *density, vref, fields[3] == "equivalent"};
}

double equivalentAirspeed(double printedSpeed, double sigma, const UnitChoice& units)
{
    const double speed =
        std::abs(printedSpeed) * units.speed.factor * units.vref * knotsPerMetreAndSecond;
    return units.isEquivalent ? speed : speed * std::sqrt(sigma);
}

} // namespace tarsil::solver
