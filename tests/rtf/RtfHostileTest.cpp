// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfReader.h"
#include "rtf/RtfWriter.h"

#include "rtf/RichTextLook.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

// Sources that no writer produces but that may be opened. Time and memory must be linear in their
// length; the tests also check the little that is defined about the result.

using namespace tarsil;
using namespace std::string_literals;
using test::charactersOf;
using test::shown;

namespace {

constexpr int million = 1'000'000;

std::string repeated(std::string_view part, int count)
{
    std::string text;
    text.reserve(part.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        text += part;
    return text;
}

RichText parsed(const std::string& source)
{
    return readRtf(source, {});
}

} // namespace

TEST(RtfHostile, returnsFromGroupsWithoutEnd)
{
    EXPECT_EQ(shown(repeated("{", million)), "");
    EXPECT_EQ(shown(repeated("{\\b", million) + " x"), "x");
    EXPECT_EQ(shown("{\\rtf1 a" + repeated("{", million) + "b" + repeated("}", million) + "c}d"),
              "abc");
}

TEST(RtfHostile, restoresTheFormatAfterGroupsThatAreTooDeep)
{
    const RichText text =
        parsed("{\\rtf1 a" + repeated("{\\b ", 20'000) + "b" + repeated("}", 20'000) + "c}");
    ASSERT_EQ(text.runs.size(), 3U);
    EXPECT_TRUE(text.runs[1].format.bold);
    EXPECT_FALSE(text.runs[2].format.bold);
}

TEST(RtfHostile, returnsFromBinaryPiecesBeyondTheEnd)
{
    EXPECT_EQ(shown("{\\rtf1 a" + repeated("\\bin9999999999", million)), "a");
    EXPECT_EQ(shown("{\\rtf1 a" + repeated("\\bin9999999999 ", million) + "b}"), "a");
    EXPECT_EQ(shown("{\\rtf1 a" + repeated("\\bin-9999999999 ", million) + "b}"), "ab");
}

TEST(RtfHostile, returnsFromNumbersAndWordsWithoutEnd)
{
    EXPECT_EQ(shown("{\\rtf1 a\\fs" + repeated("9", million) + " b}"), "ab");
    EXPECT_EQ(shown("{\\rtf1 a\\" + repeated("x", million) + " b}"), "ab");
    EXPECT_EQ(shown("{\\rtf1 a\\uc9999999999\\u65 " + repeated("x", million) + "{}b}"), "aAb");
}

TEST(RtfHostile, returnsFromAMillionOfEverything)
{
    EXPECT_EQ(shown("{\\rtf1 " + repeated("\\'e9\\b", million) + "\\b0 x}").size(),
              2U * million + 1U);
    EXPECT_EQ(parsed("{\\rtf1 " + repeated("\\b x\\b0 y", million) + "}").runs.size(),
              2U * million);
    EXPECT_EQ(shown("{\\rtf1 " + repeated("{\\*\\x y}", million) + "z}"), "z");
    EXPECT_EQ(shown("{\\rtf1 " + repeated("\\u-10187?", million) + "}").size(), 3U * million);
    EXPECT_EQ(shown("{\\rtf1 " + repeated("\\par", million) + "}").size(), million - 1U);
    EXPECT_EQ(shown("{\\rtf1 a" + repeated("\\", 2 * million) + "}"),
              "a" + repeated("\\", million));
}

TEST(RtfHostile, returnsFromATableOfTwoHundredThousandFonts)
{
    std::string table;
    std::string text;
    for (int i = 0; i < 200'000; ++i) {
        table += "{\\f" + std::to_string(i) + "\\fcharset" + std::to_string(i % 256) + " F"
            + std::to_string(i) + ";}";
        text += "\\f" + std::to_string(i) + "\\'e9";
    }
    const RichText rich = parsed("{\\rtf1{\\fonttbl" + table + "}" + text + "}");
    ASSERT_EQ(rich.runs.size(), 200'000U);
    EXPECT_EQ(rich.runs.back().format.family, "F199999");
    EXPECT_EQ(readRtf(writeRtf(rich), {}).runs.size(), 200'000U);
}

TEST(RtfHostile, carriesNoLongFontNameIntoEveryRun)
{
    const RichText text = parsed("{\\rtf1{\\fonttbl{\\f0 " + repeated("x", million) + ";}}\\f0 "
                                 + repeated("\\b y\\b0 z", 100'000) + "}");
    ASSERT_EQ(text.runs.size(), 200'000U);
    EXPECT_EQ(text.runs.back().format.family.size(), 64U);
}

TEST(RtfHostile, returnsFromAMillionColoursAndCodePages)
{
    EXPECT_EQ(shown("{\\rtf1{\\colortbl" + repeated(";", million) + "\\red1;}\\cf1000000 x}"), "x");
    std::string source = "{\\rtf1 ";
    for (int i = 0; i < 100'000; ++i)
        source += "\\ansicpg" + std::to_string(i) + "\\'41";
    EXPECT_EQ(shown(source + "}").size(), 100'000U);
}

TEST(RtfHostile, returnsFromBytesWithoutAnyMeaning)
{
    // All bytes in a scrambled order, repeatedly: 167 is coprime to 256.
    std::string noise;
    for (unsigned i = 0; i < million; ++i)
        noise += static_cast<char>((i * 167U + i / 256U) & 0xFFU);
    for (const char* const head : {"{", "{\\rtf1{\\fonttbl", "{\\rtf1{\\colortbl", "{\\urtf1 "})
        EXPECT_LE(charactersOf(parsed(head + noise)).size(), 3 * noise.size()) << head;
}
