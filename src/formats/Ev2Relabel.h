#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// A file of sections whose modes follow other rows: row p of mode m becomes the row p of mode
/// `sources[p][m]` (indices), under the number of mode m. All other texts of the rows and of the
/// header stay, and lines end with LF; `modifications` are added to the header's list, in the
/// file's encoding. Error 9 for a file whose modes and rows are not those of `sources`.
std::string relabelledEv2(std::string_view text,
                          const std::vector<std::vector<std::size_t>>& sources,
                          const std::vector<std::string>& modifications);

} // namespace tarsil
