#pragma once

#include "rtf/RichText.h"
#include "rtf/RtfOutput.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// The characters of a text as Rich Text Format, and the fonts and colours that they turned out to
/// need, in the order of their first use. Of a format only what changes is written.
class RtfBody
{
public:
    void append(const TextRun& run);

    /// Ends the text: an empty last line takes the format.
    void end(const TextFormat& last);

    const std::string& text() const { return m_output.text(); }
    const std::vector<std::string>& families() const { return m_families.values; }
    const std::vector<ColorValue>& colors() const { return m_colors.values; }

    /// Whether a font's characters are pictures, which are written as the bytes of the font.
    static bool isSymbolFamily(std::string_view family);

private:
    /// The values of a table in the order of their first use, counted from 0.
    template <typename Value>
    struct Table
    {
        int numberOf(const Value& value)
        {
            const auto [place, isNew] = numbers.try_emplace(value, static_cast<int>(values.size()));
            if (isNew)
                values.push_back(value);
            return place->second;
        }

        std::vector<Value> values;
        std::map<Value, int> numbers;
    };

    /// A format in the words of the source.
    struct Words
    {
        int color = 0; ///< 0 is the automatic colour
        bool underline = false;
        bool bold = false;
        bool italic = false;
        bool strikeOut = false;
        int font = -1;
        int halfPoints = -1;
    };

    void change(const TextFormat& format);
    void appendUnit(char16_t unit, bool isSymbol);
    void changeSwitch(bool& current, bool wanted, std::string_view on, std::string_view off);
    void changeNumber(int& current, int wanted, const char* word);

    RtfOutput m_output {RtfOutput::Start::AfterWord};
    Table<std::string> m_families;
    Table<ColorValue> m_colors;
    Words m_current;
    bool m_atLineStart = true;
};

} // namespace tarsil
