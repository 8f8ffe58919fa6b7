#pragma once

#include <cstdio>
#include <filesystem>

namespace tarsil {

/// Gives an open file, which will replace `target`, the rights of that one: owner and group where
/// the system lets the user give them away, the access list, and the nine bits of who may read,
/// write and run it, but none of the bits beyond (set-user-id and the like), which would lend the
/// rights of a new owner. Whatever cannot be kept is narrowed: nobody may do with the new file what
/// he could not do with the old one. Nothing changes when there is no target.
void copyRights(const std::filesystem::path& target, std::FILE* file);

} // namespace tarsil
