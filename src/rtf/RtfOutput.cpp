// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfOutput.h"

#include "base/text/CodePages.h"
#include "base/text/TextCodec.h"
#include "rtf/FontName.h"

#include <cstdint>

namespace tarsil {

void RtfOutput::word(std::string_view text)
{
    m_text += text;
    m_afterWord = true;
}

void RtfOutput::symbol(std::string_view text)
{
    m_text += text;
    m_afterWord = false;
}

void RtfOutput::byte(unsigned char value)
{
    constexpr std::string_view hexDigits = "0123456789abcdef";
    const char c = static_cast<char>(value);
    if (c == '\\' || c == '{' || c == '}') {
        m_text += '\\';
    } else if (value < 0x20 || value >= 0x7F) {
        symbol("\\'");
        m_text += hexDigits[value >> 4U];
        m_text += hexDigits[value & 0xFU];
        return;
    } else if (m_afterWord) {
        m_text += ' ';
    }
    m_text += c;
    m_afterWord = false;
}

void RtfOutput::unicode(char16_t unit)
{
    symbol("\\u" + std::to_string(static_cast<std::int16_t>(unit)) + "?");
}

bool isLeftOutOfRtf(char16_t unit)
{
    return (unit < 0x20 && unit != u'\n' && unit != u'\t') || (unit >= 0x7F && unit < 0xA0);
}

std::string rtfFontName(std::string_view family)
{
    RtfOutput output(RtfOutput::Start::AfterWord);
    for (const char16_t unit : utf16FromUtf8(family)) {
        if (!isPartOfFontName(unit))
            continue;
        if (const auto byte = windows1252Byte(unit))
            output.byte(*byte);
        else
            output.unicode(unit);
    }
    return output.text();
}

} // namespace tarsil
