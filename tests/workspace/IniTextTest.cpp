// SPDX-License-Identifier: Apache-2.0
#include "workspace/IniText.h"
#include "rtf/RtfStoredValue.h"

#include <gtest/gtest.h>

#include <string>

using namespace tarsil;
using namespace std::string_literals;

namespace {

/// The value of "key" in a section "S" with these lines.
std::optional<std::string> valueOf(const std::string& lines)
{
    const std::string text = "[S]\r\n" + lines;
    return IniText(text).text("S", "key");
}

} // namespace

TEST(IniText, findsValuesBySectionAndKey)
{
    const IniText ini("[A]\r\nx=1\r\ny=2\r\n[B]\r\nx=3\r\n");
    EXPECT_EQ(ini.text("A", "x"), "1");
    EXPECT_EQ(ini.text("A", "y"), "2");
    EXPECT_EQ(ini.text("B", "x"), "3");
    EXPECT_EQ(ini.text("B", "y"), std::nullopt);
    EXPECT_EQ(ini.text("C", "x"), std::nullopt);
    EXPECT_EQ(ini.bytes("C", "x"), std::nullopt);
}

TEST(IniText, comparesNamesWithoutCase)
{
    const IniText ini("[Plot1]\r\nvelAxis=1\r\n");
    EXPECT_EQ(ini.text("PLOT1", "VELAXIS"), "1");
    EXPECT_EQ(ini.text("plot1", "velaxis"), "1");
}

TEST(IniText, usesTheFirstOfTwoEqualKeys)
{
    EXPECT_EQ(valueOf("key=1\r\nKEY=2\r\n"), "1");
    EXPECT_EQ(valueOf("key=\r\nkey=2\r\n"), "");
    EXPECT_EQ(valueOf("key=1\r\n[T]\r\n[s]\r\nkey=2\r\n"), "1");
}

TEST(IniText, goesOnWithASectionThatComesAgain)
{
    EXPECT_EQ(valueOf("[T]\r\nkey=1\r\n[s]\r\nkey=2\r\n"), "2");
}

TEST(IniText, splitsAtTheFirstEqualsSign)
{
    EXPECT_EQ(valueOf("key=a=b=\r\n"), "a=b=");
}

TEST(IniText, dropsBlanksAroundNamesAndValues)
{
    EXPECT_EQ(valueOf(" \tkey \t= \ta b \t\r\n"), "a b");
    EXPECT_EQ(IniText(" [ S ] \r\nkey=1").text("S", "key"), "1");
    EXPECT_EQ(valueOf("key=  \r\n"), "");
}

TEST(IniText, dropsOnePairOfQuotesAroundTheWholeValue)
{
    EXPECT_EQ(valueOf("key=\"  a  \"\r\n"), "  a  ");
    EXPECT_EQ(valueOf("key=\"\"a\"\"\r\n"), "\"a\"");
    EXPECT_EQ(valueOf("key= \"a\" \r\n"), "a");
    EXPECT_EQ(valueOf("key=\"\"\r\n"), "");
    for (const char* const kept : {"\"", "\"a", "a\"", "a \"b\" c", "'a'"})
        EXPECT_EQ(valueOf("key="s + kept + "\r\n"), kept);
}

TEST(IniText, treatsANulAsACharacterOfTheValue)
{
    EXPECT_EQ(valueOf("key=a\0b\0\r\n"s), "a\0b\0"s);
    EXPECT_EQ(valueOf("key=\0\0a\r\n"s), "\0\0a"s);
    EXPECT_EQ(valueOf("key=\0 \r\n"s), "\0"s);
}

TEST(IniText, passesOverWhatIsNeitherSectionNorKey)
{
    EXPECT_EQ(valueOf("\r\n; comment\r\nno sign\r\n[not closed\r\n=1\r\nkey=2\r\n"), "2");
    EXPECT_EQ(IniText("key=1\r\n[S]\r\n").text("", "key"), std::nullopt);
    EXPECT_EQ(IniText("").text("S", "key"), std::nullopt);
}

TEST(IniText, acceptsLinesWithoutCarriageReturnOrEnd)
{
    EXPECT_EQ(IniText("[S]\nother=1\nkey=2").text("S", "key"), "2");
    EXPECT_EQ(IniText("\xEF\xBB\xBF[S]\r\nkey=2\r\n").text("S", "key"), "2");
}

