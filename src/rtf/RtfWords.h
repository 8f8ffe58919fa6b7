// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace tarsil {

/// The effect of a control word.
enum class RtfWord {
    Unknown, ///< none; the text that follows is shown
    Bold,
    Italic,
    Underline,
    NoUnderline,
    StrikeOut,
    Font,
    FontSize,
    Color,
    Plain,
    DefaultFont,
    FontCharset,
    Red,
    Green,
    Blue,
    CodePage, ///< sets the document's code page to its number
    FixedCodePage, ///< sets the document's code page to `value`
    Unicode,
    FallbackCount, ///< how many items a reader without Unicode shows instead of a character
    Binary,
    Character, ///< inserts the character `value`
    FontTable,
    ColorTable,
    Shown, ///< begins a group whose text is shown even if it is optional
    Skipped ///< begins a group that is not part of the text
};

struct RtfMeaning
{
    RtfWord word = RtfWord::Unknown;
    int value = 0;
};

/// The meaning of a control word, given without backslash and number.
RtfMeaning rtfMeaning(std::string_view name);

} // namespace tarsil
