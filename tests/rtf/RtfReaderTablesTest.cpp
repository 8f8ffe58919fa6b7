// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfReader.h"

#include "rtf/RichTextLook.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace tarsil;
using test::charactersOf;
using test::looksOf;
using ::testing::ElementsAre;

namespace {

std::vector<std::string> looks(std::string_view source)
{
    return looksOf(readRtf(source, {.family = "Tahoma", .points = 9}));
}

/// The name of the only font in a table with this entry.
std::string familyOf(std::string_view entry)
{
    const std::string source = R"({\rtf1{\fonttbl)" + std::string(entry) + R"(}\f0 x})";
    return readRtf(source, {.family = "Tahoma"}).runs.at(0).format.family;
}

/// The runs of \cf0 a, \cf1 b and \cf2 c with this colour table.
std::vector<std::string> colors(std::string_view table)
{
    return looks("{\\rtf1" + std::string(table) + R"(\cf0 a\cf1 b\cf2 c})");
}

} // namespace

// Fonts.

TEST(RtfReaderTables, readsGroupedAndFlatFontTables)
{
    EXPECT_THAT(looks(R"({\rtf1{\fonttbl{\f0\fnil\fcharset0 A B;}{\f1 C;}}\f0 x\f1 y})"),
                ElementsAre("A B 9: x", "C 9: y"));
    EXPECT_THAT(looks(R"({\rtf1{\fonttbl\f0\fswiss A B;\f1\fmodern C;}\f0 x\f1 y})"),
                ElementsAre("A B 9: x", "C 9: y"));
    EXPECT_EQ(familyOf(R"({\f0 Arial})"), "Arial");
    EXPECT_EQ(familyOf(R"(\f0 Arial)"), "Arial");
}

TEST(RtfReaderTables, addsNothingToAFontNameFromItsInnerGroups)
{
    EXPECT_EQ(familyOf(R"({\f0{\*\panose 02}\fswiss Arial{\*\falt Helvetica};})"), "Arial");
    EXPECT_EQ(familyOf(R"({\f0\fnil{\*\fname Arial;}Arial CE;})"), "Arial CE");
    EXPECT_EQ(familyOf(R"(\f0{\*\panose 02}Arial{\falt Helvetica};)"), "Arial");
}

TEST(RtfReaderTables, decodesAFontNameByItsCharacterSet)
{
    // Shift JIS 82 6C 82 72 is the full-width "MS"; Windows-1251 CF F0 is U+041F U+0440.
    EXPECT_EQ(familyOf(R"({\f0\fcharset128 \'82\'6c\'82\'72;})"), "\xEF\xBC\xAD\xEF\xBC\xB3");
    EXPECT_EQ(familyOf(R"({\f0\fcharset204 \'cf\'f0;})"), "\xD0\x9F\xD1\x80");
    EXPECT_EQ(familyOf(R"({\f0\fcharset0 A\u937?B;})"),
              "A\xCE\xA9"
              "B");
    EXPECT_EQ(familyOf(R"({\f0\fcharset2 Symbol;})"), "Symbol");
}

TEST(RtfReaderTables, acceptsNoControlsOuterBlanksOrEndlessLengthInAFontName)
{
    EXPECT_EQ(familyOf("{\\f0   A\x01\x7F\\u59?B  ;}"), "AB");
    EXPECT_EQ(familyOf("{\\f0 " + std::string(1000, 'x') + ";}"), std::string(64, 'x'));
}

TEST(RtfReaderTables, usesTheBoxesFontForOneWithoutAName)
{
    EXPECT_EQ(familyOf(R"({\f0\fnil;})"), "Tahoma");
}

TEST(RtfReaderTables, usesTheBoxesFontForANameThatIsNone)
{
    EXPECT_EQ(familyOf(R"({\f0 R&D Sans;})"), "R&D Sans");
    for (const char* entry : {R"({\f0 A" onmouseover="x;})", R"({\f0 <b>;})", R"({\f0 a\{b\};})",
                              R"({\f0 a\u8238?b;})", R"({\f0 a\u-1?;})"})
        EXPECT_EQ(familyOf(entry), "Tahoma") << entry;
}

TEST(RtfReaderTables, beginsWithTheDefaultFont)
{
    const std::string table = R"({\fonttbl{\f2 B;}{\f1 A;}{\f3 C;}})";
    EXPECT_THAT(looks(R"({\rtf1\deff3)" + table + "x}"), ElementsAre("C 9: x"));
    EXPECT_THAT(looks(R"({\rtf1)" + table + "x}"), ElementsAre("A 9: x")); // the lowest number
    EXPECT_THAT(looks(R"({\rtf1\deff7)" + table + "x}"), ElementsAre("Tahoma 9: x"));
    EXPECT_THAT(looks(R"({\rtf1\deff3\f3 x})"), ElementsAre("Tahoma 9: x"));
}

TEST(RtfReaderTables, readsTablesThatComeLate)
{
    EXPECT_THAT(looks(R"({\rtf1\f1\cf1 x{\fonttbl{\f0 A;}{\f1 B;}}{\colortbl;\red255;}})"),
                ElementsAre("B 9 #ff0000: x"));
}

TEST(RtfReaderTables, showsNothingOfATableThatLacksItsBrace)
{
    EXPECT_THAT(looks(R"({\rtf1{\fonttbl{\f0 Arial;}\f0\fs20 text}after})"),
                ElementsAre("Arial 9: after"));
}

// Colours.

TEST(RtfReaderTables, readsColoursWithMissingAndTooLargeParts)
{
    EXPECT_THAT(colors(R"({\colortbl ;\red9\green8\blue7;\red999\blue-5;})"),
                ElementsAre("Tahoma 9: a", "Tahoma 9 #090807: b", "Tahoma 9 #ff0000: c"));
}

TEST(RtfReaderTables, treatsEveryEmptyEntryAsAutomatic)
{
    EXPECT_THAT(colors(R"({\colortbl;;\blue255;})"),
                ElementsAre("Tahoma 9: ab", "Tahoma 9 #0000ff: c"));
}

TEST(RtfReaderTables, treatsAnIndexOutsideTheTableAsAutomatic)
{
    EXPECT_THAT(colors(R"({\colortbl;\red255;})"),
                ElementsAre("Tahoma 9: a", "Tahoma 9 #ff0000: b", "Tahoma 9: c"));
    EXPECT_THAT(colors(""), ElementsAre("Tahoma 9: abc"));
    EXPECT_THAT(looks(R"({\rtf1{\colortbl;\red255;}\cf1 a\cf-1 b\cf1\cf c})"),
                ElementsAre("Tahoma 9 #ff0000: a", "Tahoma 9: bc"));
}

TEST(RtfReaderTables, usesAnExplicitFirstColourUnlessItIsBlack)
{
    EXPECT_THAT(colors(R"({\colortbl\red0\green0\blue0;\red0\green0\blue0;})"),
                ElementsAre("Tahoma 9: a", "Tahoma 9 #000000: b", "Tahoma 9: c"));
    EXPECT_THAT(looks(R"({\rtf1{\colortbl\red1\green2\blue3;}x\cf0 a})"),
                ElementsAre("Tahoma 9: x", "Tahoma 9 #010203: a"));
}

TEST(RtfReaderTables, leavesOutAnEntryThatIsCut)
{
    EXPECT_THAT(colors(R"({\colortbl;\red255;\blue255})"),
                ElementsAre("Tahoma 9: a", "Tahoma 9 #ff0000: b", "Tahoma 9: c"));
}
