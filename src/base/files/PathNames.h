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

/// Makes a path absolute and splits it at its last separator. Both "\" and "/" separate.
FilePath resolvePath(std::string_view path);

/// Converts a stored or typed path to a native one. Both "\" and "/" separate.
std::filesystem::path nativePath(std::string_view path);

/// A path for messages: with the platform's separators.
std::string shownPath(std::string_view path);

/// The absolute path for messages, with the platform's separators.
std::string wholePath(std::string_view path);

/// The UTF-8 text of a platform path.
std::string pathText(const std::filesystem::path& path);

/// Whether the path names an existing file other than a folder.
bool fileExists(std::string_view path);

/// A text that identifies a file: equal for all paths to it, also through symbolic and hard links.
/// Empty when there is no such file.
std::optional<std::string> fileIdentity(std::string_view path);

/// The error for a failed file operation; `code` is the errno value.
RunTimeError fileError(int code, std::string source, std::string_view path);

} // namespace tarsil
