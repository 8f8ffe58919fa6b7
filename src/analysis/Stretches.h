// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/FlightCondition.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace tarsil {

/// A point of one root, with the values that the search needs.
struct StabilityPoint
{
    float speed = 0; ///< KEAS
    float damping = 0; ///< g; negative is stable
    float frequency = 0; ///< Hz
    bool jumpsToNext = false; ///< the next point does not continue this root
};

/// The kind of a root at a crossing, judged by the two points around it.
enum class CrossingKind {
    Flutter, ///< both oscillate
    Divergence, ///< both are static
    Mixed ///< one of each; nothing can be interpolated between them
};

/// How reliable the speed of a crossing is.
enum class Confidence {
    A, ///< a short interval in which cubic and straight line agree
    B,
    C ///< the root jumps in the interval or changes its kind
};

/// A crossing of a level by a root. The constructor is in the source file because a defaulted one
/// lets containers clear the whole object first, which took a fifth of the search.
struct Crossing
{
    Crossing();

    double speed = 0; ///< KEAS, on the straight line between the two points around it
    double frequency = 0; ///< Hz, interpolated like the speed
    double fromSpeed = 0; ///< of the point before
    double toSpeed = 0; ///< of the point after
    std::size_t lower = 0; ///< index of the point before it; the straight line goes to the next one
    double part = 0; ///< position on that line, 0 to 1
    double speedOnCurve = 0; ///< for comparison with `speed`, never the answer
    CrossingKind kind = CrossingKind::Flutter;
    Confidence confidence = Confidence::B;
    bool jumps = false;
    FlightCondition condition; ///< filled by `stabilityOf`
    std::optional<DominantFactor> dominant; ///< filled by `stabilityOf`
};

/// Whether a crossing has a speed; between different roots it has only an interval.
inline bool hasSpeed(const Crossing& crossing)
{
    return crossing.kind != CrossingKind::Mixed && !crossing.jumps;
}

/// The lowest speed (KEAS) at which a crossing may be: its own, or the end of its interval if it
/// has none.
inline double lowestSpeed(const Crossing& crossing)
{
    return hasSpeed(crossing) ? crossing.speed : std::min(crossing.fromSpeed, crossing.toSpeed);
}

/// How far a stretch rises above its level; see `StretchLimits`.
enum class StretchHeight { Noise, Weak, Real };

/// A maximal run of points of one root above a level. For the constructor see `Crossing`.
struct Stretch
{
    Stretch();

    std::optional<Crossing> start; ///< absent: above the level from the first speed
    std::optional<Crossing>
        end; ///< absent: up to the last speed. A stretch with start and end is a hump
    double peak = 0; ///< largest damping
    double peakSpeed = 0; ///< KEAS, of the first point with it
    double peakFrequency = 0; ///< Hz
    StretchHeight height = StretchHeight::Real;
    bool isStatic = false; ///< every point above the level is static
};

/// A root that reaches the level exactly and returns to the side it came from.
struct Touch
{
    double speed = 0; ///< KEAS, of the first point on the level
};

struct StretchLimits
{
    double tolerance = 0.001; ///< damping; stretches up to this height above the level are weak
    double noise = 1e-6; ///< damping; stretches up to this height are numerical noise
    double staticFrequency = 0.1; ///< Hz; a root below it is static
};

struct LevelStretches
{
    std::vector<Stretch> stretches; ///< by rising speed
    std::vector<Touch> touches;
};

/// Finds the stretches of one root above a level of damping. A run of points exactly on the level
/// is one crossing, at its first point, if the signs before and after differ; a touch if they are
/// equal; ignored at the start. Damping and level are compared as singles. O(points).
///
/// `speedOnCurve` is the zero of the monotone cubic (Fritsch and Carlson, SIAM J. Numer. Anal. 17,
/// 1980, with the harmonic slopes of Fritsch and Butland, SIAM J. Sci. Stat. Comput. 5, 1984)
/// through the two points and one neighbour on each side.
LevelStretches stretchesAbove(std::span<const StabilityPoint> points, float level,
                              const StretchLimits& limits);

} // namespace tarsil
