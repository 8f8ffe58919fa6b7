// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace tarsil {
class AeMode;
class EVM;
} // namespace tarsil

namespace tarsil::batch {

/// A range of positions of modes in a file, counted from 1, both ends included.
struct ModeRange
{
    std::size_t first;
    std::size_t last;
};

/// A list such as "1,3-5", in the given order.
using ModeList = std::vector<ModeRange>;

/// Empty when the text is not a list.
std::optional<ModeList> parseModeList(std::string_view text);

/// The same, with UsageError for other text.
ModeList modeListOf(std::string_view text);

/// The modes of an evolution at these positions; all modes without a list. Failure, with `name` as
/// the file, for a position that the file does not have.
std::vector<AeMode*> selectModes(const EVM& evolution, const std::optional<ModeList>& list,
                                 std::string_view name);

} // namespace tarsil::batch
