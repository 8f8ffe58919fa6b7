// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/UserInterface.h"
#include "model/EVM.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// The result of loading several paths.
struct LoadedEvolutions
{
    OwnedEvolutions added; ///< those that were not open before, in order of their paths

    /// The evolution of each path, including those already open; null for none.
    std::vector<EVM*> listed;
};

namespace mdlMain {

/// The filter of the dialog that opens modal evolutions: an entry for each format, then all files.
std::string evolutionFilter();

constexpr std::string_view openingStatus = "Open Modal Evolutions. Please Wait ...";

/// Asks for files to open; returns their full paths. Empty when the user cancels, or after a
/// failure, which is reported. `filterIndex` is the entry of the filter shown first, counted from
/// 1; `several` allows the user to select more than one file.
std::vector<std::string> OpenFileDialog(UserInterface& userInterface, std::string_view filter,
                                        std::size_t filterIndex, bool several = false);

/// Reads modal evolutions in the order of `paths`. A file that is missing, or already open (in
/// `open` or earlier in `paths`, also by another path), is skipped with a message. A file that
/// cannot be read changes nothing; such files are reported in one message after the others are
/// loaded, at most 8 with their reports. When the user stops, the evolutions read so far are
/// loaded, and a note has their number.
LoadedEvolutions loadEvolutions(const OwnedEvolutions& open, const std::vector<std::string>& paths,
                                UserInterface& userInterface);

/// The same for the files of a workspace: missing files are listed in one message, at most 20 by
/// their paths. An empty path, for an entry that the list lacks, is a missing file.
LoadedEvolutions loadListedEvolutions(const OwnedEvolutions& open,
                                      const std::vector<std::string>& paths,
                                      UserInterface& userInterface);

} // namespace mdlMain

} // namespace tarsil
