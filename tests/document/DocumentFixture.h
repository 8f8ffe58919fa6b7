// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/ModeBuilder.h"
#include "document/Document.h"
#include "support/ScriptedUserInterface.h"
#include "vgfplot/EvmPlot.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tarsil::test {

using Texts = std::vector<std::string>;

/// An evolution of one mode with two points.
inline std::unique_ptr<EVM> makeEvolution(const std::string& name)
{
    auto evolution = std::make_unique<EVM>();
    evolution->Folder = "/runs";
    evolution->FileName = name;
    addMode(*evolution, 1, {{100, -0.02F, 5}, {200, 0.01F, 6}});
    return evolution;
}

/// Appends an evolution as if it were read from a file.
inline EVM& addEvolution(EvolutionList& list, const std::string& name)
{
    OwnedEvolutions evolutions;
    evolutions.push_back(makeEvolution(name));
    EVM& evolution = *evolutions.front();
    list.add(std::move(evolutions));
    return evolution;
}

inline Texts namesOf(const EvolutionList& list)
{
    Texts names;
    for (const auto& evolution : list.all())
        names.push_back(evolution->FileName);
    return names;
}

inline Texts captionsOf(const PlotList& list)
{
    Texts captions;
    for (const EvmPlot* const plot : list.all())
        captions.push_back(plot->properties().Caption().toStdString());
    return captions;
}

inline std::string captionOf(const EvmPlot* plot)
{
    return plot == nullptr ? "none" : plot->properties().Caption().toStdString();
}

inline std::string nameOf(const EVM* evolution)
{
    return evolution == nullptr ? "none" : evolution->FileName;
}

} // namespace tarsil::test
