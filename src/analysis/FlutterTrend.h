// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/FlightCondition.h"
#include "analysis/StabilityTable.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class AirplaneInfo;
class EVM;

/// What the lowest starts of instability of several evolutions are compared against.
enum class TrendAbscissa {
    Mach,
    Altitude, ///< ft, at the start of the instability
    Mass, ///< order of the mass configurations in the aircraft file, then of the evolutions
    File ///< order of the evolutions
};

/// "mach", "altitude", "mass" or "file".
std::string_view nameOf(TrendAbscissa abscissa);

/// The abscissa of a name; empty for another text.
std::optional<TrendAbscissa> trendAbscissaOf(std::string_view name);

/// How instability begins in an evolution at a level of damping. Only a start is a speed of
/// instability; the others are limits.
enum class TrendOnset {
    Start, ///< at `TrendPoint::speed`
    Interval, ///< between `speed` and `toSpeed`, at different roots
    FirstSpeed, ///< a mode is unstable from the first speed, which is `speed`
    None, ///< no instability up to the last speed, which is `speed`
    Unknown ///< the evolution cannot be judged
};

/// The lowest reliable start of instability of an evolution at a level.
struct TrendPoint
{
    const EVM* evolution = nullptr; ///< not owned
    float level = 0; ///< of damping
    TrendOnset onset = TrendOnset::Unknown;
    double speed = 0; ///< KEAS
    double toSpeed = 0; ///< KEAS; equals `speed` except for an interval
    std::optional<Crossing> start; ///< of a start or an interval
    std::vector<std::int16_t> modes; ///< the mode that starts, or all unstable from the first speed
    FlightCondition condition; ///< at `speed`
    std::optional<double> required; ///< KEAS, if a requirement applies
    std::optional<double> abscissa; ///< Mach number, ft, or category counted from 1
    std::size_t group = 0; ///< index in `FlutterTrend::groups`
    std::string whyNotDrawn; ///< why the point is in the table only; empty for a drawn point
};

/// A required speed in the plot.
struct TrendRequirement
{
    double abscissa = 0;
    double speed = 0; ///< KEAS
};

/// The lowest starts of many evolutions against one quantity.
struct FlutterTrend
{
    TrendAbscissa abscissa = TrendAbscissa::Mach;
    StabilitySettings settings;
    std::vector<TrendPoint> points; ///< by level, then in order of the evolutions
    std::vector<std::string> categories; ///< names of masses or files; empty for numbers
    /// What the points of one line have in common: the mass configuration, against masses the Mach
    /// number. A single empty name for files, which no line joins.
    std::vector<std::string> groups;
    std::vector<TrendRequirement> required; ///< by rising abscissa
    bool isRequirementLine = false; ///< the required speeds are a line, against Mach numbers only
    std::string requirementName; ///< "1.15 x Vd"; empty without requirement
};

/// Compares evolutions. `airplane` gives the order of the masses and, with a requirement, the line
/// of required speeds against Mach numbers: one for each envelope whose name is a number. Against
/// other quantities each evolution has the required speed of its own margin.
FlutterTrend trendOf(const std::vector<EvolutionStability>& evolutions,
                     const StabilitySettings& settings, TrendAbscissa abscissa,
                     const AirplaneInfo& airplane, const std::optional<Requirement>& requirement);

/// Whether a line may join two neighbours: both are starts of one mode, kind, level and group.
bool areJoined(const TrendPoint& a, const TrendPoint& b);

} // namespace tarsil
