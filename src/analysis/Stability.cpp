// SPDX-License-Identifier: Apache-2.0
#include "analysis/Stability.h"

#include "analysis/ModeTracking.h"
#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"

#include <algorithm>

namespace tarsil {

namespace {

/// A root, with the points of the evolution that it follows.
struct Root
{
    std::vector<StabilityPoint> points;
    std::vector<const Point*> sources;

    void add(const Point& point)
    {
        points.push_back({point.speed, point.G, point.f, false});
        sources.push_back(&point);
    }
};

std::vector<Root> printedRoots(const EVM& evolution)
{
    std::vector<Root> roots;
    for (const auto& mode : evolution.Modes) {
        Root& root = roots.emplace_back();
        for (const Point& point : mode->Points)
            root.add(point);
    }
    return roots;
}

/// Sets `jumpsToNext` for each step at which the track of a printed mode leaves it or is doubtful.
void markJumps(const ModeTracking& tracking, std::vector<Root>& roots)
{
    for (std::size_t i = 0; i + 1 < tracking.points(); ++i) {
        for (std::size_t track = 0; track < tracking.tracks(); ++track) {
            const std::size_t mode = tracking.modeAt(i, track);
            roots[mode].points[i].jumpsToNext =
                tracking.isMarked(i, track) || tracking.modeAt(i + 1, track) != mode;
        }
    }
}

std::vector<Root> trackedRoots(const EVM& evolution, const ModeTracking& tracking)
{
    std::vector<Root> roots(tracking.tracks());
    for (std::size_t track = 0; track < tracking.tracks(); ++track) {
        for (std::size_t i = 0; i < tracking.points(); ++i) {
            roots[track].add(evolution.Modes[tracking.modeAt(i, track)]->Points[i]);
            roots[track].points.back().jumpsToNext = tracking.isMarked(i, track);
        }
    }
    return roots;
}

std::vector<Root> rootsOf(const EVM& evolution, bool isTracked)
{
    const std::optional<std::string> obstacle = ModeTracking::obstacle(evolution);
    if (obstacle && isTracked)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "Stability",
                           evolution.FileName + " cannot be tracked: " + *obstacle);
    if (obstacle)
        return printedRoots(evolution);
    const ModeTracking tracking(evolution);
    if (isTracked)
        return trackedRoots(evolution, tracking);
    std::vector<Root> roots = printedRoots(evolution);
    markJumps(tracking, roots);
    return roots;
}

/// Adds the flight condition and the dominant factor of a crossing.
void describe(std::optional<Crossing>& crossing, const Root& root, float mach)
{
    if (!crossing || !hasSpeed(*crossing))
        return;
    const Point& from = *root.sources[crossing->lower];
    const Point& to = *root.sources[crossing->lower + 1];
    crossing->condition = conditionBetween(from, to, crossing->part, crossing->speed, mach);
    crossing->dominant = dominantFactorBetween(from, to, crossing->part);
}

LevelStretches describedStretches(const Root& root, float level, const StretchLimits& limits,
                                  float mach)
{
    LevelStretches found = stretchesAbove(root.points, level, limits);
    for (Stretch& stretch : found.stretches) {
        describe(stretch.start, root, mach);
        describe(stretch.end, root, mach);
    }
    return found;
}

/// Adds the real stretches of a root to the verdict.
void judge(const RootStretches& root, StabilityVerdict& verdict)
{
    for (const Stretch& stretch : root.found.stretches) {
        if (stretch.height != StretchHeight::Real)
            continue;
        if (!stretch.start) {
            verdict.unstableFromFirst.push_back(root.mode);
        } else if (!verdict.lowest || lowestSpeed(*stretch.start) < lowestSpeed(*verdict.lowest)) {
            verdict.lowest = stretch.start;
            verdict.lowestMode = root.mode;
        }
    }
}

} // namespace

std::vector<float> levelsOf(std::string_view text)
{
    std::vector<float> levels;
    while (true) {
        const std::size_t end = std::min(text.find(','), text.size());
        const float level = toSingle(text.substr(0, end), "Stability", "level of damping");
        if (std::find(levels.begin(), levels.end(), level) == levels.end())
            levels.push_back(level);
        if (end == text.size())
            return levels;
        text.remove_prefix(end + 1);
    }
}

std::vector<RootStretches> stabilityOf(const EVM& evolution, const StabilitySettings& settings,
                                       float mach)
{
    const std::vector<Root> roots = rootsOf(evolution, settings.isTracked);
    const float usedMach = evolution.Param.Mach > 0 ? evolution.Param.Mach : mach;
    std::vector<RootStretches> result;
    for (const float level : settings.levels) {
        for (std::size_t i = 0; i < roots.size(); ++i)
            result.push_back({evolution.Modes[i]->Id, level,
                              describedStretches(roots[i], level, settings.limits, usedMach)});
    }
    return result;
}

float lastSpeedOf(const EVM& evolution)
{
    float last = 0;
    for (const auto& mode : evolution.Modes) {
        for (const Point& point : mode->Points)
            last = std::max(last, point.speed);
    }
    return last;
}

StabilityVerdict verdictOf(const std::vector<RootStretches>& roots, float level)
{
    StabilityVerdict verdict;
    verdict.level = level;
    for (const RootStretches& root : roots) {
        if (root.level == level)
            judge(root, verdict);
    }
    return verdict;
}

} // namespace tarsil
