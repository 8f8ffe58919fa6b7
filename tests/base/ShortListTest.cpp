// SPDX-License-Identifier: Apache-2.0
#include "base/text/ShortList.h"

#include <gtest/gtest.h>

using namespace tarsil;

TEST(ShortList, hasALineForEach)
{
    EXPECT_EQ(shortList({}, 2), "");
    EXPECT_EQ(shortList({"a"}, 2), "a");
    EXPECT_EQ(shortList({"a", "b"}, 2), "a\nb");
}

TEST(ShortList, saysHowManyMoreThereAre)
{
    EXPECT_EQ(shortList({"a", "b", "c", "d"}, 2), "a\nb\nand 2 more");
}
