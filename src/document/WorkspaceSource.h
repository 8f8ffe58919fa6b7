// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"
#include "workspace/WorkspaceReader.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tarsil {

/// An entry of a workspace's file list for which a file was found that shares only the name. It may
/// belong to another run, and its curves would be wrong.
struct Namesake
{
    std::size_t position; ///< index in the list
    std::string stored;
    std::string taken;
};

/// A workspace file: what could be read of it, and the paths of the listed files.
struct WorkspaceSource
{
    std::string path;
    WorkspaceReading reading;
    std::vector<std::string> files; ///< the listed files, as returned by `foundFiles`
    std::vector<Namesake> namesakes;
};

/// Reads a workspace file and finds the files that it lists. Errors: those of opening a file; an
/// error in the contents is part of the reading. `progress` is that of the search (`foundFiles`).
WorkspaceSource readWorkspaceSource(const std::string& path, const Progress& progress = {});

/// The user who saved a workspace file; empty when the file does not say. Errors: those of opening
/// a file.
std::string userNameIn(const std::string& path);

/// Reads only the record of a workspace. Errors: those of opening a file and of `readWorkspace`.
WorkspaceRecord readWorkspaceFile(const std::string& path);

} // namespace tarsil
