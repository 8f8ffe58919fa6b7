#pragma once

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

namespace tarsil {

/// How many files and folders a search looks at.
constexpr std::size_t mostFilesLookedAt = 20000;

/// What a search has found.
struct FileSearch
{
    std::vector<std::string> files; ///< those near to the folder first, then by name
    bool isComplete = true; ///< false when there was more below the folder than is looked at
};

/// The files below a folder whose names are among `names`, which have no case (`withoutCase`). What
/// may not be read is passed over, and so are links to folders. Paths have "/" between their names.
FileSearch filesBelow(const std::string& folder, const std::unordered_set<std::string>& names);

} // namespace tarsil
