#include "workspace/FileSearch.h"

#include "runtime/CaseFolding.h"
#include "runtime/PathNames.h"

#include <algorithm>
#include <deque>
#include <system_error>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

/// What stands in one folder by name, at most `most` entries; `isComplete` tells whether that is
/// all.
std::vector<fs::directory_entry> entriesOf(const fs::path& folder, std::size_t most,
                                           bool& isComplete)
{
    std::vector<fs::directory_entry> entries;
    std::error_code failed;
    fs::directory_iterator place(folder, failed);
    for (; !failed && place != fs::directory_iterator(); place.increment(failed)) {
        if (entries.size() == most) {
            isComplete = false;
            break;
        }
        entries.push_back(*place);
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

bool isFolder(const fs::directory_entry& entry)
{
    std::error_code unknown;
    return entry.is_directory(unknown) && !entry.is_symlink(unknown);
}

bool isFileOf(const fs::directory_entry& entry, const std::set<std::string>& names)
{
    std::error_code unknown;
    return names.contains(withoutCase(pathText(entry.path().filename())))
        && entry.is_regular_file(unknown);
}

} // namespace

FileSearch filesBelow(const fs::path& folder, const std::set<std::string>& names)
{
    FileSearch found;
    std::size_t looked = 0;
    std::deque<fs::path> folders {folder};
    while (!folders.empty() && !names.empty() && found.isComplete) {
        const auto entries =
            entriesOf(folders.front(), mostFilesLookedAt - looked, found.isComplete);
        folders.pop_front();
        looked += entries.size();
        for (const fs::directory_entry& entry : entries) {
            if (isFolder(entry))
                folders.push_back(entry.path());
            else if (isFileOf(entry, names))
                found.files.push_back(entry.path());
        }
    }
    return found;
}

} // namespace tarsil
