#pragma once

#include <string>

namespace tarsil {

/// What stands in the place of bytes or units that are no character.
constexpr char16_t replacementCharacter = 0xFFFD;

/// The largest character there is.
constexpr char32_t lastCharacter = 0x10FFFF;

/// The first half of a character beyond U+FFFF.
constexpr bool isHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

/// The second half of a character beyond U+FFFF.
constexpr bool isLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// The character of its two halves.
constexpr char32_t joinSurrogates(char16_t high, char16_t low)
{
    return 0x10000U + ((high & 0x3FFU) << 10U) + (low & 0x3FFU);
}

/// Appends a character up to `lastCharacter`: one unit or two.
inline void appendUtf16(std::u16string& text, char32_t character)
{
    if (character < 0x10000) {
        text += static_cast<char16_t>(character);
        return;
    }
    text += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10U));
    text += static_cast<char16_t>(0xDC00 + (character & 0x3FFU));
}

} // namespace tarsil
