// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfReader.h"

#include "rtf/RichTextLook.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace tarsil;
using test::charactersOf;

namespace {

std::u16string shownUtf16(std::string_view source)
{
    return utf16FromUtf8(charactersOf(readRtf(source, {})));
}

/// The text of a byte in a font with this character set.
std::u16string inCharset(int charset, std::string_view text)
{
    return shownUtf16(R"({\rtf1{\fonttbl{\f0\fcharset)" + std::to_string(charset) + R"( A;}}\f0 )"
                      + std::string(text) + "}");
}

} // namespace

// Bytes.

TEST(RtfReaderCharacters, decodesBytesByTheCharacterSetOfTheFont)
{
    // From the published mapping tables of the code pages.
    EXPECT_EQ(inCharset(0, R"(\'e9\'80\'96)"), u"\u00E9\u20AC\u2013");
    EXPECT_EQ(inCharset(77, R"(\'8e)"), u"\u00E9");
    EXPECT_EQ(inCharset(128, R"(\'93\'fa)"), u"\u65E5");
    EXPECT_EQ(inCharset(129, R"(\'b0\'a1)"), u"\uAC00");
    EXPECT_EQ(inCharset(130, R"(\'88\'61)"), u"\uAC00");
    EXPECT_EQ(inCharset(134, R"(\'d6\'d0)"), u"\u4E2D");
    EXPECT_EQ(inCharset(136, R"(\'a4\'a4)"), u"\u4E2D");
    EXPECT_EQ(inCharset(161, R"(\'e1)"), u"\u03B1");
    EXPECT_EQ(inCharset(162, R"(\'fd)"), u"\u0131");
    EXPECT_EQ(inCharset(163, R"(\'fe)"), u"\u20AB");
    EXPECT_EQ(inCharset(177, R"(\'e0)"), u"\u05D0");
    EXPECT_EQ(inCharset(178, R"(\'c8)"), u"\u0628");
    EXPECT_EQ(inCharset(186, R"(\'e0)"), u"\u0105");
    EXPECT_EQ(inCharset(204, R"(\'e0)"), u"\u0430");
    EXPECT_EQ(inCharset(222, R"(\'a1)"), u"\u0E01");
    EXPECT_EQ(inCharset(238, R"(\'e8)"), u"\u010D");
    EXPECT_EQ(inCharset(254, R"(\'e1)"), u"\u00DF");
    EXPECT_EQ(inCharset(255, R"(\'b5)"), u"\u00C1");
}

TEST(RtfReaderCharacters, keepsTheBytesOfASymbolFontInThePrivateUseArea)
{
    EXPECT_EQ(inCharset(2, R"(w \'e9\tab\u32?)"), u"\uF077\uF020\uF0E9\t ");
}

TEST(RtfReaderCharacters, usesTheDocumentsCodePageForAFontThatNamesNone)
{
    EXPECT_EQ(shownUtf16(R"({\rtf1\ansicpg1251{\fonttbl{\f0 A;}}\f0\'cf\'f0})"), u"\u041F\u0440");
    EXPECT_EQ(shownUtf16(R"({\rtf1\ansicpg1251{\fonttbl{\f0\fcharset1 A;}}\f0\'cf})"), u"\u041F");
    EXPECT_EQ(shownUtf16(R"({\rtf1\ansicpg1251{\fonttbl{\f0\fcharset0 A;}}\f0\'cf})"), u"\u00CF");
    EXPECT_EQ(shownUtf16(R"({\rtf1\ansicpg1251\'cf})"), u"\u041F");
    EXPECT_EQ(shownUtf16(R"({\rtf1\ansicpg1\'cf})"), u"\u00CF");
    EXPECT_EQ(shownUtf16(R"({\rtf1\mac\'8e\'a5})"), u"\u00E9\u2022");
    EXPECT_EQ(shownUtf16(R"({\rtf1\pc\'82\'e1})"), u"\u00E9\u00DF");
    EXPECT_EQ(shownUtf16(R"({\rtf1\pca\'b5})"), u"\u00C1");
    EXPECT_EQ(shownUtf16("{\\urtf1\\ansi \xCE\xA9\\'c3\\'a9}"), u"\u03A9\u00E9");
}

TEST(RtfReaderCharacters, usesThePageOfTheDefaultFont)
{
    EXPECT_EQ(shownUtf16(R"({\rtf1\deff1{\fonttbl{\f0 A;}{\f1\fcharset238 B;}}\'e8\plain\'e8})"),
              u"\u010D\u010D");
}

TEST(RtfReaderCharacters, readsRawBytesLikeWrittenOnes)
{
    EXPECT_EQ(shownUtf16("{\\rtf1 caf\xE9 \x96}"), u"caf\u00E9 \u2013");
}

TEST(RtfReaderCharacters, joinsTheTwoBytesOfACharacter)
{
    // Shift JIS 83 41, 83 5C and 83 7B are U+30A2, U+30BD and U+30DC; their second bytes are ASCII.
    EXPECT_EQ(inCharset(128, R"(\'83A)"), u"\u30A2");
    EXPECT_EQ(inCharset(128, R"(\'83\'5c\'83\\)"), u"\u30BD\u30BD");
    EXPECT_EQ(inCharset(128, R"(\'83\{)"), u"\u30DC");
    EXPECT_EQ(inCharset(128, "\\'83\r\nA"), u"\u30A2");
}

