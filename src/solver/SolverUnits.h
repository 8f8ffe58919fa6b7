#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tarsil::solver {

/// A unit of printed speeds or densities, and the factor to what evolutions hold: metres per
/// second, or the density at sea level (1.225 kg/m3).
struct Unit
{
    std::string_view name; ///< as the command line spells it
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

/// The unit of that name; nothing for another name.
std::optional<Unit> speedUnit(std::string_view name);
std::optional<Unit> densityUnit(std::string_view name);

/// Units that go together in an analysis.
struct UnitPreset
{
    std::string_view name;
    std::string_view speed;
    std::string_view density; ///< of densities that are printed as such and not as a ratio
};

constexpr std::array<UnitPreset, 5> unitPresets = {{{"m, kg", "m/s", "kg/m3"},
                                                    {"mm, t", "mm/s", "t/mm3"},
                                                    {"ft, slug", "ft/s", "slug/ft3"},
                                                    {"in, lbf s2/in", "in/s", "lbf.s2/in4"},
                                                    {"knots", "kt", "ratio"}}};

/// What the user says of the units of a file, which no file tells by itself.
struct UnitChoice
{
    Unit speed = speedUnits.front();
    Unit density = densityUnits.front();
    double vref = 1; ///< printed speeds are multiplied by it (PARAM,VREF)
    bool isEquivalent = false; ///< the printed speeds are equivalent airspeeds already
};

/// A choice as one line, to be kept: "ft/s|1|slug/ft3|", with "equivalent" at its end where speeds
/// are; and what such a line says, nothing when it is none.
std::string unitText(const UnitChoice& units);
std::optional<UnitChoice> unitsFromText(std::string_view text);

/// The equivalent airspeed in knots of a printed speed; `sigma` is the density over that at sea
/// level, and does not count for speeds that are equivalent.
double equivalentAirspeed(double printedSpeed, double sigma, const UnitChoice& units);

} // namespace tarsil::solver
