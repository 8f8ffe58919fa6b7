// SPDX-License-Identifier: Apache-2.0
#include "base/text/AsciiText.h"

#include <gtest/gtest.h>

namespace tarsil {

namespace {

TEST(AsciiText, losesSpacesAndTabsAtItsEnds)
{
    EXPECT_EQ(trimmed(" \ta b\t "), "a b");
    EXPECT_EQ(trimmed("a"), "a");
    EXPECT_EQ(trimmed(" \t "), "");
    EXPECT_EQ(trimmed(""), "");
    EXPECT_EQ(trimmed("\na\r"), "\na\r") << "line ends are no blanks";
    EXPECT_EQ(trimmed("\xA0 a"), "\xA0 a") << "nor is the hard space of a code page";
}

TEST(AsciiText, isBlankWithSpacesTabsAndLineEndsAlone)
{
    EXPECT_TRUE(isBlankText(""));
    EXPECT_TRUE(isBlankText(" \t\r\n"));
    EXPECT_FALSE(isBlankText(" \v"));
    EXPECT_FALSE(isBlankText(" a"));
}

TEST(AsciiText, hasSmallLettersForTheCapitalsOfAscii)
{
    EXPECT_EQ(asciiLower("AZ[@az09"), "az[@az09");
    EXPECT_EQ(asciiLower("\xC3\x84\xC4"), "\xC3\x84\xC4") << "other bytes stay";
    EXPECT_TRUE(equalIgnoringAsciiCase("Vd 1", "vD 1"));
    EXPECT_FALSE(equalIgnoringAsciiCase("Vd", "Vd "));
    EXPECT_FALSE(equalIgnoringAsciiCase("[", "{"));
}

} // namespace

} // namespace tarsil
