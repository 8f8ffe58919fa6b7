#pragma once

#include "workspace/WorkspaceReader.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tarsil {

/// An entry of a workspace's list of files for which a file was taken that has nothing in common
/// with it but the name. It may be another run's, and its curves would be wrong.
struct Namesake
{
    std::size_t position; ///< in the list, from 0
    std::string stored;
    std::string taken;
};

/// A workspace file: what could be read of it, and where the files are that it lists.
struct WorkspaceSource
{
    std::string path;
    WorkspaceReading reading;
    std::vector<std::string> files; ///< those of the list, as `foundFiles` gives them
    std::vector<Namesake> namesakes;
};

/// Reads a workspace file and looks for the files that it lists. Errors: those of opening a file;
/// an error of the contents is in the reading.
WorkspaceSource readWorkspaceSource(const std::string& path);

/// Reads the record of a workspace alone. Errors: those of opening a file and of `readWorkspace`.
WorkspaceRecord readWorkspaceFile(const std::string& path);

} // namespace tarsil
