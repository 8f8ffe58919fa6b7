#pragma once

#include "base/user/UserInterface.h"
#include "model/EVM.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// What has come of several paths.
struct LoadedEvolutions
{
    OwnedEvolutions added; ///< those that were not open before, in the order of their paths

    /// The evolution of each path, also one that was open already; null where there is none.
    std::vector<EVM*> listed;
};

namespace mdlMain {

/// What the dialog offers that opens modal evolutions: an entry for each format, then all files.
std::string evolutionFilter();

constexpr std::string_view openingStatus = "Open Modal Evolutions. Please Wait ...";

/// Asks for files to open, with their folders; empty when the user cancels, or after a failure,
/// which is reported. `filterIndex` counts the entries of the filter from 1; `several` lets the
/// user choose more than one file.
std::vector<std::string> OpenFileDialog(UserInterface& userInterface, std::string_view filter,
                                        std::size_t filterIndex, bool several = false);

/// Reads modal evolutions in the order of `paths`. A file that is missing, or open already (in
/// `open` or earlier in `paths`, also by way of another path), is skipped with a message; one that
/// cannot be read changes nothing and is reported when the others are loaded: several of them
/// in one message, at most 8 by their reports.
LoadedEvolutions loadEvolutions(const OwnedEvolutions& open, const std::vector<std::string>& paths,
                                UserInterface& userInterface);

/// The same for the files that a workspace lists: missing ones are named in one message, at most 20
/// by their paths. An empty path is that of an entry which the list lacks, and missing as well.
LoadedEvolutions loadListedEvolutions(const OwnedEvolutions& open,
                                      const std::vector<std::string>& paths,
                                      UserInterface& userInterface);

} // namespace mdlMain

} // namespace tarsil
