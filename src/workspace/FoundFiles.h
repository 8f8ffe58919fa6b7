#pragma once

#include <string>
#include <vector>

namespace tarsil {

/// The files that a workspace names, in the same order: each at its stored place (`storedPlace`),
/// or else the file of its name below the folder of the workspace that shares most of its last
/// folders with the stored path. Names that differ in case alone count as equal where there is no
/// better one. Two stored paths never get one file; a path without a file of its own is given as it
/// is stored. The folder is gone through at most once, and not to its end when it is vast.
std::vector<std::string> foundFiles(const std::vector<std::string>& stored,
                                    const std::string& workspacePath);

/// Where a stored path leads: a relative one below the folder of the workspace when there is such a
/// file; the path itself otherwise.
std::string storedPlace(const std::string& stored, const std::string& workspacePath);

} // namespace tarsil
