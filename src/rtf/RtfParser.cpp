// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfParser.h"

#include "base/text/Utf16.h"

#include <algorithm>
#include <utility>

namespace tarsil {

namespace {

/// Groups nested more deeply share the format of the deepest one kept.
constexpr std::size_t mostGroups = 10000;

std::u16string symbols(std::string_view bytes)
{
    std::u16string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += byte < 0x20 ? byte : static_cast<char16_t>(symbolStart + byte);
    }
    return text;
}

} // namespace

RichText RtfParser::read()
{
    for (RtfToken token = m_tokens.next(); token.kind != RtfTokenKind::End && !m_finished;
         token = m_tokens.next())
        handle(token);
    flush();
    return result();
}

void RtfParser::handle(const RtfToken& token)
{
    const bool mayBeginDestination = m_atGroupStart || isInnerGroup();
    const bool star = token.kind == RtfTokenKind::Symbol && token.byte == '*';
    switch (token.kind) {
    case RtfTokenKind::GroupStart:
        beginGroup();
        break;
    case RtfTokenKind::GroupEnd:
        endGroup();
        break;
    case RtfTokenKind::Word:
        handleWord(token);
        break;
    case RtfTokenKind::Symbol:
        handleSymbol(token.byte);
        break;
    case RtfTokenKind::CodedByte:
        handleBytes({&token.byte, 1});
        break;
    case RtfTokenKind::Text:
        handleBytes(token.text);
        break;
    case RtfTokenKind::End:
        break;
    }
    m_afterStar = star && mayBeginDestination;
    m_atGroupStart = token.kind == RtfTokenKind::GroupStart || (star && m_atGroupStart);
}

void RtfParser::beginGroup()
{
    flush();
    m_itemsToSkip = 0;
    if (m_outerGroups.size() == mostGroups) {
        ++m_groupsBeyondStack;
        return;
    }
    m_outerGroups.push_back(m_group);
    if (m_group.destination == Destination::FontTable)
        m_group.destination = Destination::FontEntry;
    else if (m_group.destination == Destination::FontEntry)
        m_group.destination = Destination::Skipped;
}

void RtfParser::endGroup()
{
    flush();
    m_itemsToSkip = 0;
    if (isInFontTable())
        m_fonts.end();
    if (m_groupsBeyondStack > 0) {
        --m_groupsBeyondStack;
    } else if (isInnerGroup()) {
        m_group = m_outerGroups.back();
        m_outerGroups.pop_back();
    } else {
        m_finished = true;
    }
}

void RtfParser::handleWord(const RtfToken& token)
{
    flush();
    m_itemsToSkip = 0;
    const RtfMeaning meaning = rtfMeaning(token.text);
    if (meaning.word == RtfWord::Binary) {
        m_tokens.skip(static_cast<std::size_t>(std::max(token.number.value_or(0), 0)));
        return;
    }
    if (m_group.destination == Destination::Skipped || beginDestination(meaning.word))
        return;
    if (m_group.destination == Destination::Text)
        handleTextWord(token, meaning);
    else if (m_group.destination == Destination::ColorTable)
        handleColorWord(meaning.word, token);
    else
        handleFontWord(meaning.word, token);
}

/// In the middle of the outermost group such a word is an error: honouring it would lose the text.
bool RtfParser::beginDestination(RtfWord word)
{
    if (!m_atGroupStart && !isInnerGroup())
        return false;
    if (word == RtfWord::FontTable)
        m_group.destination = Destination::FontTable;
    else if (word == RtfWord::ColorTable)
        m_group.destination = Destination::ColorTable;
    else if (word == RtfWord::Skipped || (m_afterStar && word != RtfWord::Shown))
        m_group.destination = Destination::Skipped;
    else
        return false;
    return true;
}

void RtfParser::handleTextWord(const RtfToken& token, RtfMeaning meaning)
{
    if (applyFormatWord(m_group.format, meaning.word, token, m_fonts))
        return;
    switch (meaning.word) {
    case RtfWord::Character:
        appendUnit(static_cast<char16_t>(meaning.value));
        break;
    case RtfWord::Unicode:
        handleUnicode(token.number.value_or(0));
        break;
    case RtfWord::FallbackCount:
        m_group.fallbackCount = std::max(token.number.value_or(1), 0);
        break;
    case RtfWord::CodePage:
        m_codePage = token.number.value_or(m_codePage);
        break;
    case RtfWord::FixedCodePage:
        m_codePage = meaning.value;
        break;
    case RtfWord::DefaultFont:
        m_fonts.setDefault(token.number.value_or(0));
        break;
    default:
        break;
    }
}

