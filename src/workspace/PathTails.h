// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// The components of a path from the last to the first, each followed by "/", so that paths with a
/// common tail have a common start. The root is a component, and so is the empty one after a final
/// "/". `path` has "/" as separator.
std::string tailOf(std::string_view path);

/// A tail in which names that differ only in case are equal.
std::string withoutCaseOfNames(std::string_view tail);

/// The longest tail that a file shares with a path.
struct SharedTail
{
    std::size_t path = 0; ///< its index
    std::size_t names = 0; ///< number of shared components; 0: there is no such path
};

/// For each file, the path that shares the longest tail with it, if that tail distinguishes this
/// path from all others. Arguments are results of `tailOf`. Time is that of sorting them.
std::vector<SharedTail> sharedTails(const std::vector<std::string>& paths,
                                    const std::vector<std::string>& files);

} // namespace tarsil
