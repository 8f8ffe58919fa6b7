#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// The names of a path from the last to the first, each closed by "/": paths that end alike begin
/// alike so. The root is a name, too, and so is the empty one after a "/" at the end. `path` has
/// "/" between its names.
std::string tailOf(std::string_view path);

/// A tail by which names that differ in case alone are the same.
std::string withoutCaseOfNames(std::string_view tail);

/// What a file shares with the one path that it shares most with.
struct SharedTail
{
    std::size_t path = 0; ///< its number
    std::size_t names = 0; ///< how many last names are the same; 0: there is no such path
};

/// For each file the path that shares most last names with it, if these names tell this path from
/// all others. All are tails of `tailOf`. Takes the time of sorting them.
std::vector<SharedTail> sharedTails(const std::vector<std::string>& paths,
                                    const std::vector<std::string>& files);

} // namespace tarsil
