// SPDX-License-Identifier: Apache-2.0
#include "base/numbers/ColorValue.h"

#include <gtest/gtest.h>

using namespace tarsil;

TEST(ColorValue, hasSevenBaseColours)
{
    EXPECT_EQ(BaseColors[1], 0xFF0000); // blue: red is the low byte
    EXPECT_EQ(BaseColors[3], 0x0000FF);
    EXPECT_EQ(BaseColors[0], 0x808080);
}
