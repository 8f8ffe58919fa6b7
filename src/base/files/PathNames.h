// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/RunTimeError.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarsil {

/// A file name in two parts: the folder without a trailing separator, and the name in it.
struct FilePath
{
    std::string folder;
    std::string name;
};

/// The stored form of a path: folder, a backslash, name.
std::string joinPath(std::string_view folder, std::string_view name);

/// Makes a path absolute and splits it at its last separator. Both "\" and "/" separate. ".." after
/// a symbolic link means the parent of the link's target, but on Windows that of the link.
FilePath resolvePath(std::string_view path);

/// Converts a stored or typed path to a native one. Both "\" and "/" separate. On Windows an
/// absolute path that is nearly as long as the system's limit of 260 characters gets the prefix
/// "\\?\", which lifts the limit.
std::filesystem::path nativePath(std::string_view path);

/// A path for messages: with the platform's separators.
std::string shownPath(std::string_view path);

/// The absolute path for messages, with the platform's separators.
std::string wholePath(std::string_view path);

/// The UTF-8 text of a platform path, with "/" as separator and without the prefix of long paths.
std::string pathText(const std::filesystem::path& path);

/// The same text with the platform's separators.
std::string systemText(const std::filesystem::path& path);

/// Whether the path names an existing file other than a folder.
bool fileExists(std::string_view path);

/// A text that identifies a file: equal for all paths to it, also through symbolic and hard links.
/// Empty when there is no such file.
std::optional<std::string> fileIdentity(std::string_view path);

/// The path of an existing file or folder without symbolic links and "..", on Windows in the
/// spelling of the file system; empty when it cannot be found.
std::optional<std::filesystem::path> realPath(const std::filesystem::path& path);

/// Whether a file or folder is at the path, and not a link to one; on Windows a junction is a link.
bool isPlainEntry(const std::filesystem::path& path);

/// Whether names that differ only in case are names of one file, and a path that begins with two
/// separators begins with the name of a computer.
#ifdef _WIN32
constexpr bool hasWindowsPaths = true;
#else
constexpr bool hasWindowsPaths = false;
#endif

/// The error for a failed file operation; `code` is the errno value.
RunTimeError fileError(int code, std::string source, std::string_view path);

} // namespace tarsil
