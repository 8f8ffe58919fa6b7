// SPDX-License-Identifier: Apache-2.0
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

/// Parses levels separated by commas; each is kept once, in order. Error 13 for a part that is not
/// a number, 6 for one beyond the range of a single; both contain the part.
std::vector<float> levelsOf(std::string_view text);

/// The stretches of one root above one level of damping.
struct RootStretches
{
    std::int16_t mode = 0; ///< number of the printed mode, or of the mode that the track starts as
    float level = 0;
    LevelStretches found;
};

/// Where the roots of an evolution are above each level, by level and then by mode. A crossing has
/// `jumps` set where the track changes its printed mode or the tracking doubts the step; without
/// tracking there are no jumps. A crossing with a speed (`hasSpeed`) has its flight condition and
/// dominant factor. `mach` is used for an evolution without a Mach number; 0 when unknown. Error 5
/// when tracked roots are requested and the evolution cannot be tracked (`ModeTracking::obstacle`).
std::vector<RootStretches> stabilityOf(const EVM& evolution, const StabilitySettings& settings,
                                       float mach = 0);

/// The largest speed (KEAS) of all points; 0 when there are none.
float lastSpeedOf(const EVM& evolution);

/// The result for one level of a whole evolution.
struct StabilityVerdict
{
    float level = 0;
    std::vector<std::int16_t> unstableFromFirst; ///< modes above the level from the first speed
    std::optional<Crossing> lowest; ///< the start of a real stretch with the least `lowestSpeed`
    std::int16_t lowestMode = 0;
};

/// Summarises one level. Weak and noise stretches do not count.
StabilityVerdict verdictOf(const std::vector<RootStretches>& roots, float level);

} // namespace tarsil
