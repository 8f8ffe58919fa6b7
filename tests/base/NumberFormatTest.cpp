// SPDX-License-Identifier: Apache-2.0
#include "base/numbers/NumberFormat.h"

#include "base/user/RunTimeError.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarsil {

namespace {

TEST(NumberFormat, writesAFixedNumberOfDecimals)
{
    EXPECT_EQ(formatNumber(1.0F, "##0.000"), "1.000");
    EXPECT_EQ(formatNumber(0.0F, "##0.000"), "0.000");
    EXPECT_EQ(formatNumber(273.6455F, "####0.000"),
              "273.646"); // a tie in decimal, rounded away from 0
    EXPECT_EQ(formatNumber(-12.3F, "##0.000"), "-12.300");
    EXPECT_EQ(formatNumber(12345.678F, "####0.000"), "12345.678");
    EXPECT_EQ(formatNumber(1234567.0F, "##0.000"), "1234567.000"); // digits are never cut
}

TEST(NumberFormat, writesOptionalDecimalsOnlyWhereNeeded)
{
    EXPECT_EQ(formatNumber(0.5F, "0.00#"), "0.50");
    EXPECT_EQ(formatNumber(0.125F, "0.00#"), "0.125");
    EXPECT_EQ(formatNumber(2.0F, "0.0#"), "2.0");
    EXPECT_EQ(formatNumber(2.25F, "0.0#"), "2.25");
    EXPECT_EQ(formatNumber(2.999F, "0.0#"), "3.0");
}

TEST(NumberFormat, writesWholeNumbers)
{
    EXPECT_EQ(formatNumber(7.0F, "0"), "7");
    EXPECT_EQ(formatNumber(0.0F, "0"), "0");
    EXPECT_EQ(formatNumber(7.5F, "0"), "8");
    EXPECT_EQ(formatNumber(41.0F, "####"), "41");
    EXPECT_EQ(formatNumber(12345.0F, "####"), "12345");
    EXPECT_EQ(formatNumber(-3.0F, "###"), "-3");
}

TEST(NumberFormat, writesNoDigitForZeroWhenNoneIsAskedFor)
{
    EXPECT_EQ(formatNumber(0.0F, "####"), "");
    EXPECT_EQ(formatNumber(0.4F, "####"), "");
    EXPECT_EQ(formatNumber(-0.4F, "####"), "");
}

TEST(NumberFormat, writesScientificForm)
{
    EXPECT_EQ(formatNumber(-0.0496966F, "0.00000E+00"), "-4.96966E-02");
    EXPECT_EQ(formatNumber(0.0F, "0.00000E+00"), "0.00000E+00");
    EXPECT_EQ(formatNumber(12345678.0F, "0.00000E+00"), "1.23457E+07");
    EXPECT_EQ(formatNumber(1E-40F, "0.00000E+00"), "1.00000E-40");
    EXPECT_EQ(formatNumber(1E+200, "0.00000E+00"), "1.00000E+200");
}

TEST(NumberFormat, roundsHalfWayAwayFromZero)
{
    EXPECT_EQ(formatNumber(0.125, "0.00"), "0.13");
    EXPECT_EQ(formatNumber(-0.125, "0.00"), "-0.13");
    EXPECT_EQ(formatNumber(2.5, "0"), "3");
    EXPECT_EQ(formatNumber(0.0005F, "##0.000"), "0.001");
    EXPECT_EQ(formatNumber(1.0005, "0.000"), "1.001"); // by its shortest text, not its binary value
    EXPECT_EQ(formatNumber(1.000005F, "0.00000E+00"), "1.00001E+00");
}

TEST(NumberFormat, carriesThroughNines)
{
    EXPECT_EQ(formatNumber(9.9995F, "##0.000"), "10.000");
    EXPECT_EQ(formatNumber(99999.9999, "####0.000"), "100000.000");
    EXPECT_EQ(formatNumber(9.999995, "0.00000E+00"), "1.00000E+01");
    EXPECT_EQ(formatNumber(0.9999999F, "0.00000E+00"), "1.00000E+00");
    EXPECT_EQ(formatNumber(0.95, "0.0#"), "0.95");
    EXPECT_EQ(formatNumber(0.5, "0"), "1");
}

TEST(NumberFormat, givesNoSignToANegativeThatRoundsToZero)
{
    EXPECT_EQ(formatNumber(-0.0004F, "##0.000"), "0.000");
    EXPECT_EQ(formatNumber(-0.0F, "##0.000"), "0.000");
    EXPECT_EQ(formatNumber(-0.0005F, "##0.000"), "-0.001");
    EXPECT_EQ(formatNumber(-0.0F, "0.00000E+00"), "0.00000E+00");
}

TEST(NumberFormat, refusesOtherPatternsAndValuesThatAreNoNumber)
{
    EXPECT_THROW(formatNumber(1.0F, "0,0"), RunTimeError);
    EXPECT_THROW(formatNumber(1.0F, "0.0.0"), RunTimeError);
    EXPECT_THROW(formatNumber(1.0F, "0.0E+"), RunTimeError);
    EXPECT_THROW(formatNumber(1.0F, "0.0E+x"), RunTimeError);
    EXPECT_THROW(formatNumber(std::numeric_limits<float>::infinity(), "0"), RunTimeError);
    EXPECT_THROW(formatNumber(std::numeric_limits<double>::quiet_NaN(), "0"), RunTimeError);
}

} // namespace

} // namespace tarsil
