// SPDX-License-Identifier: Apache-2.0
#include "base/text/CaseFolding.h"

#include "base/text/AsciiText.h"
#include "base/text/TextCodec.h"

#include <algorithm>
#include <array>

namespace tarsil {

namespace {

/// Consecutive capitals at the same distance from their small letters.
struct CapitalRange
{
    char16_t first;
    char16_t last;
    int distance;
};

/// Capitals that alternate with their small letters; `first` is a capital.
struct PairedRange
{
    char16_t first;
    char16_t last;
};

constexpr std::array capitals = {
    CapitalRange {u'A', u'Z', 32},     CapitalRange {0x00C0, 0x00D6, 32},
    CapitalRange {0x00D8, 0x00DE, 32}, CapitalRange {0x0178, 0x0178, -121},
    CapitalRange {0x0386, 0x0386, 38}, CapitalRange {0x0388, 0x038A, 37},
    CapitalRange {0x038C, 0x038C, 64}, CapitalRange {0x038E, 0x038F, 63},
    CapitalRange {0x0391, 0x03A1, 32}, CapitalRange {0x03A3, 0x03AB, 32},
    CapitalRange {0x0400, 0x040F, 80}, CapitalRange {0x0410, 0x042F, 32},
};

// Dotted capital I and dotless small i (U+0130, U+0131) are not a pair.
constexpr std::array pairs = {
    PairedRange {0x0100, 0x012F}, PairedRange {0x0132, 0x0137}, PairedRange {0x0139, 0x0148},
    PairedRange {0x014A, 0x0177}, PairedRange {0x0179, 0x017E}, PairedRange {0x0460, 0x0481},
    PairedRange {0x048A, 0x04BF}, PairedRange {0x04D0, 0x052F},
};

template <typename Ranges>
auto rangeOf(const Ranges& ranges, char16_t unit)
{
    return std::find_if(ranges.begin(), ranges.end(), [unit](const auto& range) {
        return unit >= range.first && unit <= range.last;
    });
}

char16_t smallLetter(char16_t unit)
{
    if (const auto* const range = rangeOf(capitals, unit); range != capitals.end())
        return static_cast<char16_t>(unit + range->distance);
    const auto* const range = rangeOf(pairs, unit);
    const bool isCapital = range != pairs.end() && (unit - range->first) % 2 == 0;
    return isCapital ? static_cast<char16_t>(unit + 1) : unit;
}

} // namespace

std::string withoutCase(std::string_view utf8)
{
    const bool isAscii = std::all_of(utf8.begin(), utf8.end(), [](char c) { return c >= 0; });
    if (isAscii || !isUtf8(utf8)) {
        // Bytes that are not text are compared as they are, except for ASCII case.
        return asciiLower(utf8);
    }
    std::u16string text = utf16FromUtf8(utf8);
    std::transform(text.begin(), text.end(), text.begin(), smallLetter);
    return utf8FromUtf16(text);
}

} // namespace tarsil
