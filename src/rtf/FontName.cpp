// SPDX-License-Identifier: Apache-2.0
#include "rtf/FontName.h"

#include "base/text/Utf16.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarsil {

namespace {

bool isPlainLetterOrDigit(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z')
        || (unit >= u'0' && unit <= u'9');
}

/// Ranges beyond ASCII that do not occur in font names.
constexpr std::array<std::pair<char16_t, char16_t>, 6> notInNames = {{
    {0x0080, 0x009F}, // controls
    {0x200B, 0x200F}, // zero width, and marks of direction
    {0x2028, 0x202E}, // line separators, and directions
    {0x2060, 0x206F}, // invisible characters
    {0xE000, 0xF8FF}, // private use
    {0xFDD0, 0xFDEF}, // not characters
}};

bool isInNames(char16_t unit)
{
    constexpr char16_t byteOrderMark = 0xFEFF;
    constexpr char16_t firstSpecial = 0xFFF0;
    const auto holds = [unit](const auto& range) {
        return unit >= range.first && unit <= range.second;
    };
    return unit != byteOrderMark && unit < firstSpecial
        && std::none_of(notInNames.begin(), notInNames.end(), holds);
}

} // namespace

bool isPartOfFontName(char16_t unit)
{
    constexpr std::u16string_view signs = u" -_.,'&()+@#/!";
    constexpr char16_t afterAscii = 0x80;
    if (unit < afterAscii)
        return isPlainLetterOrDigit(unit) || signs.find(unit) != std::u16string_view::npos;
    return isInNames(unit);
}

bool isFontName(std::u16string_view name)
{
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool isPair =
            isHighSurrogate(name[i]) && i + 1 < name.size() && isLowSurrogate(name[i + 1]);
        const bool isHalf = isHighSurrogate(name[i]) || isLowSurrogate(name[i]);
        if (isPair)
            ++i;
        else if (isHalf || !isPartOfFontName(name[i]))
            return false;
    }
    return !name.empty();
}

} // namespace tarsil
