// SPDX-License-Identifier: Apache-2.0
#include "base/text/QuotedText.h"

#include <gtest/gtest.h>

namespace tarsil {

namespace {

TEST(QuotedText, isInQuotationMarks)
{
    EXPECT_EQ(quotedText("12x"), "\"12x\"");
    EXPECT_EQ(quotedText(""), "\"\"");
    EXPECT_EQ(quotedText("Fl\xC3\xBCgel \xFC"), "\"Fl\xC3\xBCgel \xFC\"");
}

TEST(QuotedText, showsNoControlCharacter)
{
    EXPECT_EQ(quotedText(std::string_view("a\0b\x1B[31m\r\n\x7F", 11)), "\"a?b?[31m???\"");
}

TEST(QuotedText, isCutAfterSixtyBytes)
{
    EXPECT_EQ(quotedText(std::string(60, 'a')), "\"" + std::string(60, 'a') + "\"");
    EXPECT_EQ(quotedText(std::string(61, 'a')), "\"" + std::string(60, 'a') + "...\"");
}

TEST(QuotedText, isCutBetweenCharacters)
{
    std::string text(59, 'a');
    text += "\xE2\x80\x93 and more";
    EXPECT_EQ(quotedText(text), "\"" + std::string(59, 'a') + "...\"");
}

} // namespace

} // namespace tarsil
