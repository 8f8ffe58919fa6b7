#pragma once

#include "analysis/ModeTracking.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class EVM;

/// Two modes that the user exchanges from a speed on.
struct ModeExchange
{
    std::int16_t firstMode = 0; ///< numbers of modes
    std::int16_t secondMode = 0;
    float aboveSpeed = 0; ///< KEAS; from the first point above it to the end
};

/// An evolution whose modes follow the roots, with what was moved.
struct TrackedEvolution
{
    ModeTracking tracking;
    std::vector<std::string> modifications; ///< a sentence for each exchange
};

/// Tracks an evolution, and then exchanges modes by hand. Error 5 for an evolution that cannot be
/// tracked (`ModeTracking::obstacle`), for a number that names no mode or two equal ones, and for a
/// speed that no point is above.
TrackedEvolution trackEvolution(const EVM& evolution, const std::vector<ModeExchange>& exchanges);

/// The file of a tracked evolution, made of the text of its source: numbers of points stay as they
/// are, and each exchange is a modification in the header. Errors: those of `relabelledEv2`.
std::string trackedText(std::string_view sourceText, const TrackedEvolution& tracked);

/// The file of an evolution in which two modes are exchanged, made of its text, without tracking it
/// again; the exchange is a further modification. Errors: those of `trackEvolution` for an exchange
/// and of `relabelledEv2`.
std::string exchangedText(std::string_view text, const EVM& evolution,
                          const ModeExchange& exchange);

/// A step that the tracking doubts, as the user is shown it.
struct TrackingDoubt
{
    std::int16_t mode = 0; ///< number of the printed mode before the step
    std::int16_t nearestMode = 0; ///< of the mode whose root is the nearest one after the step
    float fromSpeed = 0; ///< KEAS, of the points before and after
    float toSpeed = 0;
    bool isAmbiguous = false; ///< `TrackMark`
    bool isJump = false;
};

/// The doubts about an evolution, by rising speed; none for one that cannot be tracked.
std::vector<TrackingDoubt> doubtsOf(const EVM& evolution);

/// The name of a tracked evolution: "wing_tracked.ev2" for "wing.ev2".
std::string trackedName(std::string_view fileName);

} // namespace tarsil
