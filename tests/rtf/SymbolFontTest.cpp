// SPDX-License-Identifier: Apache-2.0
#include "rtf/SymbolFont.h"

#include <gtest/gtest.h>

using namespace tarsil;

TEST(SymbolFont, isKnownByItsNameInAnyCase)
{
    EXPECT_TRUE(isSymbolFace("Symbol"));
    EXPECT_TRUE(isSymbolFace("SYMBOL"));
    EXPECT_FALSE(isSymbolFace("Symbol Neu"));
    EXPECT_FALSE(isSymbolFace("Arial"));
}

// The encoding that printers have used since the first page description languages: Greek letters
// for Latin ones, infinity at A5, sum at E5.
TEST(SymbolFont, showsGreekAndMathematics)
{
    EXPECT_EQ(ordinarySigns(u"\uF061\uF072\uF077\uF057"), u"\u03B1\u03C1\u03C9\u03A9");
    EXPECT_EQ(ordinarySigns(u"\uF0A5\uF0B1\uF0E5\uF0FE"), u"\u221E\u00B1\u2211\u23AD");
    EXPECT_EQ(ordinarySigns(u"\uF030\uF020\uF02B"), u"0 +");
}

TEST(SymbolFont, leavesOtherCharactersAlone)
{
    EXPECT_EQ(ordinarySigns(u"a\u00E4\uF01F\uF100\n"), u"a\u00E4\uF01F\uF100\n");
}
