// SPDX-License-Identifier: Apache-2.0
#include "batch/ModeList.h"

#include "batch/BatchRun.h"
#include "batch/CommandLine.h"
#include "model/EVM.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace tarsil::batch {

namespace {

std::optional<std::size_t> parsePosition(std::string_view text)
{
    std::size_t position = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), position);
    if (error != std::errc() || end != text.data() + text.size() || position == 0)
        return std::nullopt;
    return position;
}

std::optional<ModeRange> parseRange(std::string_view text)
{
    const std::size_t dash = text.find('-');
    const auto first = parsePosition(text.substr(0, dash));
    const auto last = dash == std::string_view::npos ? first : parsePosition(text.substr(dash + 1));
    if (!first || !last || *last < *first)
        return std::nullopt;
    return ModeRange {*first, *last};
}

} // namespace

std::optional<ModeList> parseModeList(std::string_view text)
{
    ModeList list;
    for (const std::string_view piece : split(text, ',')) {
        const auto range = parseRange(piece);
        if (!range)
            return std::nullopt;
        list.push_back(*range);
    }
    return list;
}

ModeList modeListOf(std::string_view text)
{
    const auto list = parseModeList(text);
    if (!list)
        throw UsageError("\"" + std::string(text) + "\" is not a list of modes such as 1,3-5");
    return *list;
}

std::vector<AeMode*> selectModes(const EVM& evolution, const std::optional<ModeList>& list,
                                 std::string_view name)
{
    const std::size_t count = evolution.Modes.size();
    std::vector<AeMode*> modes;
    for (const ModeRange& range : list.value_or(ModeList {{1, count}})) {
        if (range.last > count)
            throw Failure(std::string(name) + ": there is no mode at position "
                          + std::to_string(std::max(range.first, count + 1)) + "; the file has "
                          + std::to_string(count));
        for (std::size_t position = range.first; position <= range.last; ++position)
            modes.push_back(evolution.Modes[position - 1].get());
    }
    return modes;
}

} // namespace tarsil::batch
