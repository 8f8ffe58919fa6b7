// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "workspace/WorkspaceRecord.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tarsil {

class AeMode;
class EVM;

/// The evolution and mode that the numbers of a series in a workspace refer to.
struct NamedMode
{
    enum class Fault {
        None,
        NoEvolution, ///< the list of the workspace has no evolution of that number
        NoMode ///< the evolution has no mode of that number
    };

    Fault fault = Fault::None;
    EVM* evolution = nullptr; ///< null if it is not open
    AeMode* mode = nullptr; ///< null after a fault, and if the evolution is not open
};

/// `evolutions` are those in the list of the workspace; null for one that is not open.
NamedMode namedMode(const SeriesRecord& series, const std::vector<EVM*>& evolutions);

/// A series whose evolution or mode does not exist.
struct SeriesFault
{
    std::size_t index = 0; ///< in its plot
    std::string reason;
};

/// The series of a plot in a workspace, with their modes. Series of evolutions that are not open
/// have neither a mode nor a fault.
struct NamedSeries
{
    /// The series whose modes exist, in their order. They belong to the record.
    std::vector<std::pair<const SeriesRecord*, AeMode*>> present;
    std::vector<SeriesFault> faults;

    /// For each fault a sentence: `plot "Wing", series 3 is left out: ...`.
    std::vector<std::string> faultTexts(const PlotRecord& plot) const;
};

NamedSeries namedSeries(const PlotRecord& plot, const std::vector<EVM*>& evolutions);

/// For each entry in the list of a workspace, whether a series of these plots refers to it.
std::vector<bool> namedEvolutions(const std::vector<PlotRecord>& plots, std::size_t listed);

} // namespace tarsil
