#include "vgfplot/NamedMode.h"

#include "model/EVM.h"

#include <cstdint>

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
