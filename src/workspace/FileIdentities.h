#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace tarsil {

/// The paths of files without links and steps up, so that two ways to one file are one text. What
/// is known of a folder serves all that is in it.
class FileIdentities
{
public:
    /// `file` has "/" between its names; what is not there is its own identity.
    std::string of(const std::string& file);

private:
    const std::string& ofFolder(const std::string& folder);

    std::unordered_map<std::string, std::string> m_folders;
};

/// The folder of a path with "/" between its names: all before the last name. Empty for a name
/// alone.
std::string_view folderIn(std::string_view path);

/// The last name of such a path; empty when it ends with "/".
std::string_view nameIn(std::string_view path);

/// A name in a folder.
std::string pathIn(std::string_view folder, std::string_view name);

} // namespace tarsil
