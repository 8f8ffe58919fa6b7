#pragma once

#include <string>
#include <vector>

namespace tarsil {

/// The files that a workspace names, in the same order: each where the workspace says, or else in
/// the folder of the workspace, with as many of its stored folders as are there, or else the first
/// one of that name below. A file that is nowhere keeps its stored path. The folder is gone through
/// at most once, and not to its end when it is vast.
std::vector<std::string> foundFiles(const std::vector<std::string>& stored,
                                    const std::string& workspacePath);

} // namespace tarsil
