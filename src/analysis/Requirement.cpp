// SPDX-License-Identifier: Apache-2.0
#include "analysis/Requirement.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/StabilityTexts.h"
#include "base/numbers/Numbers.h"
#include "model/EVM.h"

#include <cmath>

namespace tarsil {

namespace {

/// "1.15 x 210 = 241.5 KEAS at g = 0.03".
std::string requiredText(const RequiredSpeed& required)
{
    return shortestText(required.requirement.factor) + " x " + shortestText(*required.diveSpeed)
        + " = " + speedText(required.speed())
        + " KEAS at g = " + shortestText(required.requirement.level);
}

} // namespace

RequiredSpeed requiredSpeed(const EVM& evolution, const AirplaneInfo& airplane,
                            const Requirement& requirement)
{
    RequiredSpeed required {requirement, std::nullopt, evolution.Param.Mach};
    if (const FlutterEnvelope* const envelope = airplane.envelopeAtMach(evolution.Param.Mach))
        required.diveSpeed = envelope->Vd;
    return required;
}

std::optional<double> Margin::value() const
{
    if (!reached || !required.diveSpeed)
        return std::nullopt;
    return *reached - required.speed();
}

Margin marginOf(const StabilityVerdict& verdict, float lastSpeed, const RequiredSpeed& required)
{
    Margin margin;
    margin.required = required;
    margin.isInstability = !verdict.unstableFromFirst.empty() || verdict.lowest;
    if (!margin.isInstability)
        margin.reached = lastSpeed;
    else if (verdict.unstableFromFirst.empty())
        margin.reached = lowestSpeed(*verdict.lowest);
    margin.passes = margin.value().value_or(-1) >= 0;
    if (margin.passes && lastSpeed < required.speed()) {
        // A mode ends below the required speed; that another one starts above it is no proof.
        margin.isInstability = false;
        margin.reached = lastSpeed;
        margin.passes = false;
    }
    return margin;
}

std::string marginText(const Margin& margin)
{
    if (!margin.required.diveSpeed)
        return "not judged: no flutter envelope for Mach number "
            + envelopeName(margin.required.mach);
    const std::string required = requiredText(margin.required);
    if (!margin.reached)
        return "fail: unstable from the first speed; required is " + required;
    const std::string distance = speedText(std::fabs(*margin.value())) + " KEAS ";
    if (margin.passes)
        return (margin.isInstability ? "pass: " + distance + "above "
                                     : "pass: no instability up to ")
            + required;
    if (margin.isInstability)
        return "fail: " + distance + "below " + required;
    return "not shown: the speeds end " + distance + "below " + required;
}

} // namespace tarsil
