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

/// Positions of modes in a file from `first` to `last`, counted from 1, both included.
struct ModeRange
{
    std::size_t first;
    std::size_t last;
};

/// A list such as "1,3-5": the order is kept.
using ModeList = std::vector<ModeRange>;

/// Nothing when the text is no such list.
std::optional<ModeList> parseModeList(std::string_view text);

/// The same; UsageError for other text.
ModeList modeListOf(std::string_view text);

/// The modes of the evolution at these positions, or all of them without a list. Failure, naming
/// the file as `name`, for a position that the file does not have.
std::vector<AeMode*> selectModes(const EVM& evolution, const std::optional<ModeList>& list,
                                 std::string_view name);

} // namespace tarsil::batch
