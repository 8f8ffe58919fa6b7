// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/NamedMode.h"

#include "model/EVM.h"

#include <cstdint>
#include <optional>

namespace tarsil {

namespace {

/// Whether a number, counted from 1, is a position in a list of `count` entries.
bool isIn(std::int16_t number, std::size_t count)
{
    return number >= 1 && static_cast<std::size_t>(number) <= count;
}

std::size_t indexOf(std::int16_t number)
{
    return static_cast<std::size_t>(number - 1);
}

/// The fault in the numbers of a series; empty when its mode exists or its evolution is not open.
std::optional<std::string> faultOf(const SeriesRecord& series, const NamedMode& named,
                                   std::size_t listed)
{
    switch (named.fault) {
    case NamedMode::Fault::None:
        break;
    case NamedMode::Fault::NoEvolution:
        return "there is no modal evolution " + std::to_string(series.evolution)
            + "; the workspace lists " + std::to_string(listed);
    case NamedMode::Fault::NoMode:
        return named.evolution->FileName + " has no mode at position " + std::to_string(series.mode)
            + "; it has " + std::to_string(named.evolution->Modes.size());
    }
    return std::nullopt;
}

} // namespace

NamedMode namedMode(const SeriesRecord& series, const std::vector<EVM*>& evolutions)
{
    if (!isIn(series.evolution, evolutions.size()))
        return {NamedMode::Fault::NoEvolution, nullptr, nullptr};
    EVM* const evolution = evolutions[indexOf(series.evolution)];
    if (evolution == nullptr)
        return {};
    if (!isIn(series.mode, evolution->Modes.size()))
        return {NamedMode::Fault::NoMode, evolution, nullptr};
    return {NamedMode::Fault::None, evolution, evolution->Modes[indexOf(series.mode)].get()};
}

NamedSeries namedSeries(const PlotRecord& plot, const std::vector<EVM*>& evolutions)
{
    NamedSeries result;
    for (std::size_t i = 0; i < plot.series.size(); ++i) {
        const SeriesRecord& series = plot.series[i];
        const NamedMode named = namedMode(series, evolutions);
        if (named.mode != nullptr)
            result.present.emplace_back(&series, named.mode);
        else if (const auto fault = faultOf(series, named, evolutions.size()))
            result.faults.push_back({i, *fault});
    }
    return result;
}

std::vector<std::string> NamedSeries::faultTexts(const PlotRecord& plot) const
{
    std::vector<std::string> texts;
    for (const SeriesFault& fault : faults)
        texts.push_back("plot \"" + plot.caption + "\", series " + std::to_string(fault.index + 1)
                        + " is left out: " + fault.reason);
    return texts;
}

std::vector<bool> namedEvolutions(const std::vector<PlotRecord>& plots, std::size_t listed)
{
    std::vector<bool> named(listed);
    for (const PlotRecord& plot : plots) {
        for (const SeriesRecord& series : plot.series) {
            if (isIn(series.evolution, listed))
                named[indexOf(series.evolution)] = true;
        }
    }
    return named;
}

} // namespace tarsil
