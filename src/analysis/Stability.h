#pragma once

#include "analysis/Stretches.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarsil {

class EVM;

struct StabilitySettings
{
    std::vector<float> levels = {0, 0.01F, 0.02F, 0.03F}; ///< of damping
    StretchLimits limits;
    bool isTracked = false; ///< follow the roots instead of the printed modes
};

/// The stretches of one root above one level.
struct RootStretches
{
    std::int16_t mode = 0; ///< number of the printed mode, or of that as which the track starts
    float level = 0;
    LevelStretches found;
};

/// Where the roots of an evolution are above each level: level by level, in order of the modes.
/// Crossings jump where the tracking continues the root elsewhere or doubts its step; an evolution
/// that cannot be tracked has no jumps. Error 5 when tracked roots are asked for and the evolution
/// cannot be tracked (`ModeTracking::obstacle`).
std::vector<RootStretches> stabilityOf(const EVM& evolution, const StabilitySettings& settings);

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

/// The verdict in a line: "266.24 KEAS, 11.15 Hz, mode 2 (A)", "unstable from the first speed:
/// modes 2, 3" or "no instability up to 420 KEAS".
std::string verdictText(const StabilityVerdict& verdict, float lastSpeed);

/// A speed of a point in KEAS, to a hundredth: "266.5".
std::string speedText(double speed);

/// "flutter", "divergence", "mixed"; "A", "B", "C"; "noise", "weak", "real".
std::string nameOf(CrossingKind kind);
std::string nameOf(Confidence confidence);
std::string nameOf(StretchHeight height);

} // namespace tarsil
