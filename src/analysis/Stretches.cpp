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
    bool isStatic(std::size_t i) const { return m_points[i].frequency < m_limits.staticFrequency; }

    void cross(std::size_t i);
    Crossing crossing(std::size_t before, std::size_t after) const;
    double speedOnCurve(std::size_t after, double straight) const;
    Confidence confidenceOf(const Crossing& crossing) const;
    void begin();
    void add(std::size_t i);
    void finish();

    std::span<const StabilityPoint> m_points;
    float m_level;
    StretchLimits m_limits;
    LevelStretches m_result;
    std::optional<Stretch> m_open; ///< the stretch that has not ended yet
    std::size_t m_pointsInStretch = 0;
    std::optional<std::size_t> m_before; ///< index of the last point that is not on the level
};

LevelStretches StretchSearch::run()
{
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const double height = above(i);
        if (height == 0)
            continue;
        if (!m_before) {
            if (height > 0)
                begin();
        } else {
            cross(i);
        }
        if (height > 0)
            add(i);
        m_before = i;
    }
    if (m_open)
        finish();
    return std::move(m_result);
}

/// Handles the interval between the last point that is not on the level and point i.
void StretchSearch::cross(std::size_t i)
{
    const bool wasAbove = above(*m_before) > 0;
    const bool isAbove = above(i) > 0;
    if (wasAbove == isAbove) {
        if (i - *m_before > 1)
            m_result.touches.push_back({m_points[*m_before + 1].speed});
        return;
    }
    if (isAbove) {
        begin();
        m_open->start = crossing(*m_before, i);
    } else {
        m_open->end = crossing(*m_before, i);
        finish();
    }
}

Crossing StretchSearch::crossing(std::size_t before, std::size_t after) const
{
    const StabilityPoint& from = m_points[before];
    const StabilityPoint& to = m_points[after];
    Crossing result;
    result.fromSpeed = from.speed;
    result.toSpeed = to.speed;
    result.lower = before;
    if (after - before > 1) {
        result.part = 1;
        result.speed = m_points[before + 1].speed;
        result.frequency = m_points[before + 1].frequency;
    } else {
        result.part = above(before) / (above(before) - above(after));
        result.speed = from.speed + result.part * (static_cast<double>(to.speed) - from.speed);
        result.frequency =
            from.frequency + result.part * (static_cast<double>(to.frequency) - from.frequency);
    }
    result.speedOnCurve = speedOnCurve(after, result.speed);
    if (isStatic(before) != isStatic(after))
        result.kind = CrossingKind::Mixed;
    else
        result.kind = isStatic(before) ? CrossingKind::Divergence : CrossingKind::Flutter;
    for (std::size_t i = before; i < after; ++i)
        result.jumps = result.jumps || m_points[i].jumpsToNext;
    result.confidence = confidenceOf(result);
    return result;
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

void StretchSearch::begin()
{
    m_open = Stretch();
    m_pointsInStretch = 0;
}

/// Adds a point above the level to the open stretch.
void StretchSearch::add(std::size_t i)
{
    const StabilityPoint& point = m_points[i];
    const bool isFirst = m_pointsInStretch++ == 0;
    m_open->isStatic = isStatic(i) && (isFirst || m_open->isStatic);
    if (isFirst || point.damping > m_open->peak) {
        m_open->peak = point.damping;
        m_open->peakSpeed = point.speed;
        m_open->peakFrequency = point.frequency;
    }
}

void StretchSearch::finish()
{
    const double height = m_open->peak - static_cast<double>(m_level);
    if (height <= m_limits.noise)
        m_open->height = StretchHeight::Noise;
    else if (height <= m_limits.tolerance)
        m_open->height = StretchHeight::Weak;
    m_result.stretches.push_back(*std::exchange(m_open, std::nullopt));
}

} // namespace

LevelStretches stretchesAbove(std::span<const StabilityPoint> points, float level,
                              const StretchLimits& limits)
{
    return StretchSearch(points, level, limits).run();
}

} // namespace tarsil
