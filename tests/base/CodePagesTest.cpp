// SPDX-License-Identifier: Apache-2.0
#include "base/text/CodePages.h"

#include "base/files/Sha256.h"
#include "base/text/TextCodec.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Expected characters are those of the mapping tables of the Unicode Consortium.

namespace tarsil {

namespace {

std::u16string decodeCodePage(int codePage, std::string_view bytes)
{
    return CodePageDecoder().decode(codePage, bytes);
}

TEST(CodePages, readWindows1252WithItsUnusedBytesAsControls)
{
    EXPECT_EQ(decodeCodePage(1252, "A\x80\x96\x9F\xA0\xE9\xFF"),
              u"A\u20AC\u2013\u0178\u00A0\u00E9\u00FF");
    EXPECT_EQ(decodeCodePage(1252, "\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
}

TEST(CodePages, findTheByteOfEveryWindows1252Character)
{
    for (unsigned byte = 0; byte < 256; ++byte) {
        const auto value = static_cast<unsigned char>(byte);
        EXPECT_EQ(windows1252Byte(windows1252Character(value)), value);
    }
    EXPECT_EQ(windows1252Byte(0x0080), std::nullopt);
    EXPECT_EQ(windows1252Byte(0x03A9), std::nullopt);
    EXPECT_EQ(windows1252Byte(0x1D538), std::nullopt);
}

TEST(CodePages, readThePagesOfTheSystem)
{
    const std::vector<std::pair<int, std::u16string>> pages = {
        {437, u"\u03B1"},  {850, u"\u00D3"},  {874, u"\u0E40"},  {1250, u"\u0155"},
        {1251, u"\u0430"}, {1253, u"\u03B0"}, {1254, u"\u00E0"}, {1255, u"\u05D0"},
        {1256, u"\u00E0"}, {1257, u"\u0105"}, {1258, u"\u00E0"}, {codepage::macRoman, u"\u2021"}};
    for (const auto& [page, character] : pages)
        EXPECT_EQ(decodeCodePage(page, "\xE0"), character) << page;
}

/// The digest is that of the tables of the GNU C library. Left out are 858, which not every system
/// has, and pages in which a few characters differ between systems.
TEST(CodePages, giveTheSameCharactersOnEverySystem)
{
    CodePageDecoder decoder;
    Sha256 digest;
    for (const int page : {437, 737, 775, 850, 852, 855,  857,  860,  861,  862,  863,  865, 866,
                           869, 874, 932, 936, 949, 1250, 1251, 1253, 1254, 1256, 1257, 1258}) {
        for (int byte = 0; byte < 256; ++byte)
            digest.add(
                utf8FromUtf16(decoder.decode(page, std::string(1, static_cast<char>(byte)))));
    }
    EXPECT_EQ(digest.finish(), "02b758bb0ef78b0a9e6aebaf9a761884a7aaaf819cddaf918d8fdc82d9d75781");
}

TEST(CodePages, readPagesOfTwoBytesAndUtf8)
{
    EXPECT_EQ(decodeCodePage(932,
                             "\x93\xFA"
                             "A\x83\x5C\xB1"),
              u"\u65E5A\u30BD\uFF71");
    EXPECT_EQ(decodeCodePage(936, "\xD6\xD0"), u"\u4E2D");
    EXPECT_EQ(decodeCodePage(949, "\xB0\xA1"), u"\uAC00");
    EXPECT_EQ(decodeCodePage(950, "\xA4\xA4"), u"\u4E2D");
    EXPECT_EQ(decodeCodePage(1361, "\x88\x61"), u"\uAC00");
    EXPECT_EQ(decodeCodePage(codepage::utf8, "\xC3\xA9\xF0\x9D\x94\xB8"), u"\u00E9\U0001D538");
}

TEST(CodePages, replaceWhatHasNoMeaningAndGoOn)
{
    EXPECT_EQ(decodeCodePage(codepage::utf8, "a\xFF\xC3(b\xC3"), u"a\uFFFD\uFFFD(b\uFFFD");
    EXPECT_EQ(decodeCodePage(1253, "\xAA\xE1"), u"\uFFFD\u03B1");
    EXPECT_EQ(decodeCodePage(932, "\x93"), u"\uFFFD");
    EXPECT_EQ(decodeCodePage(936, "\xFF\xFF"), u"\uFFFD\uFFFD");
}

TEST(CodePages, joinALetterWithTheAccentThatFollowsIt)
{
    // Windows-1258 writes U+1EA7, a with circumflex and grave, as E2 CC.
    EXPECT_EQ(decodeCodePage(1258, "\xE2\xCC"), u"\u1EA7");
    EXPECT_EQ(decodeCodePage(1258, "a\xE2"), u"a\u00E2");
    EXPECT_EQ(decodeCodePage(1258, "\xE2\x8A"), u"\u00E2\uFFFD"); // 8A is not used
}

TEST(CodePages, takeAnUnknownPageForWindows1252)
{
    for (const int page : {0, -1, 1, 1252, 99999})
        EXPECT_EQ(decodeCodePage(page, "\x80"), u"\u20AC") << page;
}

TEST(CodePages, readLongTexts)
{
    std::string bytes;
    std::u16string text;
    for (int i = 0; i < 10'000; ++i) {
        bytes += "\xE0\xE1z";
        text += u"\u0430\u0431z";
    }
    EXPECT_EQ(decodeCodePage(1251, bytes), text);
}

TEST(CodePages, keepNothingFromOneTextToTheNext)
{
    CodePageDecoder decoder;
    EXPECT_EQ(decoder.decode(932, "\x83"), u"\uFFFD");
    EXPECT_EQ(decoder.decode(932, "A"), u"A");
    EXPECT_EQ(decoder.decode(1258, "\xE2"), u"\u00E2");
    EXPECT_EQ(decoder.decode(1258, "\xCC"), u"\u0300");
    EXPECT_EQ(decoder.decode(1251, "\xE0"), u"\u0430");
    EXPECT_EQ(decoder.decode(1251, ""), u"");
}

} // namespace

} // namespace tarsil
