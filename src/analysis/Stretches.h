#pragma once

#include "analysis/FlightCondition.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace tarsil {

/// A point of one root as the search for stretches needs it.
struct StabilityPoint
{
    float speed = 0; ///< KEAS
    float damping = 0; ///< g; negative is stable
    float frequency = 0; ///< Hz
    bool jumpsToNext = false; ///< the step to the next point is no continuation of this root
};

/// What kind of root crosses a level, by the two points beside the crossing.
enum class CrossingKind {
    Flutter, ///< both oscillate
    Divergence, ///< both are static
    Mixed ///< one of each: between them nothing can be interpolated
};

/// How well the points tell the speed of a crossing.
enum class Confidence {
    A, ///< a short interval, in which a curve and a straight line agree
    B,
    C ///< the root jumps in the interval, or changes its kind
};

/// Where a root crosses a level.
struct Crossing
{
    double speed = 0; ///< KEAS, on the straight line between the points beside it
    double frequency = 0; ///< Hz, likewise
    double fromSpeed = 0; ///< of the point before
    double toSpeed = 0; ///< of the point after
    std::size_t lower = 0; ///< index of the point from which the straight line goes to the next one
    double part = 0; ///< of the way between the two, 0 to 1
    double speedOnCurve = 0; ///< a yardstick for the straight line, never the answer
    CrossingKind kind = CrossingKind::Flutter;
    Confidence confidence = Confidence::B;
    bool jumps = false;
    FlightCondition condition; ///< for those who know more of the points (`stabilityOf`)
    std::optional<DominantFactor> dominant; ///< likewise
};

/// Whether the speed of a crossing may be shown; between different roots only its interval may.
inline bool hasSpeed(const Crossing& crossing)
{
    return crossing.kind != CrossingKind::Mixed && !crossing.jumps;
}

/// How far a stretch rises above its level.
enum class StretchHeight { Noise, Weak, Real };

/// A maximal run of points of one root above a level.
struct Stretch
{
    std::optional<Crossing> start; ///< absent: unstable from the first speed
    std::optional<Crossing> end; ///< absent: up to the last speed; with an end it is a hump
    double peak = 0; ///< largest damping
    double peakSpeed = 0; ///< KEAS, of the first point with it
    double peakFrequency = 0; ///< Hz
    StretchHeight height = StretchHeight::Real;
    bool isStatic = false; ///< every point above the level is static
};

/// A root that comes to the level exactly and goes back to the side from which it came.
struct Touch
{
    double speed = 0; ///< KEAS, of its first point on the level
};

struct StretchLimits
{
    double tolerance = 0.001; ///< damping; up to this height above the level a stretch is weak
    double noise = 1e-6; ///< damping; up to this height it is numerical noise
    double staticFrequency = 0.1; ///< Hz; below it a root is static
};

struct LevelStretches
{
    std::vector<Stretch> stretches; ///< by increasing speed, as the points are
    std::vector<Touch> touches;
};

/// The stretches of one root above a level of damping. A run of points exactly on the level between
/// opposite signs is one crossing, at its first point; between equal signs it is a touch; at the
/// beginning it is passed over. Both sides of the comparison are singles. O(points).
///
/// The speed on the curve is the zero of the monotone cubic (Fritsch and Carlson, SIAM J. Numer.
/// Anal. 17, 1980, with the harmonic slopes of Fritsch and Butland, SIAM J. Sci. Stat. Comput. 5,
/// 1984) through the two points and one neighbour on each side.
LevelStretches stretchesAbove(std::span<const StabilityPoint> points, float level,
                              const StretchLimits& limits);

} // namespace tarsil
