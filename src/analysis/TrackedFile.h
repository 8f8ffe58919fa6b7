// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/ModeTracking.h"
#include "base/user/Progress.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class EVM;

/// Two modes that the user exchanges above a speed.
struct ModeExchange
{
    std::int16_t firstMode = 0; ///< mode numbers
    std::int16_t secondMode = 0;
    float aboveSpeed = 0; ///< KEAS; applies from the first point above it to the end
};

/// A tracked evolution, with a description of its changes.
struct TrackedEvolution
{
    ModeTracking tracking;
    std::vector<std::string> modifications; ///< one sentence for each exchange
};

/// Tracks an evolution and then applies exchanges of the user. Error 5 when the evolution cannot be
/// tracked (`ModeTracking::obstacle`), when a mode number does not exist or both are equal, and
/// when no point is above the speed. After a stop by `progress` the tracking is not complete
/// (`ModeTracking::isComplete`).
TrackedEvolution trackEvolution(const EVM& evolution, const std::vector<ModeExchange>& exchanges,
                                const Progress& progress = {});

/// The file of a tracked evolution, made from the text of its source file: the numbers stay as they
/// are, and each exchange becomes a modification in the header. Errors: those of `relabelledEv2`.
std::string trackedText(std::string_view sourceText, const TrackedEvolution& tracked);

/// The file of an evolution after the exchange of two modes, made from the text of its file without
/// tracking it again. The exchange becomes a further modification. Errors: those of
/// `trackEvolution` for an exchange and of `relabelledEv2`.
std::string exchangedText(std::string_view text, const EVM& evolution,
                          const ModeExchange& exchange);

/// A doubtful step of the tracking, as shown to the user.
struct TrackingDoubt
{
    std::int16_t mode = 0; ///< number of the printed mode before the step
    std::int16_t nearestMode = 0; ///< mode whose root is nearest after the step
    float fromSpeed = 0; ///< KEAS, of the point before; `toSpeed` of the point after
    float toSpeed = 0;
    bool isAmbiguous = false; ///< `TrackMark`
    bool isJump = false;
};

/// The doubtful steps of an evolution, by rising speed; empty if it cannot be tracked.
std::vector<TrackingDoubt> doubtsOf(const EVM& evolution);

/// Whether an evolution is tracked, by its name ("wing_tracked.ev2").
bool isTracked(const EVM& evolution);

/// The file name of a tracked evolution: "wing_tracked.ev2" for "wing.ev2".
std::string trackedName(std::string_view fileName);

} // namespace tarsil
