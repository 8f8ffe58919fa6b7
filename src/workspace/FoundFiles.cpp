#include "workspace/FoundFiles.h"

#include "runtime/PathNames.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <numeric>
#include <optional>
#include <set>
#include <system_error>
#include <unordered_map>
#include <utility>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostFilesLookedAt = 20000; ///< below the folder of a workspace

fs::path folderOf(const std::string& workspacePath)
{
    return nativePath(resolvePath(workspacePath).folder + "\\");
}

std::string nameOf(const std::string& stored)
{
    return pathText(nativePath(stored).filename());
}

/// Where a file is that moved together with a folder, with as many of its stored folders as there
/// are: they tell namesakes apart. Without any of them it is beside the workspace. Empty when it is
/// nowhere there.
fs::path movedTogether(const fs::path& folder, const fs::path& stored)
{
    const fs::path names = stored.relative_path();
    for (auto first = names.begin(); first != names.end(); ++first) {
        const fs::path tail = std::accumulate(first, names.end(), fs::path(), std::divides<>());
        std::error_code failed;
        if (fs::is_regular_file(folder / tail, failed))
            return folder / tail;
    }
    return {};
}

/// The file itself, or where it is when it moved together with the workspace; nothing when it is
/// neither.
std::optional<std::string> nearFile(const std::string& stored, const fs::path& folder)
{
    if (fileExists(stored))
        return stored;
    const fs::path moved = movedTogether(folder, nativePath(stored));
    return moved.empty() ? std::nullopt : std::optional(pathText(moved));
}

/// The first file of each of these names below a folder.
std::unordered_map<std::string, std::string> filesBelow(const fs::path& folder,
                                                        std::set<std::string> names)
{
    std::unordered_map<std::string, std::string> found;
    std::error_code failed;
    fs::recursive_directory_iterator place(folder, fs::directory_options::skip_permission_denied,
                                           failed);
    std::size_t looked = 0;
    for (; !names.empty() && !failed && place != fs::recursive_directory_iterator()
         && looked < mostFilesLookedAt;
         place.increment(failed), ++looked) {
        const std::string name = pathText(place->path().filename());
        std::error_code unknown;
        if (names.contains(name) && place->is_regular_file(unknown)) {
            found.emplace(name, pathText(place->path()));
            names.erase(name);
        }
    }
    return found;
}

} // namespace

std::vector<std::string> foundFiles(const std::vector<std::string>& stored,
                                    const std::string& workspacePath)
{
    const fs::path folder = folderOf(workspacePath);
    std::vector<std::string> files = stored;
    std::vector<std::size_t> farPlaces;
    std::set<std::string> farNames;
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (const auto near = nearFile(stored[i], folder)) {
            files[i] = *near;
        } else {
            farPlaces.push_back(i);
            farNames.insert(nameOf(stored[i]));
        }
    }
    const auto found = filesBelow(folder, std::move(farNames));
    for (const std::size_t place : farPlaces) {
        const auto file = found.find(nameOf(stored[place]));
        if (file != found.end())
            files[place] = file->second;
    }
    return files;
}

} // namespace tarsil
