// SPDX-License-Identifier: Apache-2.0
#include "stability/PlotStability.h"

#include "aircraft/AirplaneInfo.h"
#include "base/numbers/Numbers.h"
#include "vgfplot/EvmPlot.h"

#include <algorithm>

namespace tarsil {

namespace {

double startOf(const PlotStretch& stretch)
{
    const auto& start = stretch.line.stretch.start;
    return start ? start->speed : -1;
}

void add(EvolutionStability stability, PlotStability& all)
{
    all.noise += stability.noise;
    all.weak += stability.weak;
    for (const StabilityLine& line : stability.lines)
        all.stretches.push_back({stability.evolution, line});
    all.evolutions.push_back(std::move(stability));
}

std::string tagOr(const std::string& tag, const char* usual)
{
    return tag.empty() ? usual : tag;
}

} // namespace

std::vector<const EVM*> evolutionsOf(const EvmPlot& plot)
{
    std::vector<const EVM*> evolutions;
    for (const PlotRow& row : plot.rows().all()) {
        const EVM* const evolution = row.evolution;
        const auto end = evolutions.end();
        if (evolution != nullptr && std::find(evolutions.begin(), end, evolution) == end)
            evolutions.push_back(evolution);
    }
    return evolutions;
}

PlotStability stabilityOfAll(const std::vector<const EVM*>& evolutions,
                             const StabilitySettings& settings, const AirplaneInfo& airplane,
                             const Requirement& requirement)
{
    PlotStability all;
    for (const EVM* evolution : evolutions) {
        StabilityInput input {evolution, 0, std::nullopt};
        if (!airplane.FlutterEnvs.empty())
            input.required = requiredSpeed(*evolution, airplane, requirement);
        add(judged(input, settings), all);
    }
    std::stable_sort(all.stretches.begin(), all.stretches.end(),
                     [](const auto& a, const auto& b) { return startOf(a) < startOf(b); });
    return all;
}

EnvelopeSpeeds envelopeSpeeds(const std::vector<EvolutionStability>& evolutions,
                              const AirplaneInfo& airplane, bool hasLimits)
{
    EnvelopeSpeeds speeds;
    for (const EvolutionStability& stability : evolutions) {
        if (!stability.margin || !stability.margin->required.diveSpeed)
            continue;
        const RequiredSpeed& required = stability.margin->required;
        speeds.insert(
            {required.speed(),
             shortestText(required.requirement.factor) + " " + tagOr(airplane.VdTag, "Vd")});
        const FlutterEnvelope* const envelope = airplane.envelopeAtMach(required.mach);
        if (!hasLimits || envelope == nullptr)
            continue;
        speeds.insert({static_cast<double>(envelope->VL), tagOr(airplane.VLTag, "VL")});
        speeds.insert({static_cast<double>(envelope->Ceiling), tagOr(airplane.CeTag, "Ceiling")});
    }
    return speeds;
}

} // namespace tarsil
