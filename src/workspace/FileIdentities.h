// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace tarsil {

/// Canonical paths of files, without links and "..", so that all paths to a file give the same
/// text; where the system ignores the case of names, so does the text. Folders are cached.
class FileIdentities
{
public:
    /// `file` has "/" as separator. A file that does not exist is its own identity.
    std::string of(const std::string& file);

private:
    std::string canonicalPath(const std::string& file);
    const std::string& ofFolder(const std::string& folder);

    std::unordered_map<std::string, std::string> m_folders;
};

/// The folder of a path with "/" as separator: everything before the last component. Empty for a
/// plain name.
std::string_view folderIn(std::string_view path);

/// The last component of such a path; empty when it ends with "/".
std::string_view nameIn(std::string_view path);

/// The path of a name in a folder.
std::string pathIn(std::string_view folder, std::string_view name);

} // namespace tarsil
