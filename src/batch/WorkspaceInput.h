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

/// Whether a file name says that the file is a workspace: it ends in .tsw, in any case.
bool isWorkspace(std::string_view path);

/// Whether there is one among these files.
bool hasWorkspace(const std::vector<std::string>& paths);

/// The option that chooses a plot of a workspace, for commands that take one.
inline constexpr OptionDescription plotOption {
    "--plot", "N|CAPTION",
    "plot of a workspace: its number, from 1, or its caption;\nall of them without this option"};

/// UsageError for --plot without a workspace, and for one of these options with one, which has no
/// use for it.
void checkWorkspaceOptions(const CommandLine& line, const std::vector<std::string>& paths,
                           const std::vector<std::string_view>& useless);

/// What a command takes of a workspace.
struct WorkspaceInput
{
    std::vector<PlotRecord> plots; ///< those asked for, with the series whose modes are there
    std::vector<EVM*> evolutions; ///< as the workspace lists them; null where none is open
    std::set<std::string> files; ///< the workspace and the files it lists, as far as they are there
    bool isWhole = true; ///< whether no series had to be left out
};

/// Opens a workspace and the evolutions that the series of its plots name: those of the plot asked
/// for, by its number from 1 or else by its caption, or those of all plots. The evolutions have the
/// parameters that were edited in the workspace. An evolution that is missing or cannot be read,
/// and a series that names none or a mode that there is not, are complained of and left out.
/// Errors: those of opening a file and of `readWorkspace`; Failure for a plot that there is not.
WorkspaceInput openWorkspace(const std::string& path, const std::optional<std::string>& plot,
                             BatchRun& run);

/// Receives the index in the workspace's list of a file that cannot be opened, and why.
using OpeningReport = std::function<void(std::size_t index, const std::string& why)>;

/// Opens the evolutions that series of these plots name, each once. `files` are those of the
/// workspace, as they were found; what cannot be opened is reported and stays null.
std::vector<EVM*> openEvolutions(const std::vector<PlotRecord>& plots,
                                 const std::vector<std::string>& files, BatchRun& run,
                                 const OpeningReport& report);

/// What is wrong with the numbers of a series, as a sentence; empty when its mode is there, or when
/// its evolution is not open.
std::string faultOf(const SeriesRecord& series, const std::vector<EVM*>& evolutions);

} // namespace tarsil::batch
