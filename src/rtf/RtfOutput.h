#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Writes the pieces of a Rich Text Format source one after the other. A control word needs a blank
/// to end it only where a plain character follows.
class RtfOutput
{
public:
    enum class Start { AfterText, AfterWord };

    explicit RtfOutput(Start start) : m_afterWord(start == Start::AfterWord) { }

    /// A control word with its backslash and number.
    void word(std::string_view text);

    /// What ends by itself: a symbol, or the end of a line with its CR LF.
    void symbol(std::string_view text);

    /// A character by its byte, which is plain ASCII where it can be.
    void byte(unsigned char value);

    /// A character by its Unicode number, with what a reader without Unicode shows.
    void unicode(char16_t unit);

    const std::string& text() const { return m_text; }

private:
    std::string m_text;
    bool m_afterWord;
};

/// A character that no text is written with: the controls, but for line breaks and tabs.
bool isLeftOutOfRtf(char16_t unit);

/// A font's name for the font table, to stand after a control word.
std::string rtfFontName(std::string_view family);

} // namespace tarsil
