#pragma once

#include <string>
#include <vector>

namespace tarsil {

/// The files that a workspace names, in the same order: each at its stored place (`storedPlace`),
/// or else the file of its name below the folder of the workspace that shares most of its last
/// folders with the stored path, as `FileMatching` decides. Two stored paths never get one file; a
/// path without a file of its own is given as it is stored, as is an empty one. The folder is gone
/// through at most once, and not to its end when it is vast.
std::vector<std::string> foundFiles(const std::vector<std::string>& stored,
                                    const std::string& workspacePath);

/// Where a stored path leads: a relative one below the folder of the workspace when there is such a
/// file; the path itself otherwise.
std::string storedPlace(const std::string& stored, const std::string& workspacePath);

/// Whether a file that was found for a stored path has nothing in common with it but the name, and
/// is not beside the workspace either: it may be another run's.
bool isTakenByNameAlone(const std::string& stored, const std::string& found,
                        const std::string& workspacePath);

} // namespace tarsil
