// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfReader.h"

#include "rtf/RichTextLook.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace tarsil;
using namespace std::string_literals;
using test::charactersOf;
using test::lookOf;
using test::looksOf;
using test::shown;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

/// The look of the box.
const TextFormat box {.family = "Tahoma", .points = 9};

RichText read(std::string_view source)
{
    return readRtf(source, box);
}

/// The runs of a text in a document with two fonts and the colours red and blue.
std::vector<std::string> looksInDocument(std::string_view text)
{
    const std::string head = R"({\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}{\f1 Courier;}})"
                             R"({\colortbl ;\red255\green0\blue0;\blue255;}\fs20 )";
    return looksOf(read(head + std::string(text) + "}"));
}

} // namespace

// Recognising the format.

TEST(RichTextFormat, isKnownByItsFirstWord)
{
    for (const char* source :
         {"{\\rtf1 a}", "\n {\\rtf1 a}", "\xEF\xBB\xBF{\\rtf", "{\\urtf1 a}", "{{\\rtf1 a}}"})
        EXPECT_TRUE(looksLikeRtf(source)) << source;
    for (const char* text : {"", "text", "{text}", "a{\\rtf1}"})
        EXPECT_FALSE(looksLikeRtf(text)) << text;
}

TEST(RtfReader, skipsTextBeforeTheFirstBrace)
{
    EXPECT_EQ(shown("\xEF\xBB\xBF \r\n\0 {\\rtf1 lead}"s), "lead");
}

TEST(RtfReader, acceptsEveryBeginningWithABrace)
{
    EXPECT_EQ(shown(R"({\rtf abc})"), "abc");
    EXPECT_EQ(shown(R"({\rtf1 abc})"), "abc");
    EXPECT_EQ(shown("{\\urtf1 caf\xC3\xA9}"), "caf\xC3\xA9");
    EXPECT_EQ(shown(R"({{\rtf1 abc}})"), "abc");
    EXPECT_EQ(shown("{Text}"), "Text");
}

TEST(RtfReader, readsAnythingElseAsPlainTextInTheLookOfTheBox)
{
    const TextFormat bold {.family = "Tahoma", .points = 9, .bold = true, .color = rgb(255, 0, 0)};
    const RichText text = readRtf("one\r\ntwo\nthree\rfour\n", bold);
    EXPECT_THAT(looksOf(text), ElementsAre("Tahoma 9 bold #ff0000: one\ntwo\nthree\nfour\n"));
    EXPECT_EQ(text.last, bold);
    EXPECT_EQ(shown("caf\xE9 {x}"), "caf\xC3\xA9 {x}");
    EXPECT_EQ(shown("a\0b"s), "a b");
}

TEST(RtfReader, givesAnEmptyTextTheLookOfTheBox)
{
    for (const char* const source : {"", R"({\rtf1})", "{"}) {
        EXPECT_THAT(read(source).runs, IsEmpty()) << source;
        EXPECT_EQ(read(source).last, box) << source;
    }
}

TEST(RtfReader, endsWithTheOutermostGroup)
{
    EXPECT_EQ(shown(R"({\rtf1 one\par}{\rtf1 two\par})"), "one");
    EXPECT_EQ(shown("{\\rtf1 one}\r\n\0 junk }"s), "one");
}

// Tokens.

TEST(RtfReader, treatsOneBlankAsTheEndOfAWordButNoLineEnd)
{
    EXPECT_EQ(shown("{\\rtf1 a\\b  b\\b0\r\n c}"), "a b c");
    EXPECT_EQ(shown("{\\rtf1 a\\b-c\\b0-}"), "a-c-");
}

TEST(RtfReader, ignoresLineEndsAndShowsANulAsABlank)
{
    EXPECT_EQ(shown("{\\rtf1 a\r\nb\nc\rd\0e}"s), "abcd e");
}

TEST(RtfReader, leavesOutAByteThatIsNotWrittenInHexadecimalDigits)
{
    EXPECT_EQ(shown(R"({\rtf1 \'41\'x\'4})"), "Ax4");
}

TEST(RtfReader, limitsNumbersThatAreTooLarge)
{
    EXPECT_EQ(shown(R"({\rtf1 a\li99999999999999999999 b\u99999999999?c})"), "abc");
    EXPECT_THAT(looksInDocument(R"(\fs99999999999999999999 a)"), ElementsAre("Arial 1638: a"));
}

