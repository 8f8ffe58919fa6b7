// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Writes a Rich Text Format source piece by piece. A control word is followed by a blank only
/// where the next character would be read as part of it.
class RtfOutput
{
public:
    enum class Start { AfterText, AfterWord };

    explicit RtfOutput(Start start) : m_afterWord(start == Start::AfterWord) { }

    /// Writes a control word, given with backslash and number.
    void word(std::string_view text);

    /// Writes what needs no delimiter: a symbol, or a line end with its CR LF.
    void symbol(std::string_view text);

    /// Writes a byte: as plain ASCII where possible, otherwise as \'hh.
    void byte(unsigned char value);

    /// Writes a UTF-16 unit as \u, with the character that readers without Unicode show.
    void unicode(char16_t unit);

    const std::string& text() const { return m_text; }

private:
    std::string m_text;
    bool m_afterWord;
};

/// Whether a character is left out: a control character other than line break and tab.
bool isLeftOutOfRtf(char16_t unit);

/// The name of a font for the font table, ready to follow a control word.
std::string rtfFontName(std::string_view family);

} // namespace tarsil
