// SPDX-License-Identifier: Apache-2.0
#include "workspace/FileIdentities.h"

#include "base/files/PathNames.h"
#include "base/text/CaseFolding.h"

#include <utility>
#include <vector>

namespace tarsil {

namespace {

std::string canonicalText(const std::string& path)
{
    const auto real = realPath(nativePath(path));
    return real ? pathText(*real) : path;
}

/// Whether the last component of a path is a plain name in the folder before it.
bool isPlainName(const std::string& path)
{
    const std::string_view name = nameIn(path);
    return !name.empty() && name != "." && name != ".." && isPlainEntry(nativePath(path));
}

} // namespace

std::string FileIdentities::of(const std::string& file)
{
    std::string path = canonicalPath(file);
    return hasWindowsPaths ? withoutCase(path) : path;
}

std::string FileIdentities::canonicalPath(const std::string& file)
{
    const std::string folder(folderIn(file));
    if (folder.empty() || !isPlainName(file))
        return canonicalText(file);
    return pathIn(ofFolder(folder), nameIn(file));
}

/// Walks up to a known folder, or one that must be looked up, and down again.
const std::string& FileIdentities::ofFolder(const std::string& folder)
{
    std::vector<std::string> below;
    std::string top = folder;
    while (!m_folders.contains(top)) {
        std::string above(folderIn(top));
        if (above.empty() || above == top || !isPlainName(top)) {
            m_folders.emplace(top, canonicalText(top));
            break;
        }
        below.push_back(std::exchange(top, std::move(above)));
    }
    const std::string* known = &m_folders.at(top);
    for (; !below.empty(); below.pop_back())
        known =
            &m_folders.emplace(below.back(), pathIn(*known, nameIn(below.back()))).first->second;
    return *known;
}

std::string_view folderIn(std::string_view path)
{
    const std::size_t end = path.rfind('/');
    if (end == std::string_view::npos)
        return {};
    return path.substr(0, end == 0 ? 1 : end);
}

std::string_view nameIn(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string pathIn(std::string_view folder, std::string_view name)
{
    std::string path(folder);
    if (!path.ends_with('/'))
        path += '/';
    return path.append(name);
}

} // namespace tarsil
