// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/Stability.h"

#include <optional>
#include <string>

namespace tarsil {

class AirplaneInfo;
class EVM;

/// Freedom from flutter up to a factor times the dive speed, at constant Mach number and constant
/// altitude, at a level of damping. Airworthiness codes require it with the factor 1.15.
struct Requirement
{
    double factor = 1.15;
    float level = 0.03F; ///< of damping
};

/// A requirement as a speed, from the envelope of an airplane.
struct RequiredSpeed
{
    Requirement requirement;
    std::optional<float> diveSpeed; ///< KEAS; empty without an envelope for the Mach number
    float mach = 0; ///< of the evolution; selects the envelope

    /// KEAS: factor times dive speed. Requires a dive speed.
    double speed() const { return requirement.factor * static_cast<double>(diveSpeed.value()); }
};

/// The speed that an airplane requires of an evolution at its Mach number.
RequiredSpeed requiredSpeed(const EVM& evolution, const AirplaneInfo& airplane,
                            const Requirement& requirement);

/// The distance of an evolution from its required speed.
struct Margin
{
    RequiredSpeed required;
    /// The speed (KEAS) at which instability begins at the latest: the lowest reliable start, or
    /// the lower end of its interval if only that is known, or the last speed if there is no
    /// instability up to it. Empty when a mode is unstable from the first speed.
    std::optional<double> reached;
    bool isInstability = false; ///< `reached` is a start, not the last speed
    bool passes = false; ///< there is a dive speed, and `reached` is not below the required speed

    /// The difference of `reached` and the required speed in KEAS; negative when it falls short.
    std::optional<double> value() const;
};

/// The margin of a verdict at the level of the requirement. `lastSpeed` is the largest speed that
/// every mode reaches; no verdict passes if that is below the required speed.
Margin marginOf(const StabilityVerdict& verdict, float lastSpeed, const RequiredSpeed& required);

/// The margin as one line, such as "pass: 24.7 KEAS above 1.15 x 210 = 241.5 KEAS at g = 0.03".
std::string marginText(const Margin& margin);

} // namespace tarsil
