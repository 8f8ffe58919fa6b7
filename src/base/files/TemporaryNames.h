// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace tarsil {

/// A name for a temporary file that this process has not used before.
std::string temporaryName();

/// Whether a file of this name can be a temporary file of this program.
bool isTemporaryName(std::string_view name);

/// The text of a path in the form of the system.
using SystemPath = std::filesystem::path::string_type;

/// The index of a path that is not in the list.
constexpr std::size_t noTemporary = static_cast<std::size_t>(-1);

/// Adds a path to the list of existing temporary files and returns its index. The list has more
/// entries than files are ever open at once; if it is full, the index is `noTemporary`.
std::size_t enterTemporary(const std::filesystem::path& path);

/// Removes the entry with this index; an index beyond the list has no effect.
void leaveTemporary(std::size_t entry);

/// Empties the list and calls `remove` for each path. Neither locks nor allocates, so it may be
/// called by a signal handler and on any thread, before the process ends.
void takeTemporaries(void (*remove)(const SystemPath& path));

} // namespace tarsil
