// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace tarsil {

/// Replaces malformed bytes and unpaired surrogates.
constexpr char16_t replacementCharacter = 0xFFFD;

/// The largest code point.
constexpr char32_t lastCharacter = 0x10FFFF;

/// The first half of a code point beyond U+FFFF.
constexpr bool isHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

/// The second half of a code point beyond U+FFFF.
constexpr bool isLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// The code point of a surrogate pair.
constexpr char32_t joinSurrogates(char16_t high, char16_t low)
{
    return 0x10000U + ((high & 0x3FFU) << 10U) + (low & 0x3FFU);
}

/// Appends a code point as one unit or two.
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
