#pragma once

#include "workspace/WorkspaceRecord.h"

#include <cstddef>
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

/// For each entry in the list of a workspace, whether a series of these plots refers to it.
std::vector<bool> namedEvolutions(const std::vector<PlotRecord>& plots, std::size_t listed);

} // namespace tarsil
