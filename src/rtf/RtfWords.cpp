// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfWords.h"

#include "base/text/CodePages.h"

#include <algorithm>
#include <array>

namespace tarsil {

namespace {

struct Entry
{
    std::string_view name;
    RtfMeaning meaning;
};

/// In alphabetical order. Words that begin a group are listed individually: similar words such as
/// \headery or \pnrnot are settings in the middle of a text.
constexpr std::array words = {
    Entry {"annotation", {RtfWord::Skipped}},
    Entry {"ansicpg", {RtfWord::CodePage}},
    Entry {"b", {RtfWord::Bold}},
    Entry {"bin", {RtfWord::Binary}},
    Entry {"bkmkend", {RtfWord::Skipped}},
    Entry {"bkmkstart", {RtfWord::Skipped}},
    Entry {"blue", {RtfWord::Blue}},
    Entry {"bullet", {RtfWord::Character, 0x2022}},
    Entry {"cell", {RtfWord::Character, u'\t'}},
    Entry {"cf", {RtfWord::Color}},
    Entry {"colortbl", {RtfWord::ColorTable}},
    Entry {"deff", {RtfWord::DefaultFont}},
    Entry {"emdash", {RtfWord::Character, 0x2014}},
    Entry {"emspace", {RtfWord::Character, 0x2003}},
    Entry {"endash", {RtfWord::Character, 0x2013}},
    Entry {"enspace", {RtfWord::Character, 0x2002}},
    Entry {"f", {RtfWord::Font}},
    Entry {"falt", {RtfWord::Skipped}},
    Entry {"fcharset", {RtfWord::FontCharset}},
    Entry {"fldinst", {RtfWord::Skipped}},
    Entry {"fldrslt", {RtfWord::Shown}},
    Entry {"fname", {RtfWord::Skipped}},
    Entry {"fonttbl", {RtfWord::FontTable}},
    Entry {"footer", {RtfWord::Skipped}},
    Entry {"footerf", {RtfWord::Skipped}},
    Entry {"footerl", {RtfWord::Skipped}},
    Entry {"footerr", {RtfWord::Skipped}},
    Entry {"footnote", {RtfWord::Skipped}},
    Entry {"fs", {RtfWord::FontSize}},
    Entry {"green", {RtfWord::Green}},
    Entry {"header", {RtfWord::Skipped}},
    Entry {"headerf", {RtfWord::Skipped}},
    Entry {"headerl", {RtfWord::Skipped}},
    Entry {"headerr", {RtfWord::Skipped}},
    Entry {"i", {RtfWord::Italic}},
    Entry {"info", {RtfWord::Skipped}},
    Entry {"ldblquote", {RtfWord::Character, 0x201C}},
    Entry {"line", {RtfWord::Character, u'\n'}},
    Entry {"listoverridetable", {RtfWord::Skipped}},
    Entry {"listtable", {RtfWord::Skipped}},
    Entry {"lquote", {RtfWord::Character, 0x2018}},
    Entry {"ltrmark", {RtfWord::Character, 0x200E}},
    Entry {"mac", {RtfWord::FixedCodePage, codepage::macRoman}},
    Entry {"nonshppict", {RtfWord::Skipped}},
    Entry {"objclass", {RtfWord::Skipped}},
    Entry {"objdata", {RtfWord::Skipped}},
    Entry {"page", {RtfWord::Character, u'\n'}},
    Entry {"panose", {RtfWord::Skipped}},
    Entry {"par", {RtfWord::Character, u'\n'}},
    Entry {"pc", {RtfWord::FixedCodePage, 437}},
    Entry {"pca", {RtfWord::FixedCodePage, 850}},
    Entry {"pict", {RtfWord::Skipped}},
    Entry {"plain", {RtfWord::Plain}},
    Entry {"pn", {RtfWord::Skipped}},
    Entry {"pnseclvl", {RtfWord::Skipped}},
    Entry {"pntext", {RtfWord::Skipped}},
    Entry {"pntxta", {RtfWord::Skipped}},
    Entry {"pntxtb", {RtfWord::Skipped}},
    Entry {"qmspace", {RtfWord::Character, 0x2005}},
    Entry {"rdblquote", {RtfWord::Character, 0x201D}},
    Entry {"red", {RtfWord::Red}},
    Entry {"row", {RtfWord::Character, u'\n'}},
    Entry {"rquote", {RtfWord::Character, 0x2019}},
    Entry {"rtlmark", {RtfWord::Character, 0x200F}},
    Entry {"rxe", {RtfWord::Skipped}},
    Entry {"sect", {RtfWord::Character, u'\n'}},
    Entry {"strike", {RtfWord::StrikeOut}},
    Entry {"striked", {RtfWord::StrikeOut}},
    Entry {"stylesheet", {RtfWord::Skipped}},
    Entry {"tab", {RtfWord::Character, u'\t'}},
    Entry {"tc", {RtfWord::Skipped}},
    Entry {"tcn", {RtfWord::Skipped}},
    Entry {"u", {RtfWord::Unicode}},
    Entry {"uc", {RtfWord::FallbackCount}},
    Entry {"ulc", {RtfWord::Unknown}},
    Entry {"ulnone", {RtfWord::NoUnderline}},
    Entry {"urtf", {RtfWord::FixedCodePage, codepage::utf8}},
    Entry {"xe", {RtfWord::Skipped}},
    Entry {"zwj", {RtfWord::Character, 0x200D}},
    Entry {"zwnj", {RtfWord::Character, 0x200C}},
};

constexpr bool isBefore(const Entry& entry, std::string_view name)
{
    return entry.name < name;
}

static_assert(std::is_sorted(words.begin(), words.end(),
                             [](const Entry& a, const Entry& b) { return a.name < b.name; }));

} // namespace

RtfMeaning rtfMeaning(std::string_view name)
{
    const auto* const found = std::lower_bound(words.begin(), words.end(), name, isBefore);
    if (found != words.end() && found->name == name)
        return found->meaning;
    // \uldb, \ulwave and all other kinds of underline are shown as a plain one.
    return name.starts_with("ul") ? RtfMeaning {RtfWord::Underline} : RtfMeaning {};
}

} // namespace tarsil
