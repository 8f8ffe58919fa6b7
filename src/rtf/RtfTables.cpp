// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfTables.h"

#include "base/text/CodePages.h"
#include "base/text/TextCodec.h"
#include "base/text/Utf16.h"
#include "rtf/FontName.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace tarsil {

namespace {

/// Each run has a copy of its font name, so a long name would be stored many times.
constexpr std::size_t longestName = 64;

struct CharsetPage
{
    int charset;
    int codePage;
};

constexpr std::array charsetPages = {
    CharsetPage {rtfcharset::ansi, codepage::windows1252},
    CharsetPage {77, codepage::macRoman},
    CharsetPage {128, 932}, // Japanese
    CharsetPage {129, 949}, // Korean
    CharsetPage {130, 1361}, // Korean, by parts of syllables
    CharsetPage {134, 936}, // simplified Chinese
    CharsetPage {136, 950}, // traditional Chinese
    CharsetPage {161, 1253}, // Greek
    CharsetPage {162, 1254}, // Turkish
    CharsetPage {163, 1258}, // Vietnamese
    CharsetPage {177, 1255}, // Hebrew
    CharsetPage {178, 1256}, // Arabic
    CharsetPage {186, 1257}, // Baltic
    CharsetPage {204, 1251}, // Russian
    CharsetPage {222, 874}, // Thai
    CharsetPage {238, 1250}, // Central European
    CharsetPage {254, 437}, // the original PC
    CharsetPage {255, 850}, // PC, Western European
};

/// Whether a character is not part of a font name in the table.
bool isOfTable(char16_t unit)
{
    return unit < u' ' || unit == 0x7F || (unit >= 0x80 && unit < 0xA0) || unit == u';';
}

/// Removes surrounding blanks and limits the length. Empty when the rest is not a font name.
std::string cleanName(std::u16string name)
{
    std::erase_if(name, isOfTable);
    name.erase(0, name.find_first_not_of(u' '));
    if (name.size() > longestName)
        name.resize(isHighSurrogate(name[longestName - 1]) ? longestName - 1 : longestName);
    name.erase(name.find_last_not_of(u' ') + 1);
    return isFontName(name) ? utf8FromUtf16(name) : std::string();
}

} // namespace

int codePageOfCharset(int charset, int documentPage)
{
    const auto* const found =
        std::find_if(charsetPages.begin(), charsetPages.end(),
                     [charset](const CharsetPage& entry) { return entry.charset == charset; });
    return found == charsetPages.end() ? documentPage : found->codePage;
}

void RtfFontTable::begin(int number)
{
    m_openNumber = number;
    m_open = {};
    m_openName.clear();
}

void RtfFontTable::setCharset(int charset)
{
    m_open.charset = charset;
}

void RtfFontTable::appendName(std::u16string_view part)
{
    m_openName += part;
}

void RtfFontTable::end()
{
    if (m_openNumber) {
        m_open.family = cleanName(std::move(m_openName));
        m_fonts.try_emplace(*m_openNumber, std::move(m_open));
    }
    m_openNumber.reset();
    m_open = {};
    m_openName.clear();
}

const RtfFont* RtfFontTable::find(int number) const
{
    const auto found = m_fonts.find(number);
    return found == m_fonts.end() ? nullptr : &found->second;
}

const RtfFont* RtfFontTable::defaultFont() const
{
    if (m_default)
        return find(*m_default);
    return m_fonts.empty() ? nullptr : &m_fonts.begin()->second;
}

void RtfColorTable::set(Part part, int value)
{
    const int shift = part == Part::Red ? 0 : part == Part::Green ? 8 : 16;
    const ColorValue others = m_open.value_or(0) & ~(0xFF << shift);
    m_open = others | (std::clamp(value, 0, 255) << shift);
}

void RtfColorTable::end()
{
    m_colors.push_back(m_open);
    m_open.reset();
}

std::optional<ColorValue> RtfColorTable::color(int index) const
{
    if (index < 0 || static_cast<std::size_t>(index) >= m_colors.size())
        return std::nullopt;
    const std::optional<ColorValue> color = m_colors[static_cast<std::size_t>(index)];
    return index == 0 && color == ColorValue {0} ? std::nullopt : color;
}

} // namespace tarsil
