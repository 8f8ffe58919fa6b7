#pragma once

#include "base/user/UserInterface.h"
#include "model/Session.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil::mdlMain {

/// What the dialog offers that opens modal evolutions: an entry for each format, then all files.
std::string evolutionFilter();

constexpr std::string_view openingStatus = "Open Modal Evolutions. Please Wait ...";

/// Asks for files to open, with their folders; empty when the user cancels, or after a failure,
/// which is reported. `filterIndex` counts
/// the entries of the filter from 1; `several` lets the user choose more than one file.
std::vector<std::string> OpenFileDialog(UserInterface& userInterface, std::string_view filter,
                                        std::size_t filterIndex, bool several = false);

/// Reads modal evolutions and appends them to those of the session, in the order of `paths`. A file
/// that is missing, or open already (also by way of another path), is skipped with a message; one
/// that cannot be read changes nothing and is reported when the others are loaded: several
/// of them in one message, at most 8 by their reports.
/// `refreshExplorer` is called once at the end when there are new evolutions, which are returned
/// and stay the session's.
std::vector<EVM*> loadEvolutions(Session& session, const std::vector<std::string>& paths,
                                 UserInterface& userInterface,
                                 const std::function<void()>& refreshExplorer);

/// The evolution of each of several paths, also one that was open already, and null where there is
/// none.
using ListedEvolutions = std::vector<EVM*>;

/// The same for the files that a workspace lists: missing ones are reported in one message, at most
/// 20 by their paths. An empty path is that of an entry which the list lacks, and missing as well.
/// `refreshExplorer` gets what is returned.
ListedEvolutions
loadListedEvolutions(Session& session, const std::vector<std::string>& paths,
                     UserInterface& userInterface,
                     const std::function<void(const ListedEvolutions&)>& refreshExplorer);

} // namespace tarsil::mdlMain
