#pragma once

#include "base/user/RunTimeError.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarsil {

/// A file name in two pieces: the folder without a trailing separator, and the name in it.
struct FilePath
{
    std::string folder;
    std::string name;
};

/// The stored form of a path: folder, a backslash, name.
std::string joinPath(std::string_view folder, std::string_view name);

/// The path (relative or not, with "\" or "/") made absolute and cut at its last separator.
FilePath resolvePath(std::string_view path);

/// The one way from a stored or typed path to the platform's: "\" and "/" both separate.
std::filesystem::path nativePath(std::string_view path);

/// A path as messages show it: with the platform's separators.
std::string shownPath(std::string_view path);

/// The same with the folders that a relative path is counted from.
std::string wholePath(std::string_view path);

/// The UTF-8 text of a platform path.
std::string pathText(const std::filesystem::path& path);

/// Whether the path names an existing file (a folder is none).
bool fileExists(std::string_view path);

/// A text that is the same for all paths to one file, by links of either kind too; nothing when the
/// path leads nowhere.
std::optional<std::string> fileIdentity(std::string_view path);

/// The run-time error of a failed file operation: `code` is the platform's errno.
RunTimeError fileError(int code, std::string source, std::string_view path);

} // namespace tarsil
