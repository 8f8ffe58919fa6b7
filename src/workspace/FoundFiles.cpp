#include "workspace/FoundFiles.h"

#include "runtime/CaseFolding.h"
#include "runtime/PathNames.h"
#include "workspace/FileMatching.h"
#include "workspace/FileSearch.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <numeric>
#include <set>
#include <system_error>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

fs::path folderOf(const std::string& workspacePath)
{
    return nativePath(joinPath(resolvePath(workspacePath).folder, "x")).parent_path();
}

/// The spelling by which entries of one path know each other. On the platform of drive letters case
/// does not count.
std::string keyOf(const std::string& stored)
{
    const std::string path = pathText(nativePath(stored));
    const bool hasDrive = path.size() > 1 && path[1] == ':';
    return hasDrive ? withoutCase(path) : path;
}

/// Adds the files that moved together with some of their stored folders, without looking for them.
void addNearFiles(const fs::path& folder, const std::string& stored, FileMatching& matching)
{
    const fs::path names = nativePath(stored).relative_path();
    for (auto first = names.begin(); first != names.end(); ++first) {
        const fs::path tail = std::accumulate(first, names.end(), fs::path(), std::divides<>());
        std::error_code failed;
        if (fs::is_regular_file(folder / tail, failed))
            matching.addFile(folder / tail);
    }
}

/// The files of paths that are not at their stored places.
std::map<std::string, fs::path> movedFiles(const std::map<std::string, std::string>& missing,
                                           const fs::path& folder, FileMatching& matching)
{
    std::set<std::string> names;
    for (const auto& [key, stored] : missing)
        names.insert(withoutCase(pathText(nativePath(stored).filename())));
    const FileSearch search = filesBelow(folder, names);
    for (const fs::path& file : search.files)
        matching.addFile(file);
    for (const auto& [key, stored] : missing) {
        if (!search.isComplete)
            addNearFiles(folder, stored, matching);
    }
    return matching.match();
}

} // namespace

std::string storedPlace(const std::string& stored, const std::string& workspacePath)
{
    const fs::path native = nativePath(stored);
    const std::string below = pathText(folderOf(workspacePath) / native);
    return native.is_relative() && fileExists(below) ? below : stored;
}

std::vector<std::string> foundFiles(const std::vector<std::string>& stored,
                                    const std::string& workspacePath)
{
    std::vector<std::string> files;
    FileMatching matching(folderOf(workspacePath));
    std::map<std::string, std::string> missing; ///< stored paths by their keys
    for (const std::string& one : stored) {
        files.push_back(storedPlace(one, workspacePath));
        if (fileExists(files.back()))
            matching.take(keyOf(one), one, nativePath(files.back()));
        else if (!one.empty() && missing.emplace(keyOf(one), one).second)
            matching.addPath(keyOf(one), one);
    }
    const auto moved = movedFiles(missing, folderOf(workspacePath), matching);
    for (std::size_t i = 0; i < files.size(); ++i) {
        const auto file = moved.find(keyOf(stored[i]));
        if (file != moved.end())
            files[i] = pathText(file->second);
    }
    return files;
}

bool isTakenByNameAlone(const std::string& stored, const std::string& found,
                        const std::string& workspacePath)
{
    const auto folderName = [](const fs::path& path) {
        return withoutCase(pathText(path.parent_path().filename()));
    };
    const fs::path file = nativePath(found);
    const fs::path place = nativePath(storedPlace(stored, workspacePath));
    return file != place && file.parent_path() != folderOf(workspacePath)
        && folderName(file) != folderName(place);
}

} // namespace tarsil
