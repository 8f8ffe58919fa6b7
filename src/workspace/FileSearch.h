// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

namespace tarsil {

/// The maximum number of files and folders that a search visits.
constexpr std::size_t mostFilesLookedAt = 20000;

/// The result of a search.
struct FileSearch
{
    std::vector<std::string> files; ///< sorted by depth, then by name
    bool isComplete = true; ///< false when the limit was reached
    bool isStopped = false;
};

/// The files below a folder whose names are in `names`, which are folded by `withoutCase`. Skips
/// what cannot be read, links to folders, and on Windows folders with paths longer than 260
/// characters. Paths have "/" as separator. Reports the number of
/// files and folders visited after each folder.
FileSearch filesBelow(const std::string& folder, const std::unordered_set<std::string>& names,
                      const Progress& progress = {});

} // namespace tarsil
