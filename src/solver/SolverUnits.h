// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tarsil::solver {

/// A unit of printed speeds or densities, with the factor to metres per second or to the density at
/// sea level (1.225 kg/m3).
struct Unit
{
    std::string_view name; ///< spelling on the command line
    double factor;
};

constexpr double seaLevelDensity = 1.225; ///< kg/m3, standard atmosphere

constexpr std::array<Unit, 5> speedUnits = {
    {{"m/s", 1}, {"ft/s", 0.3048}, {"in/s", 0.0254}, {"mm/s", 0.001}, {"kt", 1852.0 / 3600.0}}};

/// Densities: 1 slug/ft3 is 515.378818 kg/m3, 1 lbf s2/in4 is 1.0686895e7 kg/m3.
constexpr std::array<Unit, 5> densityUnits = {{{"ratio", 1},
                                               {"kg/m3", 1 / seaLevelDensity},
                                               {"slug/ft3", 515.378818 / seaLevelDensity},
                                               {"lbf.s2/in4", 1.0686895e7 / seaLevelDensity},
                                               {"t/mm3", 1e12 / seaLevelDensity}}};

/// The unit of a name; empty for an unknown name.
std::optional<Unit> speedUnit(std::string_view name);
std::optional<Unit> densityUnit(std::string_view name);

/// Units that are used together in an analysis.
struct UnitPreset
{
    std::string_view name;
    std::string_view speed;
    std::string_view density; ///< the unit of printed densities; not used for ratios
};

constexpr std::array<UnitPreset, 5> unitPresets = {{{"m, kg", "m/s", "kg/m3"},
                                                    {"mm, t", "mm/s", "t/mm3"},
                                                    {"ft, slug", "ft/s", "slug/ft3"},
                                                    {"in, lbf s2/in", "in/s", "lbf.s2/in4"},
                                                    {"knots", "kt", "ratio"}}};

/// The units of a file as the user gives them; files do not contain them.
struct UnitChoice
{
    Unit speed = speedUnits.front();
    Unit density = densityUnits.front();
    double vref = 1; ///< printed speeds are multiplied by it (PARAM,VREF)
    bool isEquivalent = false; ///< the printed speeds are equivalent airspeeds already
};

/// A choice of units as a line for storage: "ft/s|1|slug/ft3|", with "equivalent" at the end for
/// equivalent airspeeds. The reverse is empty for an invalid line.
std::string unitText(const UnitChoice& units);
std::optional<UnitChoice> unitsFromText(std::string_view text);

/// The equivalent airspeed in knots of a printed speed. `sigma` is the density relative to sea
/// level; it is ignored for equivalent speeds.
double equivalentAirspeed(double printedSpeed, double sigma, const UnitChoice& units);

} // namespace tarsil::solver
