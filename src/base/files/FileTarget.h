// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <filesystem>
#include <string_view>

namespace tarsil {

/// The file to replace when `path` is written: `path` itself, or the file that it leads to when it
/// is a symbolic link. `path` is in stored or native form. The file need not exist; on Windows the
/// file that a link leads to must exist (error 53). Error 75: links that lead back to themselves.
std::filesystem::path targetOf(std::string_view path);

/// Raises error 70 with `path` when this user may not write the existing file `target`; on Windows
/// also when another program has opened it in a way that prevents replacing it.
void requireWritable(const std::filesystem::path& target, std::string_view path);

} // namespace tarsil
