// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "batch/CommandLine.h"
#include "workspace/WorkspaceRecord.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {
class EVM;
} // namespace tarsil

namespace tarsil::batch {

class BatchRun;

/// Whether a file is a workspace by its name, which ends in .tsw, in any case.
bool isWorkspace(std::string_view path);

/// Whether one of the files is a workspace.
bool hasWorkspace(const std::vector<std::string>& paths);

/// The option that selects a plot of a workspace.
inline constexpr OptionDescription plotOption {
    "--plot", "N|CAPTION",
    "plot of a workspace: its number, from 1, or its caption;\ndefault is all"};

/// Raises UsageError for --plot without a workspace, and for a useless option with one.
void checkWorkspaceOptions(const CommandLine& line, const std::vector<std::string>& paths,
                           const std::vector<std::string_view>& useless);

/// Which evolutions of a workspace a command uses.
enum class UsedEvolutions { OfSeries, All };

/// The part of a workspace that a command uses.
struct WorkspaceInput
{
    WorkspaceRecord record; ///< as in the file
    std::string userName; ///< who saved it
    std::vector<PlotRecord> plots; ///< the selected plots, with the series whose modes exist
    std::vector<EVM*> evolutions; ///< as listed in the workspace; null where none is open
    std::set<std::string> files; ///< the workspace and those of its files that exist
    bool isWhole = true; ///< whether no series was left out
};

/// Opens a workspace and the evolutions of the series of its plots: of the plot with the number
/// (from 1) or else the caption `plot`, or of all plots; or all evolutions. They get the parameters
/// that were edited in the workspace. A missing or unreadable evolution, and a series whose
/// evolution or mode does not exist, is reported and left out. Errors: those of opening a file and
/// of `readWorkspace`; Failure for an unknown plot.
WorkspaceInput openWorkspace(const std::string& path, const std::optional<std::string>& plot,
                             BatchRun& run, UsedEvolutions used = UsedEvolutions::OfSeries);

/// Receives the index of a file in the list of the workspace, and why it cannot be opened.
using OpeningReport = std::function<void(std::size_t index, const std::string& why)>;

/// Opens the wanted ones of `files`, the paths at which the files of a workspace were found, each
/// once. An evolution that cannot be opened is reported and null.
std::vector<EVM*> openEvolutions(const std::vector<bool>& wanted,
                                 const std::vector<std::string>& files, BatchRun& run,
                                 const OpeningReport& report);

} // namespace tarsil::batch
