// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/StabilityTable.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tarsil {

class AirplaneInfo;
class EvmPlot;

/// The evolutions of the rows of a plot, each once, in row order.
std::vector<const EVM*> evolutionsOf(const EvmPlot& plot);

/// A real stretch of an evolution.
struct PlotStretch
{
    const EVM* evolution = nullptr; ///< not owned
    StabilityLine line;
};

/// The contents of the window "Stability". Needs no window.
struct PlotStability
{
    std::vector<EvolutionStability> evolutions;
    std::vector<PlotStretch> stretches; ///< of all evolutions, by rising start
    std::size_t noise = 0; ///< number of stretches left out
    std::size_t weak = 0;
};

/// Judges evolutions, with their margins if the airplane has envelopes.
PlotStability stabilityOfAll(const std::vector<const EVM*>& evolutions,
                             const StabilitySettings& settings, const AirplaneInfo& airplane,
                             const Requirement& requirement);

/// Speeds (KEAS) with their captions, each once.
using EnvelopeSpeeds = std::set<std::pair<double, std::string>>;

/// The required speeds of evolutions, such as 241.5 with "1.15 Vd"; with `hasLimits` also the limit
/// speeds and ceilings of their envelopes, with the tags of the airplane. Without tags these are
/// "VL", "Vd" and "Ceiling".
EnvelopeSpeeds envelopeSpeeds(const std::vector<EvolutionStability>& evolutions,
                              const AirplaneInfo& airplane, bool hasLimits);

} // namespace tarsil
