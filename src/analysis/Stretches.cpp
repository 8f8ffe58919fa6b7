// SPDX-License-Identifier: Apache-2.0
#include "analysis/Stretches.h"

#include "analysis/MonotoneCubic.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace tarsil {

namespace {

constexpr double shortInterval = 0.05; ///< relative to the speed
constexpr double agreement = 0.005; ///< relative to the speed

/// Walks along the points of one root and collects the runs above a level.
class StretchSearch
{
public:
    StretchSearch(std::span<const StabilityPoint> points, float level, const StretchLimits& limits)
        : m_points(points), m_level(level), m_limits(limits)
    { }

    LevelStretches run();

private:
    double above(std::size_t i) const
    {
        return static_cast<double>(m_points[i].damping) - static_cast<double>(m_level);
    }
    bool isAbove(std::size_t i) const { return m_points[i].damping > m_level; }
    bool isStatic(std::size_t i) const { return m_points[i].frequency < m_limits.staticFrequency; }

    std::size_t nextOffLevel(std::size_t i) const;
    std::size_t lastBelow(std::size_t i) const;
    std::size_t lastAbove(std::size_t i);
    void cross(std::size_t before, std::size_t i);
    void fill(Crossing& crossing, std::size_t before, std::size_t after) const;
    double speedOnCurve(std::size_t after, double straight) const;
    Confidence confidenceOf(const Crossing& crossing) const;
    void begin(std::size_t i);
    void finish();

    std::span<const StabilityPoint> m_points;
    float m_level;
    StretchLimits m_limits;
    LevelStretches m_result;
    std::size_t m_peak = 0; ///< index of the peak of the last stretch
    bool m_isStatic = false; ///< of the last stretch
};

LevelStretches StretchSearch::run()
{
    std::size_t i = nextOffLevel(0);
    if (i == m_points.size())
        return {};
    if (isAbove(i))
        begin(i);
    for (;;) {
        const std::size_t last = isAbove(i) ? lastAbove(i) : lastBelow(i);
        i = nextOffLevel(last + 1);
        if (i == m_points.size()) {
            if (isAbove(last))
                finish();
            return std::move(m_result);
        }
        cross(last, i);
    }
}

/// The index of the first point from i on that is not on the level, or the number of points.
std::size_t StretchSearch::nextOffLevel(std::size_t i) const
{
    while (i < m_points.size() && m_points[i].damping == m_level)
        ++i;
    return i;
}

/// The last of the points below the level that follow each other from i on.
std::size_t StretchSearch::lastBelow(std::size_t i) const
{
    const float level = m_level;
    while (i + 1 < m_points.size() && m_points[i + 1].damping < level)
        ++i;
    return i;
}

/// The last of the points above the level that follow each other from i on; adds them to the last
/// stretch.
std::size_t StretchSearch::lastAbove(std::size_t i)
{
    const float level = m_level;
    float peak = m_points[m_peak].damping;
    for (;; ++i) {
        m_isStatic = m_isStatic && isStatic(i);
        if (m_points[i].damping > peak) {
            peak = m_points[i].damping;
            m_peak = i;
        }
        if (i + 1 == m_points.size() || !(m_points[i + 1].damping > level))
            return i;
    }
}

/// Handles the interval between two points off the level; those between them are on it.
void StretchSearch::cross(std::size_t before, std::size_t i)
{
    if (isAbove(i) == isAbove(before)) {
        m_result.touches.push_back({m_points[before + 1].speed});
    } else if (isAbove(i)) {
        begin(i);
        fill(m_result.stretches.back().start.emplace(), before, i);
    } else {
        fill(m_result.stretches.back().end.emplace(), before, i);
        finish();
    }
}

void StretchSearch::fill(Crossing& crossing, std::size_t before, std::size_t after) const
{
    const StabilityPoint& from = m_points[before];
    const StabilityPoint& to = m_points[after];
    crossing.fromSpeed = from.speed;
    crossing.toSpeed = to.speed;
    crossing.lower = before;
    if (after - before > 1) {
        crossing.part = 1;
        crossing.speed = m_points[before + 1].speed;
        crossing.frequency = m_points[before + 1].frequency;
    } else {
        crossing.part = above(before) / (above(before) - above(after));
        crossing.speed = from.speed + crossing.part * (static_cast<double>(to.speed) - from.speed);
        crossing.frequency =
            from.frequency + crossing.part * (static_cast<double>(to.frequency) - from.frequency);
    }
    crossing.speedOnCurve = speedOnCurve(after, crossing.speed);
    if (isStatic(before) != isStatic(after))
        crossing.kind = CrossingKind::Mixed;
    else
        crossing.kind = isStatic(before) ? CrossingKind::Divergence : CrossingKind::Flutter;
    for (std::size_t i = before; i < after; ++i)
        crossing.jumps = crossing.jumps || m_points[i].jumpsToNext;
    crossing.confidence = confidenceOf(crossing);
}

/// The zero in the interval that ends at `after`, from its points and one neighbour on each side.
/// Returns `straight` when the speeds do not rise or the root has only two points.
double StretchSearch::speedOnCurve(std::size_t after, double straight) const
{
    const std::size_t first = after >= 2 ? after - 2 : 0;
    const std::size_t last = std::min(after + 1, m_points.size() - 1);
    std::array<CurvePoint, 4> curve;
    std::size_t count = 0;
    for (std::size_t i = first; i <= last; ++i) {
        if (count > 0 && m_points[i].speed <= curve[count - 1].x)
            return straight;
        curve[count++] = {m_points[i].speed, above(i)};
    }
    constexpr std::size_t fewest = 3;
    if (count < fewest)
        return straight;
    return zeroOfMonotoneCubic(std::span(curve).first(count), after - 1 - first);
}

Confidence StretchSearch::confidenceOf(const Crossing& crossing) const
{
    if (crossing.jumps || crossing.kind == CrossingKind::Mixed)
        return Confidence::C;
    const bool isShort = crossing.toSpeed - crossing.fromSpeed <= shortInterval * crossing.speed;
    const bool agrees =
        std::abs(crossing.speedOnCurve - crossing.speed) <= agreement * crossing.speed;
    return isShort && agrees ? Confidence::A : Confidence::B;
}

/// Begins a stretch, whose first point is i.
void StretchSearch::begin(std::size_t i)
{
    constexpr std::size_t usualCount = 3; // less than 1 KiB, which malloc hands out fastest
    if (m_result.stretches.empty())
        m_result.stretches.reserve(usualCount);
    m_result.stretches.emplace_back();
    m_peak = i;
    m_isStatic = true;
}

void StretchSearch::finish()
{
    Stretch& stretch = m_result.stretches.back();
    const StabilityPoint& peak = m_points[m_peak];
    stretch.peak = peak.damping;
    stretch.peakSpeed = peak.speed;
    stretch.peakFrequency = peak.frequency;
    stretch.isStatic = m_isStatic;
    const double height = above(m_peak);
    if (height <= m_limits.noise)
        stretch.height = StretchHeight::Noise;
    else if (height <= m_limits.tolerance)
        stretch.height = StretchHeight::Weak;
}

} // namespace

Crossing::Crossing() = default;

Stretch::Stretch() = default;

LevelStretches stretchesAbove(std::span<const StabilityPoint> points, float level,
                              const StretchLimits& limits)
{
    return StretchSearch(points, level, limits).run();
}

} // namespace tarsil
