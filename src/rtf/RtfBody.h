// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "rtf/RichText.h"
#include "rtf/RtfOutput.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// Builds the body of a Rich Text Format source, with the tables of its fonts and colours in the
/// order of first use. Writes only the changes from one format to the next.
class RtfBody
{
public:
    void append(const TextRun& run);

    /// Ends the text. An empty last line gets the format `last`.
    void end(const TextFormat& last);

    const std::string& text() const { return m_output.text(); }
    const std::vector<std::string>& families() const { return m_families.values; }
    const std::vector<ColorValue>& colors() const { return m_colors.values; }

    /// Whether the font is a symbol font, whose characters are written as bytes of that font.
    static bool isSymbolFamily(std::string_view family);

private:
    /// The values of a table in the order of first use, counted from 0.
    template <typename Value>
    struct Table
    {
        int numberOf(const Value& value)
        {
            const auto [entry, isNew] = numbers.try_emplace(value, static_cast<int>(values.size()));
            if (isNew)
                values.push_back(value);
            return entry->second;
        }

        std::vector<Value> values;
        std::map<Value, int> numbers;
    };

    /// A format in terms of control words.
    struct Words
    {
        int color = 0; ///< 0: automatic
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
