#pragma once

#include "analysis/Stability.h"

#include <optional>
#include <string>

namespace tarsil {

class AirplaneInfo;
class EVM;

/// Freedom from flutter up to a factor times the dive speed, at constant Mach number and constant
/// altitude (as airworthiness codes ask for it, with the factor 1.15), judged at a level of
/// damping.
struct Requirement
{
    double factor = 1.15;
    float level = 0.03F; ///< of damping
};

/// A requirement as an airplane's envelope makes it a speed.
struct RequiredSpeed
{
    Requirement requirement;
    std::optional<float> diveSpeed; ///< KEAS; nothing when there is no envelope for the Mach number
    float mach = 0; ///< of the evolution, by which the envelope is looked up

    /// KEAS; factor times dive speed. Only with a dive speed.
    double speed() const { return requirement.factor * static_cast<double>(diveSpeed.value()); }
};

/// The speed that an airplane requires of an evolution, by the Mach number of its parameters.
RequiredSpeed requiredSpeed(const EVM& evolution, const AirplaneInfo& airplane,
                            const Requirement& requirement);

/// How far an evolution is from its required speed.
struct Margin
{
    RequiredSpeed required;
    /// KEAS; where instability begins at the latest known: its lowest believable start, or the
    /// lower end of its interval where only that is known, or the last speed when there is none;
    /// nothing when a mode is unstable from the first speed.
    std::optional<double> reached;
    bool isInstability = false; ///< whether `reached` is a start and not the last speed
    bool passes = false; ///< there is a dive speed, and `reached` is not below the required speed

    /// KEAS by which `reached` exceeds the required speed; negative when it falls short of it.
    std::optional<double> value() const;
};

/// The margin of a verdict, which must be that on the requirement's level. A verdict without
/// instability passes only when the speeds go up to the required one.
Margin marginOf(const StabilityVerdict& verdict, float lastSpeed, const RequiredSpeed& required);

/// The margin in a line, such as "pass: 24.7 KEAS above 1.15 x 210 = 241.5 KEAS at g = 0.03".
std::string marginText(const Margin& margin);

} // namespace tarsil
