// SPDX-License-Identifier: Apache-2.0
#include "base/text/CaseFolding.h"

#include <gtest/gtest.h>

using namespace tarsil;

TEST(CaseFolding, makesCapitalsSmall)
{
    EXPECT_EQ(withoutCase("WING_09.EV2"), "wing_09.ev2");
    // The pairs of the Unicode Character Database (UnicodeData.txt, simple lowercase mapping).
    EXPECT_EQ(withoutCase("ÀÖØÞŸĀĮĲŁŇŊŶŹŽ"), "àöøþÿāįĳłňŋŷźž");
    EXPECT_EQ(withoutCase("ΆΈΊΌΎΏΑΡΣΩ"), "άέίόύώαρσω");
    EXPECT_EQ(withoutCase("ЀЏАЯҊӐ"), "ѐџаяҋӑ");
}

TEST(CaseFolding, leavesWhatIsNoCapital)
{
    for (const char* const text :
         {"", "wing", "×÷ß", "āĸŉſ", "άςσ", "ѐя", "İı", "漢字", "😀", "@[`{"})
        EXPECT_EQ(withoutCase(text), text);
}

TEST(CaseFolding, comparesWhatIsNoTextByItsBytes)
{
    EXPECT_EQ(withoutCase("FL\xDCGEL"), "fl\xDCgel");
    EXPECT_NE(withoutCase("\xDC"), withoutCase("\xDD"));
}