TEST(IniText, cutsAValueAt1023Bytes)
{
    // One less than a buffer of 1024 characters with a final zero.
    EXPECT_EQ(mostStoredBytes, 1023U);
    const std::string longest(1023, 'x');
    EXPECT_EQ(valueOf("key=" + longest + "\r\n"), longest);
    EXPECT_EQ(valueOf("key=" + longest + "y\r\n"), longest);
    EXPECT_EQ(valueOf("key=\"" + longest + "\"\r\n"), longest);
    const std::string text = "[S]\r\nkey=" + longest + "y\r\nnext=1\r\n";
    EXPECT_EQ(IniText(text).bytes("S", "key"), longest);
    EXPECT_EQ(IniText(text).text("S", "next"), "1");
}

TEST(IniText, countsANulInTheLengthOfAValue)
{
    const std::string value = std::string(1022, 'x') + '\0' + 'y';
    EXPECT_EQ(valueOf("key=" + value + "\r\n"), value.substr(0, 1023));
}

TEST(IniText, decodesEveryValueByItself)
{
    const IniText ini("[S]\r\na=Fl\xFC"
                      "gel\r\nb=Fl\xC3\xBC"
                      "gel\r\n");
    EXPECT_EQ(ini.text("S", "a"), "Flügel");
    EXPECT_EQ(ini.text("S", "b"), "Flügel");
    EXPECT_EQ(ini.bytes("S", "a"),
              "Fl\xFC"
              "gel");
}

TEST(IniText, decodesAfterTheCut)
{
    // 1023 bytes of Windows-1252 are 1023 characters of two bytes in UTF-8.
    EXPECT_EQ(valueOf("key=" + std::string(1500, '\xE9'))->size(), 2046U);
    // A character across the limit is dropped: 1022 bytes are 511 characters of two bytes.
    std::string umlauts;
    for (int i = 0; i < 600; ++i)
        umlauts += "ü";
    EXPECT_EQ(valueOf("key=" + umlauts), umlauts.substr(0, 1022));
    // 340 characters of three bytes end at 1020, the next one would end at 1023.
    std::string dashes;
    for (int i = 0; i < 400; ++i)
        dashes += "–";
    EXPECT_EQ(valueOf("key=" + dashes), dashes.substr(0, 1023));
    EXPECT_EQ(valueOf("key=x" + dashes), "x" + dashes.substr(0, 1020));
}

TEST(IniText, reportsLineAndWholeLengthOfAValue)
{
    const std::string text = "[S]\r\n\r\nkey= \"" + std::string(2000, 'x') + "\"\r\nKEY=2\r\n";
    const IniText ini(text);
    const auto entry = ini.entry("s", "Key");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->line, 3U);
    EXPECT_EQ(entry->value, std::string(2000, 'x'));
    EXPECT_FALSE(ini.entry("S", "other"));
    EXPECT_FALSE(ini.entry("T", "key"));
}

TEST(IniText, reportsWhereASectionBeginsFirst)
{
    const IniText ini("; comment\r\n[A]\r\nx=1\r\n [ b ]\r\n[a]\r\ny=2\r\n");
    EXPECT_EQ(ini.lineOfSection("a"), 2U);
    EXPECT_EQ(ini.lineOfSection("B"), 4U);
    EXPECT_EQ(ini.lineOfSection("c"), std::nullopt);
    EXPECT_EQ(ini.entry("A", "y")->line, 6U);
}

TEST(IniText, cutsOnlyTheFieldsOfAValueThatAreTooLong)
{
    const std::string longest(1023, 'x');
    const std::string text = "[S]\r\nkey=" + longest + "y\0b\0"s + longest + "\0\r\n"s;
    EXPECT_EQ(IniText(text).fields("S", "key"), longest + "\0b\0"s + longest + "\0"s);
    EXPECT_EQ(IniText(text).fields("S", "other"), std::nullopt);
    EXPECT_EQ(IniText("[S]\nkey=").fields("S", "key"), "");
}

TEST(IniText, cutsNoCharacterOfAFieldInTwo)
{
    std::string umlauts;
    for (int i = 0; i < 600; ++i)
        umlauts += "ü";
    const std::string text = "[S]\r\nkey=" + umlauts + "\0ü\r\n"s;
    EXPECT_EQ(IniText(text).fields("S", "key"), umlauts.substr(0, 1022) + "\0ü"s);
    // 1023 bytes of Windows-1252 are 1023 characters.
    const std::string bytes = "[S]\r\nkey=" + std::string(1500, '\xE9') + "\0\xFC\r\n"s;
    EXPECT_EQ(IniText(bytes).fields("S", "key")->size(), 2046U + 1 + 2);
}

TEST(IniText, countsItsLines)
{
    EXPECT_EQ(IniText("").lines(), 0U);
    EXPECT_EQ(IniText("[S]\r\nkey=1\r\n").lines(), 2U);
    EXPECT_EQ(IniText("[S]\r\nkey=1").lines(), 2U);
}
