// SPDX-License-Identifier: Apache-2.0
#include "plot/ValueMap.h"

#include <gtest/gtest.h>

#include <random>

using tarsil::ValueMap;

TEST(ValueMap, hasItsFirstValueAtPixelZeroAndItsLastAtItsLength)
{
    const ValueMap speeds(100, 600, 250);
    EXPECT_EQ(speeds.pixelOf(100), 0);
    EXPECT_EQ(speeds.pixelOf(600), 250);
    EXPECT_EQ(speeds.pixelOf(350), 125);
    EXPECT_EQ(speeds.pixelOf(50), -25) << "beyond its ends as well";
}

TEST(ValueMap, runsDownwardsWhereTheFirstValueIsTheLargerOne)
{
    const ValueMap frequencies(50, 0, 200);
    EXPECT_EQ(frequencies.pixelOf(50), 0);
    EXPECT_EQ(frequencies.pixelOf(12.5), 150);
}

TEST(ValueMap, roundsHalfAPixelToTheEvenOne)
{
    const ValueMap map(0, 100, 50);
    EXPECT_EQ(map.pixelOf(1), 0);
    EXPECT_EQ(map.pixelOf(3), 2);
}

TEST(ValueMap, findsTheValueOfAPixel)
{
    const ValueMap dampings(0, -0.25, 200);
    EXPECT_EQ(dampings.valueAt(0), 0);
    EXPECT_EQ(dampings.valueAt(100), -0.125);
    EXPECT_EQ(dampings.valueAt(200), -0.25);
}

TEST(ValueMap, comesBackToThePixelItStartedFrom)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> ends(-1000, 1000);
    for (int i = 0; i < 1000; ++i) {
        const double first = ends(random);
        const double last = first + (i % 2 == 0 ? 1 : -1) * (10 + ends(random) / 200);
        const ValueMap map(first, last, 640);
        for (const int pixel : {0, 1, 319, 640})
            ASSERT_EQ(map.pixelOf(map.valueAt(pixel)), pixel) << first << " to " << last;
    }
}

TEST(ValueMap, measuresLengthsFromZeroWhateverItsFirstValueIs)
{
    EXPECT_EQ(ValueMap(0, 500, 250).lengthOf(100), 50);
    EXPECT_EQ(ValueMap(200, 700, 250).lengthOf(100), 50);
}

TEST(ValueMap, dividesItselfEvenly)
{
    const ValueMap map(0, 700, 350);
    EXPECT_EQ(map.divisionPixel(3, 7), 150);
    EXPECT_EQ(map.divisionValue(3, 7), 300);
    const ValueMap flat(5, 5, 350);
    EXPECT_EQ(flat.divisionPixel(1, 7), 50);
    EXPECT_EQ(flat.divisionValue(1, 7), 5);
}

TEST(ValueMap, labelsDivisionsAsDecimalArithmeticDoes)
{
    EXPECT_EQ(ValueMap(0, -0.35, 200).divisionValue(3, 4), -0.2625);
    EXPECT_EQ(ValueMap(0, 0.3, 200).divisionValue(1, 3), 0.1);
}
