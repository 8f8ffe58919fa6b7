// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/text/CodePages.h"
#include "rtf/RichText.h"
#include "rtf/RtfFormat.h"
#include "rtf/RtfReader.h"
#include "rtf/RtfRuns.h"
#include "rtf/RtfTables.h"
#include "rtf/RtfTokens.h"
#include "rtf/RtfWords.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// Parses a source that begins with a brace. Open groups are kept in a list, not in nested calls,
/// so that deep nesting cannot overflow the stack.
class RtfParser
{
public:
    /// `source` and `fallback` must outlive the parser.
    RtfParser(std::string_view source, const TextFormat& fallback, RtfScope scope)
        : m_tokens(source), m_fallback(fallback), m_scope(scope)
    { }

    RichText read();

private:
    /// What the characters of a group are part of.
    enum class Destination { Text, Skipped, FontTable, FontEntry, ColorTable };

    /// The state of a group: it starts as a copy of the enclosing one and ends with the group.
    struct Group
    {
        Destination destination = Destination::Text;
        int fallbackCount = 1; ///< items to skip after a \u
        RtfFormat format;
    };

    void handle(const RtfToken& token);
    void beginGroup();
    void endGroup();
    void handleWord(const RtfToken& token);
    bool beginDestination(RtfWord word);
    void handleTextWord(const RtfToken& token, RtfMeaning meaning);
    void handleFontWord(RtfWord word, const RtfToken& token);
    void handleColorWord(RtfWord word, const RtfToken& token);
    void handleUnicode(int number);
    void handleBytes(std::string_view bytes);
    void handleSymbol(char symbol);

    void appendUnit(char16_t unit);
    void endFontEntry();

    /// Decodes the collected bytes. They are collected first because the bytes of one character may
    /// come in two tokens.
    void flush();
    std::u16string decoded(int charset);

    RichText result();

    bool isInFontTable() const
    {
        return m_group.destination == Destination::FontTable
            || m_group.destination == Destination::FontEntry;
    }
    bool isInnerGroup() const { return m_outerGroups.size() > 1; }

    RtfTokens m_tokens;
    const TextFormat& m_fallback;
    RtfScope m_scope;

    Group m_group;
    std::vector<Group> m_outerGroups;
    std::size_t m_groupsBeyondStack = 0;
    bool m_finished = false;
    bool m_atGroupStart = false;
    bool m_afterStar = false; ///< the next word may begin a group that a reader is free to ignore
    int m_itemsToSkip = 0;

    RtfFontTable m_fonts;
    RtfColorTable m_colors;
    int m_codePage = codepage::windows1252;
    CodePageDecoder m_decoder;
    std::string m_bytes;
    RtfRuns m_runs;
};

} // namespace tarsil