void RtfParser::handleFontWord(RtfWord word, const RtfToken& token)
{
    if (word == RtfWord::Font && token.number)
        m_fonts.begin(*token.number);
    else if (word == RtfWord::FontCharset)
        m_fonts.setCharset(token.number.value_or(rtfcharset::ansi));
    else if (word == RtfWord::Unicode)
        handleUnicode(token.number.value_or(0));
}

void RtfParser::handleColorWord(RtfWord word, const RtfToken& token)
{
    const int value = token.number.value_or(0);
    if (word == RtfWord::Red)
        m_colors.set(RtfColorTable::Part::Red, value);
    else if (word == RtfWord::Green)
        m_colors.set(RtfColorTable::Part::Green, value);
    else if (word == RtfWord::Blue)
        m_colors.set(RtfColorTable::Part::Blue, value);
}

/// Most sources write the number as a signed 16-bit value.
void RtfParser::handleUnicode(int number)
{
    m_itemsToSkip = m_group.fallbackCount;
    const int character = number < 0 ? number + 0x10000 : number;
    if (character <= 0 || static_cast<char32_t>(character) > lastCharacter)
        return;
    std::u16string units;
    appendUtf16(units, static_cast<char32_t>(character));
    for (const char16_t unit : units)
        appendUnit(unit);
}

void RtfParser::handleBytes(std::string_view bytes)
{
    const std::size_t skipped = std::min(bytes.size(), static_cast<std::size_t>(m_itemsToSkip));
    m_itemsToSkip -= static_cast<int>(skipped);
    bytes.remove_prefix(skipped);
    if (m_group.destination == Destination::Text) {
        m_bytes += bytes;
    } else if (m_group.destination == Destination::ColorTable) {
        for (auto ends = std::count(bytes.begin(), bytes.end(), ';'); ends > 0; --ends)
            m_colors.end();
    } else if (isInFontTable()) {
        for (std::size_t end = bytes.find(';'); end != std::string_view::npos;
             end = bytes.find(';')) {
            m_bytes += bytes.substr(0, end);
            endFontEntry();
            bytes.remove_prefix(end + 1);
        }
        m_bytes += bytes;
    }
}

void RtfParser::handleSymbol(char symbol)
{
    if (symbol == '\\' || symbol == '{' || symbol == '}') {
        handleBytes({&symbol, 1});
        return;
    }
    if (m_itemsToSkip > 0) {
        --m_itemsToSkip;
        return;
    }
    if (m_group.destination != Destination::Text)
        return;
    flush();
    if (symbol == '~')
        appendUnit(u'\u00A0');
    else if (symbol == '_')
        appendUnit(u'\u2011');
    else if (symbol == '\t' || symbol == '\r' || symbol == '\n')
        appendUnit(static_cast<char16_t>(symbol));
}

void RtfParser::appendUnit(char16_t unit)
{
    if (m_group.destination == Destination::Text)
        m_runs.append(unit, m_group.format);
    else if (isInFontTable())
        m_fonts.appendName({&unit, 1});
}

void RtfParser::endFontEntry()
{
    flush();
    m_fonts.end();
}

void RtfParser::flush()
{
    if (m_bytes.empty())
        return;
    if (isInFontTable()) {
        // The name of a symbol font is not written in its own symbols.
        const int charset = m_fonts.openCharset();
        m_fonts.appendName(decoded(charset == rtfcharset::symbol ? rtfcharset::standard : charset));
    } else {
        const RtfFont* const font = fontOf(m_group.format, m_fonts);
        for (const char16_t unit : decoded(font == nullptr ? rtfcharset::standard : font->charset))
            m_runs.append(unit, m_group.format);
    }
    m_bytes.clear();
}

std::u16string RtfParser::decoded(int charset)
{
    if (charset == rtfcharset::symbol)
        return symbols(m_bytes);
    return m_decoder.decode(codePageOfCharset(charset, m_codePage), m_bytes);
}

RichText RtfParser::result()
{
    std::optional<RtfFormat> last;
    if (m_scope == RtfScope::Document)
        last = m_runs.dropFinalBreak();
    const auto resolve = [this](const RtfFormat& format) {
        return textFormatOf(format, m_fonts, m_colors, m_fallback);
    };
    return {m_runs.resolved(resolve), resolve(last.value_or(m_group.format))};
}

} // namespace tarsil
