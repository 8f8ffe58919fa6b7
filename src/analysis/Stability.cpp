#include "analysis/Stability.h"

#include "analysis/ModeTracking.h"
#include "base/numbers/NumberFormat.h"
#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tarsil {

namespace {

using RootPoints = std::vector<StabilityPoint>;

StabilityPoint stabilityPoint(const Point& point)
{
    return {point.speed, point.G, point.f, false};
}

std::vector<RootPoints> printedRoots(const EVM& evolution)
{
    std::vector<RootPoints> roots;
    for (const auto& mode : evolution.Modes) {
        RootPoints& points = roots.emplace_back();
        std::transform(mode->Points.begin(), mode->Points.end(), std::back_inserter(points),
                       stabilityPoint);
    }
    return roots;
}

/// Marks each step of a printed mode that the track which held it leaves, or doubts.
void markJumps(const ModeTracking& tracking, std::vector<RootPoints>& roots)
{
    for (std::size_t i = 0; i + 1 < tracking.points(); ++i) {
        for (std::size_t track = 0; track < tracking.tracks(); ++track) {
            const std::size_t mode = tracking.modeAt(i, track);
            roots[mode][i].jumpsToNext =
                tracking.isMarked(i, track) || tracking.modeAt(i + 1, track) != mode;
        }
    }
}

std::vector<RootPoints> trackedRoots(const EVM& evolution, const ModeTracking& tracking)
{
    std::vector<RootPoints> roots(tracking.tracks());
    for (std::size_t track = 0; track < tracking.tracks(); ++track) {
        for (std::size_t i = 0; i < tracking.points(); ++i) {
            const AeMode& mode = *evolution.Modes[tracking.modeAt(i, track)];
            roots[track].push_back(stabilityPoint(mode.Points[i]));
            roots[track].back().jumpsToNext = tracking.isMarked(i, track);
        }
    }
    return roots;
}

std::vector<RootPoints> rootsOf(const EVM& evolution, bool isTracked)
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
    std::vector<RootPoints> roots = printedRoots(evolution);
    markJumps(tracking, roots);
    return roots;
}

std::string listOf(const std::vector<std::int16_t>& modes)
{
    std::string text;
    for (const std::int16_t mode : modes)
        text += (text.empty() ? "" : ", ") + std::to_string(mode);
    return text;
}

/// Adds what the real stretches of a root say.
void judge(const RootStretches& root, StabilityVerdict& verdict)
{
    for (const Stretch& stretch : root.found.stretches) {
        if (stretch.height != StretchHeight::Real)
            continue;
        if (!stretch.start) {
            verdict.unstableFromFirst.push_back(root.mode);
        } else if (!verdict.lowest || stretch.start->speed < verdict.lowest->speed) {
            verdict.lowest = stretch.start;
            verdict.lowestMode = root.mode;
        }
    }
}

} // namespace

std::vector<RootStretches> stabilityOf(const EVM& evolution, const StabilitySettings& settings)
{
    const std::vector<RootPoints> roots = rootsOf(evolution, settings.isTracked);
    std::vector<RootStretches> result;
    for (const float level : settings.levels) {
        for (std::size_t i = 0; i < roots.size(); ++i)
            result.push_back(
                {evolution.Modes[i]->Id, level, stretchesAbove(roots[i], level, settings.limits)});
    }
    return result;
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

std::string verdictText(const StabilityVerdict& verdict, float lastSpeed)
{
    if (!verdict.unstableFromFirst.empty())
        return "unstable from the first speed: modes " + listOf(verdict.unstableFromFirst);
    if (!verdict.lowest)
        return "no instability up to " + speedText(lastSpeed) + " KEAS";
    const Crossing& start = *verdict.lowest;
    const std::string mode =
        ", mode " + std::to_string(verdict.lowestMode) + " (" + nameOf(start.confidence) + ")";
    if (start.kind == CrossingKind::Mixed || start.jumps)
        return "between " + speedText(start.fromSpeed) + " and " + speedText(start.toSpeed)
            + " KEAS, different roots" + mode;
    return formatNumber(start.speed, "0.00") + " KEAS, " + formatNumber(start.frequency, "0.00")
        + " Hz, " + nameOf(start.kind) + mode;
}

std::string speedText(double speed)
{
    constexpr double hundredths = 100;
    return shortestText(std::round(speed * hundredths) / hundredths);
}

std::string nameOf(CrossingKind kind)
{
    switch (kind) {
    case CrossingKind::Flutter:
        return "flutter";
    case CrossingKind::Divergence:
        return "divergence";
    case CrossingKind::Mixed:
        return "mixed";
    }
    return {};
}

std::string nameOf(Confidence confidence)
{
    switch (confidence) {
    case Confidence::A:
        return "A";
    case Confidence::B:
        return "B";
    case Confidence::C:
        return "C";
    }
    return {};
}

std::string nameOf(StretchHeight height)
{
    switch (height) {
    case StretchHeight::Noise:
        return "noise";
    case StretchHeight::Weak:
        return "weak";
    case StretchHeight::Real:
        return "real";
    }
    return {};
}

} // namespace tarsil
