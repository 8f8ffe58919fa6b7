// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfWriter.h"

#include "rtf/RtfReader.h"
#include "rtf/RtfStoredValue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace tarsil;

namespace {

RichText textOf(std::vector<TextRun> runs)
{
    RichText text;
    text.runs = std::move(runs);
    return text;
}

/// The output between \pard and the end of the last paragraph, without the initial Arial 10.
std::string bodyOf(const RichText& text)
{
    const std::string rtf = writeRtf(text);
    const std::size_t start = rtf.find("\\pard") + 5;
    const std::string body = rtf.substr(start, rtf.rfind("\\par") - start);
    constexpr std::string_view first = "\\f0\\fs20";
    return body.starts_with(first) ? body.substr(first.size()) : body;
}

std::string bodyOf(std::u16string characters, TextFormat format = {})
{
    return bodyOf(textOf({{std::move(characters), std::move(format)}}));
}

/// The size of a text in a workspace.
std::size_t storedSize(const RichText& text)
{
    return storedValueFromRtf(writeRtf(text)).size();
}

/// A line of `length` characters for each format.
RichText linesOf(std::size_t length, const std::vector<TextFormat>& formats)
{
    RichText text;
    for (const TextFormat& format : formats)
        text.runs.push_back({std::u16string(length, u'x') + u'\n', format});
    text.runs.back().text.pop_back();
    return text;
}

} // namespace

// The frame of the source.

TEST(RtfWriter, writesAnEmptyTextInItsFormat)
{
    EXPECT_EQ(writeRtf({}),
              "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 "
              "Arial;}}\r\n\\viewkind4\\uc1\\pard\\f0\\fs20\\par\r\n}\r\n");
    EXPECT_EQ(bodyOf(RichText {{}, {.points = 12, .bold = true}}), "\\b\\f0\\fs24");
}

TEST(RtfWriter, leavesOutWhatAReaderCanDoWithoutInTheShortForm)
{
    EXPECT_EQ(writeRtf({}, RtfForm::Short),
              "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fcharset0 Arial;}}\r\n"
              "\\pard\\f0\\fs20\\par\r\n}\r\n");
}

TEST(RtfWriter, writesOnlyFontsAndColoursInUseInTheOrderOfTheirFirstUse)
{
    const TextFormat blue {.family = "Verdana", .color = rgb(0, 0, 255)};
    const TextFormat red {.family = "Arial", .color = rgb(255, 0, 0)};
    const TextFormat plain {.family = "Verdana"};
    const RichText text =
        textOf({{u"a", blue}, {u"b", red}, {u"c", plain}, {u"d", blue}, {u"", {}}});
    EXPECT_EQ(writeRtf(text),
              "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Verdana;}"
              "{\\f1\\fnil\\fcharset0 Arial;}}\r\n"
              "{\\colortbl ;\\red0\\green0\\blue255;\\red255\\green0\\blue0;}\r\n"
              "\\viewkind4\\uc1\\pard\\cf1\\f0\\fs20 a\\cf2\\f1 b\\cf0\\f0 c\\cf1 d\\par\r\n}\r\n");
}

TEST(RtfWriter, endsEveryLineAsAParagraph)
{
    EXPECT_EQ(bodyOf(u"a\n\nb"), " a\\par\r\n\\par\r\nb");
    EXPECT_EQ(bodyOf(u"a\n"), " a\\par\r\n");
    EXPECT_EQ(bodyOf(u"a\u2028b\u2029c\r\nd"), " a\\line b\\par\r\nc\\par\r\nd");
}

TEST(RtfWriter, writesTheLastFormatWhereTheLastLineIsEmpty)
{
    RichText text = textOf({{u"a\n", {}}});
    text.last.points = 20;
    EXPECT_EQ(bodyOf(text), " a\\par\r\n\\fs40");
    text.runs[0].text = u"a\nb";
    EXPECT_EQ(bodyOf(text), " a\\par\r\nb");
}

// Formats.

TEST(RtfWriter, writesChangesOnlyAndInAFixedOrder)
{
    const TextFormat all {.family = "Verdana",
                          .points = 8.5,
                          .bold = true,
                          .italic = true,
                          .underline = true,
                          .strikeOut = true,
                          .color = rgb(1, 2, 3)};
    EXPECT_EQ(bodyOf(textOf({{u"a", {}}, {u"b", all}, {u"c", all}, {u"d", {}}})),
              " a\\cf1\\ul\\b\\i\\strike\\f1\\fs17 bc"
              "\\cf0\\ulnone\\b0\\i0\\strike0\\f0\\fs20 d");
}

TEST(RtfWriter, writesFontAndSizeOfTheFirstRun)
{
    EXPECT_EQ(bodyOf(u"a", {.points = 8, .bold = true}), "\\b\\f0\\fs16 a");
}

TEST(RtfWriter, roundsSizesHalfUpToHalfPoints)
{
    const std::array<std::pair<double, int>, 8> sizes = {{{8.25, 17},
                                                          {9.75, 20},
                                                          {11, 22},
                                                          {8.2, 16},
                                                          {0.1, 1},
                                                          {-5, 1},
                                                          {1e9, 3276},
                                                          {1638, 3276}}};
    for (const auto& [points, halfPoints] : sizes)
        EXPECT_EQ(bodyOf(u"a", {.family = "A", .points = points}),
                  halfPoints == 20 ? " a" : "\\f0\\fs" + std::to_string(halfPoints) + " a");
    EXPECT_EQ(bodyOf(u"a", {.points = std::numeric_limits<double>::quiet_NaN()}), "\\f0\\fs1 a");
}

TEST(RtfWriter, distinguishesBlackFromTheAutomaticColour)
{
    EXPECT_EQ(bodyOf(textOf({{u"a", {.color = 0}}, {u"b", {}}})), "\\cf1\\f0\\fs20 a\\cf0 b");
}

