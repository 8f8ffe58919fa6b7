#pragma once

#include "analysis/Requirement.h"
#include "analysis/Stability.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tarsil {

class EVM;

/// An evolution to be judged, with what its file does not say.
struct StabilityInput
{
    const EVM* evolution = nullptr; ///< not owned
    float mach = 0; ///< of an evolution that holds no Mach number; 0 when it is not known
    std::optional<RequiredSpeed> required; ///< nothing when no margin is asked for
};

/// A real stretch with the root and level that it belongs to.
struct StabilityLine
{
    std::int16_t mode = 0;
    float level = 0;
    Stretch stretch;
};

/// What there is to say of the stability of one evolution, for sheets, files and windows.
struct EvolutionStability
{
    const EVM* evolution = nullptr; ///< not owned
    float lastSpeed = 0; ///< KEAS
    std::vector<RootStretches> roots; ///< everything that was found
    std::vector<StabilityVerdict> verdicts; ///< one for each level
    std::vector<StabilityLine> lines; ///< the real stretches, by rising start
    std::size_t noise = 0; ///< how many stretches are left out
    std::size_t weak = 0;
    std::optional<Margin> margin; ///< to the required speed, where one is asked for
    std::string obstacle; ///< why the roots cannot be tracked as asked; nothing else is there then
};

/// The settings beside a flutter table: the usual ones, with the reference damping of the table as
/// a further level.
StabilitySettings reportSettings(double referenceDamping);

/// Judges an evolution. One that cannot be tracked as the settings ask has its reason as
/// `obstacle`.
EvolutionStability judged(const StabilityInput& input, const StabilitySettings& settings);

} // namespace tarsil
