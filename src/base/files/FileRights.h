// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdio>
#include <filesystem>

namespace tarsil {

/// Gives `file`, which will replace `target`, the rights of `target`: owner and group where the
/// system permits it, the access list, and the nine permission bits. Set-user-id and similar bits
/// are dropped, because they would apply to a new owner. Where owner or group cannot be kept,
/// permissions are reduced: nobody gets access to the new file that he did not have to the old one.
/// Does nothing when `target` does not exist. On Windows only the access list is copied: whoever
/// creates a file owns it.
void copyRights(const std::filesystem::path& target, std::FILE* file);

} // namespace tarsil
