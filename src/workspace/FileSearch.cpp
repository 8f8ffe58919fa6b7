// SPDX-License-Identifier: Apache-2.0
#include "workspace/FileSearch.h"

#include "base/files/PathNames.h"
#include "base/text/CaseFolding.h"
#include "workspace/FileIdentities.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <system_error>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

/// The facts about a file or folder that a search needs. The path is left out, because it is much
/// longer in deep folders.
struct FolderEntry
{
    std::string name;
    bool isFolder = false;
    bool isWanted = false;
};

FolderEntry entryOf(const fs::directory_entry& found, const std::unordered_set<std::string>& names)
{
    std::error_code unknown;
    FolderEntry entry {pathText(found.path().filename())};
    const bool canBeNamed =
        entry.name.find('\\') == std::string::npos; // it is a separator in paths
    entry.isFolder = canBeNamed && found.is_directory(unknown) && isPlainEntry(found.path());
    entry.isWanted = canBeNamed && !entry.isFolder && names.contains(withoutCase(entry.name))
        && found.is_regular_file(unknown);
    return entry;
}

/// The entries of a folder by name, at most `most`; `isComplete` is set to whether that is all.
std::vector<FolderEntry> entriesOf(const std::string& folder,
                                   const std::unordered_set<std::string>& names, std::size_t most,
                                   bool& isComplete)
{
    std::vector<FolderEntry> entries;
    std::error_code failed;
    fs::directory_iterator entry(nativePath(folder), failed);
    for (; !failed && entry != fs::directory_iterator(); entry.increment(failed)) {
        if (entries.size() == most) {
            isComplete = false;
            break;
        }
        entries.push_back(entryOf(*entry, names));
    }
    std::sort(entries.begin(), entries.end(),
              [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
    return entries;
}

} // namespace

FileSearch filesBelow(const std::string& folder, const std::unordered_set<std::string>& names,
                      const Progress& progress)
{
    FileSearch found;
    std::size_t looked = 0;
    std::deque<std::string> folders {folder};
    while (!folders.empty() && !names.empty() && found.isComplete && !found.isStopped) {
        const auto entries =
            entriesOf(folders.front(), names, mostFilesLookedAt - looked, found.isComplete);
        looked += entries.size();
        for (const FolderEntry& entry : entries) {
            if (entry.isFolder)
                folders.push_back(pathIn(folders.front(), entry.name));
            else if (entry.isWanted)
                found.files.push_back(pathIn(folders.front(), entry.name));
        }
        folders.pop_front();
        found.isStopped = !goesOn(progress, looked, mostFilesLookedAt + 1);
    }
    return found;
}

} // namespace tarsil
