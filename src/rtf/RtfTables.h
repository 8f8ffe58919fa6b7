// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/numbers/ColorValue.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// The character sets that are treated specially; every other one is a code page.
namespace rtfcharset {
constexpr int ansi = 0;
constexpr int standard = 1; ///< the document's code page
constexpr int symbol = 2; ///< symbols, without a code page
} // namespace rtfcharset

/// Symbols are kept in the private use area of Unicode: this value plus the byte of the symbol.
constexpr char16_t symbolStart = 0xF000;

/// The code page of a character set; `documentPage` for a set without one.
int codePageOfCharset(int charset, int documentPage);

struct RtfFont
{
    std::string family; ///< UTF-8; empty when the table has no valid font name
    int charset = rtfcharset::standard;
};

/// The font table. An entry is begun by its number and counts once it has ended; a truncated entry
/// does not. When a number occurs twice, the first entry wins.
class RtfFontTable
{
public:
    void begin(int number);
    void setCharset(int charset);
    void appendName(std::u16string_view part);
    void end();

    /// The character set of the entry being read.
    int openCharset() const { return m_open.charset; }

    /// Sets the number of the font for text that names none.
    void setDefault(int number) { m_default = number; }

    bool isEmpty() const { return m_fonts.empty(); }

    /// Null for a number that is not in the table.
    const RtfFont* find(int number) const;

    /// The font for text that names none: the declared default, or the one of the lowest number
    /// when the table lacks it. Null when the table is empty.
    const RtfFont* defaultFont() const;

private:
    std::map<int, RtfFont> m_fonts;
    std::optional<int> m_default;
    std::optional<int> m_openNumber;
    RtfFont m_open;
    std::u16string m_openName;
};

/// The colour table. An entry without any component means the automatic colour.
class RtfColorTable
{
public:
    enum class Part { Red, Green, Blue };

    /// Sets a component of the entry being read, clamped to 0..255.
    void set(Part part, int value);

    /// Ends the entry being read.
    void end();

    /// Empty for the automatic colour and for an index outside the table. Black as the first entry
    /// is automatic too: text controls without an automatic entry write it that way.
    std::optional<ColorValue> color(int index) const;

private:
    std::vector<std::optional<ColorValue>> m_colors;
    std::optional<ColorValue> m_open;
};

} // namespace tarsil