// Characters.

TEST(RtfWriter, endsAWordWithABlankOnlyBeforeAPlainCharacter)
{
    const TextFormat bold {.bold = true};
    EXPECT_EQ(bodyOf(textOf({{u" a", {}}, {u" b", bold}, {u"1", {}}, {u"-", bold}})),
              "  a\\b  b\\b0 1\\b -");
    EXPECT_EQ(bodyOf(u"\\"), "\\\\");
    EXPECT_EQ(bodyOf(u"{"), "\\{");
    EXPECT_EQ(bodyOf(u"\u00E9x"), "\\'e9x");
    EXPECT_EQ(bodyOf(u"\u03A9x"), "\\u937?x");
    EXPECT_EQ(bodyOf(u"\n  a"), "\\par\r\n  a");
    EXPECT_EQ(bodyOf(u"\t\ta"), "\\tab\\tab a");
}

TEST(RtfWriter, escapesWhatIsNoPlainText)
{
    EXPECT_EQ(bodyOf(u"{a}\\b\tc\u00A0d"), "\\{a\\}\\\\b\\tab c\\~d");
    EXPECT_EQ(bodyOf(u"\u00FF\u20AC\u2013\u0178"), "\\'ff\\'80\\'96\\'9f");
    EXPECT_EQ(bodyOf(u"\u0394\u65E5\uFFFD"), "\\u916?\\u26085?\\u-3?");
    EXPECT_EQ(bodyOf(u"\U0001D538"), "\\u-10187?\\u-8904?");
}

TEST(RtfWriter, leavesOutControlCharacters)
{
    EXPECT_EQ(bodyOf(std::u16string(u"a\0\x01\x1F\x7F\u0080\u0081\u009Fb", 9)), " ab");
    EXPECT_EQ(bodyOf(textOf({{u"a", {}}, {u"\x01", {.bold = true}}, {u"b", {}}})), " ab");
}

TEST(RtfWriter, writesNothingButPrintableCharacters)
{
    std::u16string all;
    for (char16_t unit = 0; unit < 0xFFFF; ++unit)
        all += unit;
    for (const char c : writeRtf(textOf({{all, {.family = "\xC3\xA9\xCE\xA9\x01"}}})))
        ASSERT_TRUE((c >= ' ' && c <= '~') || c == '\r' || c == '\n') << static_cast<int>(c);
}

TEST(RtfWriter, writesTheFontsNameWithoutWhatNoNameHolds)
{
    const std::string rtf = writeRtf(textOf({{u"a", {.family = "A;\x01{\\}\xC3\xA9\xCE\xA9"}}}));
    EXPECT_NE(rtf.find("{\\f0\\fnil\\fcharset0 A\\'e9\\u937?;}"), std::string::npos) << rtf;
    EXPECT_NE(writeRtf(textOf({{u"a", {.family = "\xC3\x89"}}})).find("\\fcharset0\\'c9;}"),
              std::string::npos);
}

TEST(RtfWriter, writesThePicturesOfASymbolFontAsItsBytes)
{
    for (const char* const family : {"Symbol", "Wingdings"}) {
        const RichText text = textOf({{u"\uF077\uF05C\uF0E9w \t", {.family = family}}});
        EXPECT_EQ(bodyOf(text), " w\\\\\\'e9\\u119?\\u32?\\tab");
        EXPECT_NE(writeRtf(text).find(std::string("{\\f0\\fnil\\fcharset2 ") + family),
                  std::string::npos);
    }
    EXPECT_EQ(bodyOf(u"\uF077"), "\\u-3977?");
}

TEST(RtfWriter, writesWhatIsReadAgainAsItWas)
{
    const TextFormat symbol {.family = "Symbol", .points = 12.5};
    const TextFormat all {.family = "Courier; New",
                          .points = 8.5,
                          .bold = true,
                          .italic = true,
                          .underline = true,
                          .strikeOut = true,
                          .color = 0};
    TextFormat named = all;
    named.family = "Courier New"; // ';' is not allowed in a name
    RichText text = textOf({{u" a \u03A9\u20AC{\U0001D538\n", {}}, {u"\uF077 w\n", symbol}});
    RichText expected = text;
    text.runs.push_back({u"\n\t\u00A0-1\n", all});
    expected.runs.push_back({u"\n\t\u00A0-1\n", named});
    text.last = expected.last = symbol;
    EXPECT_EQ(readRtf(writeRtf(text), {}), expected);
    EXPECT_EQ(readRtf(writeRtf(text, RtfForm::Short), {}), expected);
}

// Sizes: a typical three-line header must fit into a workspace, that is into the 1023 bytes of a
// value.

TEST(RtfWriter, staysSmall)
{
    EXPECT_EQ(storedSize({}), 101U);
    // A blank and the six letters.
    EXPECT_EQ(storedSize(textOf({{u"Header", {}}})), 108U);
}

TEST(RtfWriter, writesAColouredHeaderOfThreeLinesInLessThanFourHundredBytes)
{
    const RichText header = linesOf(40,
                                    {{.bold = true, .color = rgb(255, 0, 0)},
                                     {.italic = true, .color = rgb(0, 128, 0)},
                                     {.underline = true, .color = rgb(0, 0, 255)}});
    EXPECT_LT(storedSize(header), 400U);
}

TEST(RtfWriter, fitsALegendOfTwelveColouredLinesIntoAWorkspace)
{
    std::vector<TextFormat> formats;
    for (int i = 0; i < 12; ++i)
        formats.push_back({.color = rgb(20 * i, 100, 255 - 20 * i)});
    EXPECT_LE(storedSize(linesOf(20, formats)), mostStoredBytes);
}
