#pragma once

#include "workspace/WorkspaceRecord.h"

#include <cstddef>
#include <vector>

namespace tarsil {

class AeMode;
class EVM;

/// What the numbers of a series in a workspace name.
struct NamedMode
{
    enum class Fault {
        None,
        NoEvolution, ///< the number of the evolution is not in the workspace's list
        NoMode ///< the evolution has no mode of that number
    };

    Fault fault = Fault::None;
    EVM* evolution = nullptr; ///< null where it is not open
    AeMode* mode = nullptr; ///< null at a fault, and where the evolution is not open
};

/// `evolutions` are those of the workspace's list, null for one that is not open.
NamedMode namedMode(const SeriesRecord& series, const std::vector<EVM*>& evolutions);

/// For each entry of a workspace's list, whether a series of these plots names it.
std::vector<bool> namedEvolutions(const std::vector<PlotRecord>& plots, std::size_t listed);

} // namespace tarsil
