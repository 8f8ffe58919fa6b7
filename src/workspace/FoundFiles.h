// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <string>
#include <vector>

namespace tarsil {

/// The files of a workspace, in order: each at its stored path (`storedPath`), or else the file of
/// its name below the folder of the workspace that shares the longest tail of folders with the
/// stored path, as decided by `FileMatching`. Two stored paths never get one file. A path without a
/// file is returned as stored, and so is an empty one. The folder is searched at most once, up to a
/// limit. When `progress` stops the search, no file that it found is used: a better one may not
/// have been visited.
std::vector<std::string> foundFiles(const std::vector<std::string>& stored,
                                    const std::string& workspacePath,
                                    const Progress& progress = {});

/// The path of a stored path: a relative one is below the folder of the workspace if there is such
/// a file; otherwise it is returned unchanged.
std::string storedPath(const std::string& stored, const std::string& workspacePath);

/// Whether a found file shares only its name with the stored path and is not beside the workspace
/// either: it may belong to another run.
bool isTakenByNameAlone(const std::string& stored, const std::string& found,
                        const std::string& workspacePath);

} // namespace tarsil
