#pragma once

#include <cstddef>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace tarsil {

/// How many files and folders a search looks at.
constexpr std::size_t mostFilesLookedAt = 20000;

/// What a search has found.
struct FileSearch
{
    std::vector<std::filesystem::path> files; ///< those near to the folder first, then by name
    bool isComplete = true; ///< false when there was more below the folder than is looked at
};

/// The files below a folder whose names are among `names`, which have no case (`withoutCase`). What
/// may not be read is passed over, and so are links to folders.
FileSearch filesBelow(const std::filesystem::path& folder, const std::set<std::string>& names);

} // namespace tarsil
