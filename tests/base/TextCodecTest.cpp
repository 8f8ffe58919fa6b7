// SPDX-License-Identifier: Apache-2.0
#include "base/text/TextCodec.h"

#include <gtest/gtest.h>

#include <string>

namespace tarsil {

namespace {

TEST(TextCodec, leavesUtf8Unchanged)
{
    EXPECT_EQ(decodeText("plain"), "plain");
    EXPECT_EQ(decodeText("Fl\xC3\xBCgel"), "Fl\xC3\xBCgel");
    EXPECT_EQ(decodeText("\xF0\x9D\x84\x9E"), "\xF0\x9D\x84\x9E");
    EXPECT_EQ(decodeText(""), "");
}

TEST(TextCodec, readsOtherBytesAsWindows1252)
{
    EXPECT_EQ(decodeText("Fl\xFCgel"), "Fl\xC3\xBCgel");
    EXPECT_EQ(decodeText("5 \x80"), "5 \xE2\x82\xAC"); // the euro sign, U+20AC
    EXPECT_EQ(decodeText("\x96"), "\xE2\x80\x93"); // the dash, U+2013
    EXPECT_EQ(decodeText("\x81 \xE9"), "\xC2\x81 \xC3\xA9"); // an unused byte keeps its value
}

TEST(TextCodec, recognisesWellFormedUtf8)
{
    EXPECT_TRUE(isUtf8("\xED\x9F\xBF")); // U+D7FF
    EXPECT_FALSE(isUtf8("\xED\xA0\x80")); // a surrogate
    EXPECT_FALSE(isUtf8("\xC0\xAF")); // overlong
    EXPECT_FALSE(isUtf8("\xE0\x80\x80")); // overlong
    EXPECT_FALSE(isUtf8("\xF4\x90\x80\x80")); // beyond U+10FFFF
    EXPECT_FALSE(isUtf8("\xC3")); // truncated
    EXPECT_FALSE(isUtf8("\x80")); // a continuation alone
}

TEST(TextCodec, writesWindows1252WhereEveryCharacterFits)
{
    EXPECT_EQ(encodeText("Fl\xC3\xBCgel \xE2\x82\xAC"), "Fl\xFCgel \x80");
    EXPECT_EQ(encodeText("plain"), "plain");
}

TEST(TextCodec, writesUtf8WhereACharacterDoesNotFit)
{
    EXPECT_EQ(encodeText("\xCE\xB1 = 3\xC2\xB0"), "\xCE\xB1 = 3\xC2\xB0"); // alpha
}

TEST(TextCodec, comesBackAsItWas)
{
    for (const std::string text :
         {"Fl\xC3\xBCgel", "\xCE\xB1\xC3\xBC", "\xC3\x83\xC2\xBC", "plain", "\xC3\x82\xC2\xB0"})
        EXPECT_EQ(decodeText(encodeText(text)), text);
}

TEST(TextCodec, printsNoControlCharacter)
{
    EXPECT_EQ(printableText("Fl\xC3\xBCgel R&D <b>"), "Fl\xC3\xBCgel R&D <b>");
    EXPECT_EQ(printableText(std::string_view("a\0b\x1B[31m\r\n\t\x7F", 12)), "a?b?[31m????");
    EXPECT_EQ(printableText("a\xC2\x9B"
                            "31m"),
              "a?31m"); // U+009B begins a command as ESC [ does
    EXPECT_EQ(printableText("a\xE2\x80\xA8"
                            "b\xE2\x80\xAE"
                            "c\xE2\x81\xA6"),
              "a?b?c?"); // line separator, right-to-left override and isolate
}

TEST(TextCodec, printsTheBytesOfAnEightBitText)
{
    EXPECT_EQ(printableText("Fl\xFCgel \xC2"), "Fl\xFCgel \xC2");
    EXPECT_EQ(printableText("\x9B"
                            "31m \xC2\x41"),
              "?31m \xC2\x41");
    EXPECT_EQ(printableText("\xC3\x80"), "\xC3\x80"); // a letter, though its second byte is 0x80
}

TEST(TextCodec, turnsUtf8IntoUtf16AndBack)
{
    const std::string utf8 = "A\xC3\xA9\xE2\x82\xAC\xF0\x9D\x94\xB8"; // U+1D538 at the end
    EXPECT_EQ(utf16FromUtf8(utf8), u"A\u00E9\u20AC\U0001D538");
    EXPECT_EQ(utf8FromUtf16(utf16FromUtf8(utf8)), utf8);
}

TEST(TextCodec, replacesMalformedBytesAndHalfCharacters)
{
    EXPECT_EQ(utf16FromUtf8("a\xFF\xC3(\xC3"), u"a\uFFFD\uFFFD(\uFFFD");
    const std::u16string halves = {u'a', 0xD835, u'b', 0xDD38, 0xD835};
    EXPECT_EQ(utf8FromUtf16(halves),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD\xEF\xBF\xBD");
}

} // namespace

} // namespace tarsil
