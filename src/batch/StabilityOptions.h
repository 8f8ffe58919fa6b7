// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "aircraft/AirplaneInfo.h"
#include "analysis/Requirement.h"
#include "analysis/StabilityTable.h"
#include "batch/CommandLine.h"

#include <array>
#include <optional>

namespace tarsil {
class EVM;
} // namespace tarsil

namespace tarsil::batch {

class BatchRun;

/// The options of all commands about stability.
inline constexpr std::array<OptionDescription, 7> stabilityOptions = {
    {{"--levels", "LIST", "levels of damping, separated by commas; default\n0,0.01,0.02,0.03"},
     {"--tolerance", "G", "a stretch up to this height above its level is weak;\ndefault 0.001"},
     {"--noise", "G", "a stretch up to this height is numerical noise; default 1e-6"},
     {"--static", "F", "a root is static below this frequency in Hz; default 0.1"},
     {"--tracked", "", "follows the roots instead of the printed modes"},
     {"--aircraft", "FILE", "aircraft file (.inp) with envelopes"},
     {"--require", "FACTOR", "margin to a factor times the dive speed; default 1.15", false, false,
      true}}};

/// These options followed by those of a command.
template <std::size_t count>
constexpr std::array<OptionDescription, stabilityOptions.size() + count>
withStabilityOptions(const std::array<OptionDescription, count>& own)
{
    std::array<OptionDescription, stabilityOptions.size() + count> all {};
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] =
            i < stabilityOptions.size() ? stabilityOptions[i] : own[i - stabilityOptions.size()];
    return all;
}

/// The settings; UsageError for an invalid value.
StabilitySettings stabilitySettingsOf(const CommandLine& line);

/// The airplane, and the requirement if --require is given.
struct AircraftOption
{
    AirplaneInfo airplane;
    std::optional<Requirement> requirement;
};

/// Reads --aircraft, --require and, if the command has it, --require-level. UsageError for a
/// requirement without aircraft or an invalid value; errors of reading the aircraft file.
AircraftOption aircraftOf(const CommandLine& line);

/// Judges the evolutions of the command line. Errors: those of opening them; Failure for an
/// output that is one of them or the aircraft file, and for one that cannot be tracked as
/// requested.
std::vector<EvolutionStability> judgedFiles(const CommandLine& line, const std::string& output,
                                            const StabilitySettings& settings,
                                            const AircraftOption& aircraft, BatchRun& run);

/// Complains about each evolution that does not meet the requirement. Returns whether all do.
bool allPass(const std::vector<EvolutionStability>& evolutions, BatchRun& run);

} // namespace tarsil::batch
