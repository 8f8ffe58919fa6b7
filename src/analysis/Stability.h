#pragma once

#include "analysis/Stretches.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class EVM;

struct StabilitySettings
{
    std::vector<float> levels = {0, 0.01F, 0.02F, 0.03F}; ///< of damping
    StretchLimits limits;
    bool isTracked = false; ///< follow the roots instead of the printed modes
};

/// The levels in a text with commas between them, each once, in its order. Error 13 for a part that
/// is no number, 6 for one that no single can hold; both name the part.
std::vector<float> levelsOf(std::string_view text);

/// The stretches of one root above one level.
struct RootStretches
{
    std::int16_t mode = 0; ///< number of the printed mode, or of that as which the track starts
    float level = 0;
    LevelStretches found;
};

/// Where the roots of an evolution are above each level: level by level, in order of the modes.
/// Crossings jump where the tracking continues the root elsewhere or doubts its step; an evolution
/// that cannot be tracked has no jumps. Those with a speed (`hasSpeed`) have their flight condition
/// and their dominant factor; `mach` is the Mach number of an evolution that holds none, 0 when it
/// is not known. Error 5 when tracked roots are asked for and the evolution cannot be tracked
/// (`ModeTracking::obstacle`).
std::vector<RootStretches> stabilityOf(const EVM& evolution, const StabilitySettings& settings,
                                       float mach = 0);

/// The largest speed (KEAS) of all points; 0 when there is none.
float lastSpeedOf(const EVM& evolution);

/// What the stretches of a level say of a whole evolution.
struct StabilityVerdict
{
    float level = 0;
    std::vector<std::int16_t> unstableFromFirst; ///< modes that are above it from the first speed
    std::optional<Crossing> lowest; ///< the lowest start of a real stretch
    std::int16_t lowestMode = 0;
};

/// The verdict on one level; stretches that are weak or noise do not count.
StabilityVerdict verdictOf(const std::vector<RootStretches>& roots, float level);

} // namespace tarsil