TEST(RtfReaderCharacters, joinsNoBytesAcrossAWordOrABrace)
{
    EXPECT_EQ(inCharset(128, R"(\'83\b A)"), u"\uFFFDA");
    EXPECT_EQ(inCharset(128, R"(\'83{A})"), u"\uFFFDA");
}

TEST(RtfReaderCharacters, changesThePageWithTheFont)
{
    EXPECT_EQ(shownUtf16(R"({\rtf1{\fonttbl{\f0\fcharset0 A;}{\f1\fcharset204 B;}})"
                         R"(\f0\'e0{\f1\'e0}\'e0\f1\'e0})"),
              u"\u00E0\u0430\u00E0\u0430");
}

TEST(RtfReaderCharacters, keepsControlCharactersButNoNul)
{
    EXPECT_EQ(shownUtf16("{\\rtf1 \x01\x1F\x0B"
                         "A\\'00\\'07}"),
              u"\x01\x1F\x0B"
              u"A\x07");
}

// Unicode.

TEST(RtfReaderCharacters, readsNumberedCharacters)
{
    EXPECT_EQ(shownUtf16(R"({\rtf1 \u8211?\u937?\u-3913?x\u9731 ?.})"),
              u"\u2013\u03A9\uF0B7x\u2603.");
    EXPECT_EQ(shownUtf16(R"({\rtf1 \u0?\u32?\u99999999?\u-70000?\u?x})"), u" x");
    EXPECT_EQ(shownUtf16(R"({\rtf1 \u120120?x})"), u"\U0001D538x");
}

TEST(RtfReaderCharacters, joinsTheHalvesOfACharacter)
{
    EXPECT_EQ(shownUtf16(R"({\rtf1 \u-10187?\u-8904?\u55349?\u56632?})"), u"\U0001D538\U0001D538");
    const RichText text = readRtf(R"({\rtf1\u-10187?\b\u-8904?})", {});
    ASSERT_EQ(text.runs.size(), 1U);
    EXPECT_EQ(text.runs.front().text, u"\U0001D538");
}

TEST(RtfReaderCharacters, replacesHalfACharacter)
{
    EXPECT_EQ(readRtf(R"({\rtf1\u-10187?x\u-8904?\u-10187?})", {}).runs.at(0).text,
              u"\uFFFDx\uFFFD\uFFFD");
}

TEST(RtfReaderCharacters, skipsAsManyItemsAsStandForACharacter)
{
    EXPECT_EQ(shownUtf16(R"({\rtf1 M\u228\'e4t\uc2\u26085\'93\'fax\uc0\u8211-})"),
              u"M\u00E4t\u65E5x\u2013-");
    EXPECT_EQ(shownUtf16(R"({\rtf1 \uc3\u8211\{a\~b})"), u"\u2013b");
    EXPECT_EQ(shownUtf16(R"({\rtf1 {\uc2\u8211 ab}\u8211 ab})"), u"\u2013\u2013b");
}

TEST(RtfReaderCharacters, skipsNoBraceAndNoWord)
{
    EXPECT_EQ(shownUtf16(R"({\rtf1{\u8211}x{\uc3\u8211 a}b})"), u"\u2013x\u2013b");
    EXPECT_EQ(shownUtf16(R"({\rtf1 a\u8211\par b\u8211\b c})"), u"a\u2013\nb\u2013c");
}

TEST(RtfReaderCharacters, endsALineForEveryCharacterThatEndsOne)
{
    EXPECT_EQ(shownUtf16(R"({\rtf1 a\u10?b\u13?c\u8232?d\u8233?e\'0af})"), u"a\nb\nc\nd\ne\nf");
}

// Words and symbols.

TEST(RtfReaderCharacters, knowsTheWordsThatBreakALine)
{
    EXPECT_EQ(shownUtf16("{\\rtf1 a\\par b\\line c\\page d\\sect e\\row f\\\r\ng\\\nh}"),
              u"a\nb\nc\nd\ne\nf\ng\nh");
}

TEST(RtfReaderCharacters, knowsTheWordsForTabs)
{
    EXPECT_EQ(shownUtf16("{\\rtf1 a\\tab b\\cell c\\\td}"), u"a\tb\tc\td");
}

TEST(RtfReaderCharacters, knowsTheWordsThatStandForCharacters)
{
    EXPECT_EQ(
        shownUtf16(R"({\rtf1\emdash\endash\bullet\lquote\rquote\ldblquote\rdblquote)"
                   R"(\emspace\enspace\qmspace\zwj\zwnj\ltrmark\rtlmark})"),
        u"\u2014\u2013\u2022\u2018\u2019\u201C\u201D\u2003\u2002\u2005\u200D\u200C\u200E\u200F");
}

TEST(RtfReaderCharacters, knowsTheSymbols)
{
    EXPECT_EQ(shownUtf16(R"({\rtf1 a\~b\_c\-d\|e\:f\\\{\}})"), u"a\u00A0b\u2011cdef\\{}");
}
