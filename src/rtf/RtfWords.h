#pragma once

#include <string_view>

namespace tarsil {

/// What a control word of the Rich Text Format does here.
enum class RtfWord {
    Unknown, ///< nothing; its text is shown
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
    CodePage, ///< names the document's code page by its number
    FixedCodePage, ///< stands for the code page `value`
    Unicode,
    FallbackCount, ///< how many items a reader without Unicode shows in place of a character
    Binary,
    Character, ///< stands for the character `value`
    FontTable,
    ColorTable,
    Shown, ///< begins a group whose text is shown, even where it may be left out
    Skipped ///< begins a group that is no text of the document
};

struct RtfMeaning
{
    RtfWord word = RtfWord::Unknown;
    int value = 0;
};

/// What a control word means; `name` without its backslash and number.
RtfMeaning rtfMeaning(std::string_view name);

} // namespace tarsil
