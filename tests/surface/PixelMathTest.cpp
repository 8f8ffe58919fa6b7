// SPDX-License-Identifier: Apache-2.0
#include "surface/PixelMath.h"

#include <gtest/gtest.h>

#include <limits>

using namespace tarsil;

TEST(RoundToPixel, roundsToTheNearestPixel)
{
    EXPECT_EQ(roundToPixel(2.4), 2);
    EXPECT_EQ(roundToPixel(2.6), 3);
    EXPECT_EQ(roundToPixel(-2.6), -3);
}

TEST(RoundToPixel, choosesTheEvenPixelOfATie)
{
    EXPECT_EQ(roundToPixel(0.5), 0);
    EXPECT_EQ(roundToPixel(1.5), 2);
    EXPECT_EQ(roundToPixel(2.5), 2);
    EXPECT_EQ(roundToPixel(-0.5), 0);
    EXPECT_EQ(roundToPixel(-1.5), -2);
}

TEST(RoundToPixel, leavesATieToTheEvenPixelDespiteTheNoiseOfAConversion)
{
    // 3e-5 is the spacing of single-precision numbers near 500 pixels, 500 / 2^24.
    EXPECT_EQ(roundToPixel(2.5 + 3e-5), 2);
    EXPECT_EQ(roundToPixel(3.5 - 3e-5), 4);
}

TEST(RoundToPixel, decidesByWhatIsMoreThanNoise)
{
    EXPECT_EQ(roundToPixel(2.502), 3);
    EXPECT_EQ(roundToPixel(3.498), 3);
}

TEST(RoundToPixel, staysFarOutsideOfAnySurfaceForWhatIsFartherStill)
{
    // 2^26 = 67,108,864: twice that fits into 32 bits, so that an origin can be added.
    EXPECT_EQ(roundToPixel(1e30), 67108864);
    EXPECT_EQ(roundToPixel(-1e30), -67108864);
    EXPECT_EQ(roundToPixel(std::numeric_limits<double>::infinity()), 67108864);
}

TEST(PixelsOfPoints, countsAtNinetySixPerInch)
{
    // 72 points are one inch.
    EXPECT_EQ(pixelsOfPoints(72), 96.0);
    EXPECT_EQ(pixelsOfPoints(12), 16.0);
}
