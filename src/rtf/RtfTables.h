#pragma once

#include "base/numbers/ColorValue.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// Numbers of the character sets that are treated for themselves; all others stand for a code page.
namespace rtfcharset {
constexpr int ansi = 0;
constexpr int standard = 1; ///< the document's own
constexpr int symbol = 2; ///< pictures: no code page
} // namespace rtfcharset

/// Where the pictures of a symbol font stand in Unicode, in its private part: each at this place
/// plus its byte.
constexpr char16_t symbolStart = 0xF000;

/// The code page of a font's character set; the document's own for a set that names none.
int codePageOfCharset(int charset, int documentPage);

struct RtfFont
{
    std::string family; ///< UTF-8; empty when the table names none, or what is no font's name
    int charset = rtfcharset::standard;
};

/// The font table. An entry is begun by its number and counts from its end on; one that the source
/// cuts does not. Where a number comes twice the first entry stays.
class RtfFontTable
{
public:
    void begin(int number);
    void setCharset(int charset);
    void appendName(std::u16string_view part);
    void end();

    /// The character set of the entry that is being read.
    int openCharset() const { return m_open.charset; }

    /// The number of the font that is meant where none is named.
    void setDefault(int number) { m_default = number; }

    bool isEmpty() const { return m_fonts.empty(); }

    /// Null for a number that the table lacks.
    const RtfFont* find(int number) const;

    /// The font where none is named: the declared one, which the table may lack, or else that of
    /// the lowest number. Null when there is none.
    const RtfFont* defaultFont() const;

private:
    std::map<int, RtfFont> m_fonts;
    std::optional<int> m_default;
    std::optional<int> m_openNumber;
    RtfFont m_open;
    std::u16string m_openName;
};

/// The colour table. An entry without any part stands for the automatic colour.
class RtfColorTable
{
public:
    enum class Part { Red, Green, Blue };

    /// Sets a part of the entry that is being read; it is limited to 0 to 255.
    void set(Part part, int value);

    /// Ends the entry.
    void end();

    /// Nothing for the automatic colour and for an index outside the table. Black is automatic as
    /// the first entry: controls without an automatic entry begin their table so.
    std::optional<ColorValue> color(int index) const;

private:
    std::vector<std::optional<ColorValue>> m_colors;
    std::optional<ColorValue> m_open;
};

} // namespace tarsil