TEST(RtfReader, keepsWhatWasWholeWhereASourceEnds)
{
    EXPECT_EQ(shown("{\\rtf1 abc{\\b d{\\i e"), "abcde");
    for (const char* const cut : {"\\", "\\'", "\\'e", "\\u82", "\\b", "\\b-", "\\b0", "\\par"})
        EXPECT_EQ(shown("{\\rtf1 abc"s + cut), "abc") << cut;
    EXPECT_EQ(read(R"({\rtf1{\fonttbl{\f0 Cour)").last, box);
}

// Formats.

TEST(RtfReader, restoresTheFormatAtTheEndOfAGroup)
{
    EXPECT_THAT(looksInDocument(R"(a{\b\f1 b{\i\cf1\fs30 c}d}e)"),
                ElementsAre("Arial 10: a", "Courier 10 bold: b",
                            "Courier 15 bold italic #ff0000: c", "Courier 10 bold: d",
                            "Arial 10: e"));
}

TEST(RtfReader, turnsSwitchesOffWithNought)
{
    EXPECT_THAT(
        looksInDocument(R"(\b a\b0\i1 b\i0\strike c\strike0\striked1 d\striked0\ul e\ul0 f)"),
        ElementsAre("Arial 10 bold: a", "Arial 10 italic: b", "Arial 10 strike: cd",
                    "Arial 10 underline: e", "Arial 10: f"));
}

TEST(RtfReader, underlinesForEveryKindOfLineButNotForItsColour)
{
    EXPECT_THAT(looksInDocument(R"(\uldb a\ulnone b\ulwave c\ulw d\ulnone\ulc1 e\ul\ulc0 f)"),
                ElementsAre("Arial 10 underline: a", "Arial 10: b", "Arial 10 underline: cd",
                            "Arial 10: e", "Arial 10 underline: f"));
}

TEST(RtfReader, readsSizesInHalfPoints)
{
    // A missing, zero or negative size changes nothing; 1638 points are the maximum.
    EXPECT_THAT(looksInDocument(R"(\fs17 a\fs0 b\fs-4 c\fs d\fs23 e\fs4000 f)"),
                ElementsAre("Arial 8.5: abcd", "Arial 11.5: e", "Arial 1638: f"));
}

TEST(RtfReader, usesSizeAndFontOfTheBoxWhereNoneAreNamed)
{
    EXPECT_THAT(looksOf(read(R"({\rtf1 a})")), ElementsAre("Tahoma 9: a"));
    const TextFormat bold {.family = "Tahoma", .points = 9, .bold = true, .color = rgb(1, 2, 3)};
    EXPECT_THAT(looksOf(readRtf(R"({\rtf1 a})", bold)), ElementsAre("Tahoma 9: a"));
}

TEST(RtfReader, clearsEverythingWithPlainButNothingWithPard)
{
    EXPECT_THAT(looksInDocument(R"(\b\i\ul\strike\cf1\f1\fs40\pard a\plain b)"),
                ElementsAre("Courier 20 bold italic underline strike #ff0000: a", "Arial 12: b"));
}

TEST(RtfReader, ignoresTheNumberOfAnUnknownFont)
{
    EXPECT_THAT(looksInDocument(R"(\f1 a\f9 b\f c\f-1 d)"), ElementsAre("Courier 10: abcd"));
}

TEST(RtfReader, ignoresWordsThatChangeNoTextHere)
{
    EXPECT_THAT(looksInDocument(
                    R"(a\super b\nosupersub\up6 c\up0\v d\v0\caps e\highlight1 f\li20\qc\foo7 g)"),
                ElementsAre("Arial 10: abcdefg"));
}

TEST(RtfReader, joinsNeighboursThatLookTheSame)
{
    EXPECT_THAT(looksInDocument(R"(a{b}\cf0 c\f0\fs20 d\b\b0 e)"), ElementsAre("Arial 10: abcde"));
}

// Destinations.

TEST(RtfReader, skipsGroupsThatAreNoText)
{
    for (const char* const group :
         {R"({\*\unknown b{c}})", R"({\info{\title b}})", R"({\stylesheet{\s0 Normal;}})",
          R"({\pict\picw1 0102ff})", R"({\header b\par})", R"({\footerl b})", R"({\footnote b})",
          R"({\annotation b})", R"({\field{\*\fldinst PAGE}{\fldinst b}})", R"({\pntext b})",
          R"({\*\pn\pnlvlblt{\pntxtb b}})", R"({\xe b})", R"({\tc b})", R"({\*\bkmkstart b})",
          R"({\bkmkend b})", R"({\listtable{\list b}})", R"({\nonshppict{\pict 00}})",
          "{\\*\r\n\\generator Wine;}", R"({\b\pict 00})"})
        EXPECT_EQ(shown(R"({\rtf1 a)" + std::string(group) + "z}"), "az") << group;
}

