// SPDX-License-Identifier: Apache-2.0
#include "workspace/FoundFiles.h"

#include "base/files/PathNames.h"
#include "base/text/CaseFolding.h"
#include "workspace/FileIdentities.h"
#include "workspace/FileMatching.h"
#include "workspace/FileSearch.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <map>
#include <string_view>
#include <system_error>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace tarsil {

namespace {

// Paths are handled as texts with "/" as separator: std::filesystem::path is slow and large for
// hundreds of folders.

std::string folderOf(const std::string& workspacePath)
{
    return pathText(nativePath(joinPath(resolvePath(workspacePath).folder, "x")).parent_path());
}

/// Replaces repeated separators by one, but not those before the name of a computer.
std::string plainText(std::string_view stored)
{
    std::string text(stored);
    std::replace(text.begin(), text.end(), '\\', '/');
    const auto areSlashes = [](char a, char b) { return a == '/' && b == '/'; };
    const std::ptrdiff_t first = hasWindowsPaths && text.starts_with("//") ? 1 : 0;
    text.erase(std::unique(text.begin() + first, text.end(), areSlashes), text.end());
    return text;
}

/// The length of the root of a path; 0 for a relative path.
std::size_t rootLength(const std::string& path)
{
    return pathText(nativePath(path.substr(0, 3)).root_path()).size();
}

/// The spelling by which entries of one path are recognised. Case is ignored with drive letters,
/// and where the system ignores it.
std::string keyOf(std::string_view stored)
{
    const std::string path = plainText(stored);
    const bool hasDrive = path.size() > 1 && path[1] == ':';
    return hasDrive || hasWindowsPaths ? withoutCase(path) : path;
}

/// The path of a stored path when the workspace is in `folder`.
std::string pathFor(const std::string& folder, const std::string& stored)
{
    const std::string path = plainText(stored);
    if (rootLength(path) > 0)
        return stored;
    std::string below = pathIn(folder, path);
    return fileExists(below) ? below : stored;
}

/// Finds files that moved together with some of their stored folders, without a search.
class NearFiles
{
public:
    explicit NearFiles(std::string folder) : m_folder(std::move(folder)) { }

    /// Adds the candidates of a path, the one with the longest tail first.
    void add(const std::string& path, FileMatching& matching)
    {
        const std::string_view whole = path;
        std::size_t start = rootLength(path);
        while (start < path.size()) {
            const std::string_view tail = whole.substr(start);
            if (exist(tail))
                addFile(pathIn(m_folder, tail), matching);
            start = std::min(path.find('/', start), path.size() - 1) + 1;
        }
    }

private:
    static void addFile(const std::string& file, FileMatching& matching)
    {
        std::error_code failed;
        if (std::filesystem::is_regular_file(nativePath(file), failed))
            matching.addFile(file);
    }

    /// Whether the folders of a path exist, one below the other. Cached, because many paths share
    /// their start, and most do not exist.
    bool exist(std::string_view path)
    {
        std::size_t end = path.find('/');
        while (end != std::string_view::npos && isHere(path.substr(0, end)))
            end = path.find('/', end + 1);
        return end == std::string_view::npos;
    }

    bool isHere(std::string_view path)
    {
        const auto [known, isNew] = m_folders.try_emplace(std::string(path), false);
        std::error_code failed;
        if (isNew)
            known->second = std::filesystem::exists(nativePath(pathIn(m_folder, path)), failed);
        return known->second;
    }

    std::string m_folder;
    std::unordered_map<std::string, bool> m_folders;
};

/// Paths without a file, with their indices, by key.
using MissingPaths = std::map<std::string, std::pair<std::size_t, std::string>>;

/// The files of missing paths by their indices.
std::map<std::size_t, std::string> movedFiles(const MissingPaths& missing,
                                              const std::string& folder, FileMatching& matching,
                                              const Progress& progress)
{
    std::unordered_set<std::string> names;
    for (const auto& [key, path] : missing)
        names.insert(withoutCase(nameIn(path.second)));
    const FileSearch search = filesBelow(folder, names, progress);
    if (search.isStopped)
        return {};
    for (const std::string& file : search.files)
        matching.addFile(file);
    NearFiles near(folder);
    for (const auto& [key, path] : missing) {
        if (!search.isComplete)
            near.add(path.second, matching);
    }
    return matching.match();
}

} // namespace

std::string storedPath(const std::string& stored, const std::string& workspacePath)
{
    return pathFor(folderOf(workspacePath), stored);
}

std::vector<std::string> foundFiles(const std::vector<std::string>& stored,
                                    const std::string& workspacePath, const Progress& progress)
{
    const std::string folder = folderOf(workspacePath);
    std::vector<std::string> files;
    FileMatching matching(folder);
    MissingPaths missing;
    for (const std::string& one : stored) {
        const std::string path = plainText(one);
        files.push_back(pathFor(folder, one));
        if (fileExists(files.back()))
            matching.addPresent(path, plainText(files.back()));
        else if (!one.empty() && missing.try_emplace(keyOf(one), missing.size(), path).second)
            matching.addPath(path);
    }
    const auto moved = movedFiles(missing, folder, matching, progress);
    for (std::size_t i = 0; i < files.size(); ++i) {
        const auto path = missing.find(keyOf(stored[i]));
        const auto file = path == missing.end() ? moved.end() : moved.find(path->second.first);
        if (file != moved.end())
            files[i] = file->second;
    }
    return files;
}

bool isTakenByNameAlone(const std::string& stored, const std::string& found,
                        const std::string& workspacePath)
{
    const auto folderName = [](const std::string& path) {
        return withoutCase(nameIn(folderIn(path)));
    };
    const std::string folder = folderOf(workspacePath);
    const std::string file = plainText(found);
    const std::string expected = plainText(pathFor(folder, stored));
    return file != expected && folderIn(file) != folder && folderName(file) != folderName(expected);
}

} // namespace tarsil
