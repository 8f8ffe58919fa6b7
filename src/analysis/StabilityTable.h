// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/Requirement.h"
#include "analysis/Stability.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tarsil {

class EVM;

/// An evolution to be judged, with what its file does not contain.
struct StabilityInput
{
    const EVM* evolution = nullptr; ///< not owned
    float mach = 0; ///< for an evolution without a Mach number; 0 when unknown
    std::optional<RequiredSpeed> required; ///< empty: no margin is requested
};

/// A real stretch with its root and level.
struct StabilityLine
{
    std::int16_t mode = 0;
    float level = 0;
    Stretch stretch;
};

/// The stability of an evolution, for sheets, files and windows.
struct EvolutionStability
{
    const EVM* evolution = nullptr; ///< not owned
    float lastSpeed = 0; ///< KEAS; the largest speed that every mode reaches
    std::vector<RootStretches> roots; ///< all stretches
    std::vector<StabilityVerdict> verdicts; ///< one for each level
    std::vector<StabilityLine> lines; ///< the real stretches, by rising start
    std::size_t noise = 0; ///< number of stretches left out
    std::size_t weak = 0;
    std::optional<Margin> margin; ///< to the required speed, if requested
    std::string obstacle; ///< why the roots cannot be tracked; everything else is empty then
};

/// The default settings for the sheet beside a flutter table, with its reference damping as a
/// further level.
StabilitySettings reportSettings(double referenceDamping);

/// Judges an evolution. If it cannot be tracked as requested, `obstacle` has the reason.
EvolutionStability judged(const StabilityInput& input, const StabilitySettings& settings);

} // namespace tarsil