TEST(RtfReader, showsResultsAndListTexts)
{
    EXPECT_EQ(shown(R"({\rtf1{\field{\*\fldinst PAGE}{\fldrslt{\b 7}}}})"), "7");
    EXPECT_EQ(shown(R"({\rtf1{\field{\*\fldrslt 7}}})"), "7");
    EXPECT_EQ(shown(R"({\rtf1{\object\objemb{\*\objdata 01}{\result pic}}})"), "pic");
    EXPECT_EQ(shown(R"({\rtf1{\listtext 1.\tab}one})"), "1.\tone");
}

TEST(RtfReader, keepsTheTextAfterWordsThatOnlyLookLikeDestinations)
{
    EXPECT_EQ(shown(R"({\rtf1\headery720\footery720\pnrnot0 text})"), "text");
    // In the middle of the outermost group a destination would swallow the rest of the text.
    EXPECT_EQ(shown(R"({\rtf1\ansi\info\*\foo text})"), "text");
}

TEST(RtfReader, passesOverBinaryBytes)
{
    EXPECT_EQ(shown(R"({\rtf1 a{\*\objdata\bin5 {{{}}x}b\bin3 }}}c\bin d\bin-2 e})"), "abcde");
    EXPECT_EQ(shown(R"({\rtf1 a\bin99 bc})"), "a");
}

// The end of the text.

TEST(RtfReader, dropsOneFinalLineBreak)
{
    EXPECT_EQ(shown(R"({\rtf1 abc\par})"), "abc");
    EXPECT_EQ(shown("{\\rtf1 abc\r\n\\par }\r\n"), "abc");
    EXPECT_EQ(shown(R"({\rtf1 abc\line })"), "abc");
    EXPECT_EQ(shown(R"({\rtf1 abc\par\par})"), "abc\n");
    EXPECT_EQ(shown(R"({\rtf1 abc})"), "abc");
}

TEST(RtfReader, keepsTheFinalLineBreakOfASelection)
{
    const RichText text = readRtf(R"({\rtf1 TestSomeText\par})", box, RtfScope::Selection);
    EXPECT_EQ(charactersOf(text), "TestSomeText\n");
}

TEST(RtfReader, keepsTheFormatOfAnEmptyText)
{
    const RichText text = read("{\\rtf1{\\fonttbl{\\f0 Arial;}}\\pard\\b\\f0\\fs17\\par\r\n}");
    EXPECT_THAT(text.runs, IsEmpty());
    EXPECT_EQ(lookOf(text.last), "Arial 8.5 bold");
    EXPECT_EQ(lookOf(read(R"({\rtf1{\fonttbl{\f0 Arial;}}\i\fs30 )").last), "Arial 15 italic");
}

TEST(RtfReader, keepsTheFormatOfAnEmptyLastLine)
{
    const RichText text = read(R"({\rtf1\fs30 a\par\fs40\par})");
    EXPECT_THAT(looksOf(text), ElementsAre("Tahoma 15: a\n"));
    EXPECT_EQ(lookOf(text.last), "Tahoma 20");
}

TEST(RtfReader, knowsASourceThatWasCut)
{
    const std::string whole = "{\\rtf1{\\fonttbl{\\f0 Arial;}}a\\{b\\par\r\n}";
    for (std::size_t size = 6; size < whole.size(); ++size)
        EXPECT_TRUE(isCutRtf(whole.substr(0, size))) << size;
    EXPECT_FALSE(isCutRtf(whole));
    EXPECT_FALSE(isCutRtf(whole + "\r\n")) << "what follows does not belong to it";
    EXPECT_FALSE(isCutRtf(" " + whole + "{"));
    EXPECT_TRUE(isCutRtf("{\\rtf1 \\bin3 }}}")) << "three bytes of a picture";
    EXPECT_FALSE(isCutRtf("{\\rtf1 \\bin3 }}}}"));
    for (const char* text : {"", "{", "{no format", "plain {\\rtf1"})
        EXPECT_FALSE(isCutRtf(text)) << text;
}
