// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// Rearranges the rows of a file with sections: row p of mode m becomes row p of mode
/// `sources[p][m]` (indices), under the number of mode m. All other text is unchanged; lines end
/// with LF. `modifications` are added to the list in the header, in the encoding of the file. Error
/// 9 for a file whose modes and rows do not match `sources`.
std::string relabelledEv2(std::string_view text,
                          const std::vector<std::vector<std::size_t>>& sources,
                          const std::vector<std::string>& modifications);

} // namespace tarsil
