// SPDX-License-Identifier: Apache-2.0
#include "analysis/StabilityTable.h"

#include "analysis/ModeTracking.h"
#include "model/EVM.h"

#include <algorithm>

namespace tarsil {

namespace {

/// Stretches without a start come first.
double startOf(const StabilityLine& line)
{
    return line.stretch.start ? line.stretch.start->speed : -1;
}

void sortOut(EvolutionStability& result)
{
    for (const RootStretches& root : result.roots) {
        for (const Stretch& stretch : root.found.stretches) {
            if (stretch.height == StretchHeight::Real)
                result.lines.push_back({root.mode, root.level, stretch});
            else
                ++(stretch.height == StretchHeight::Noise ? result.noise : result.weak);
        }
    }
    std::stable_sort(result.lines.begin(), result.lines.end(),
                     [](const auto& a, const auto& b) { return startOf(a) < startOf(b); });
}

/// The largest speed that every mode reaches: a mode that ends earlier proves nothing above it.
float commonLastSpeed(const EVM& evolution)
{
    float common = lastSpeedOf(evolution);
    for (const auto& mode : evolution.Modes) {
        const auto last =
            std::max_element(mode->Points.begin(), mode->Points.end(),
                             [](const Point& a, const Point& b) { return a.speed < b.speed; });
        if (last != mode->Points.end())
            common = std::min(common, last->speed);
    }
    return common;
}

/// The verdict at a level, which need not be one of the settings.
StabilityVerdict verdictAt(float level, const EvolutionStability& stability,
                           StabilitySettings settings)
{
    const std::vector<float>& levels = settings.levels;
    if (std::find(levels.begin(), levels.end(), level) != levels.end())
        return verdictOf(stability.roots, level);
    settings.levels = {level};
    return verdictOf(stabilityOf(*stability.evolution, settings), level);
}

} // namespace

StabilitySettings reportSettings(double referenceDamping)
{
    StabilitySettings settings;
    const auto level = static_cast<float>(referenceDamping);
    if (std::find(settings.levels.begin(), settings.levels.end(), level) == settings.levels.end())
        settings.levels.push_back(level);
    return settings;
}

EvolutionStability judged(const StabilityInput& input, const StabilitySettings& settings)
{
    EvolutionStability result;
    result.evolution = input.evolution;
    result.lastSpeed = commonLastSpeed(*input.evolution);
    if (settings.isTracked) {
        if (const auto obstacle = ModeTracking::obstacle(*input.evolution)) {
            result.obstacle = *obstacle;
            return result;
        }
    }
    result.roots = stabilityOf(*input.evolution, settings, input.mach);
    for (const float level : settings.levels)
        result.verdicts.push_back(verdictOf(result.roots, level));
    sortOut(result);
    if (input.required) {
        const float level = input.required->requirement.level;
        result.margin =
            marginOf(verdictAt(level, result, settings), result.lastSpeed, *input.required);
    }
    return result;
}

} // namespace tarsil
