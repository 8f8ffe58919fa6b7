// SPDX-License-Identifier: Apache-2.0
#include "base/numbers/Numbers.h"

#include "base/user/RunTimeError.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>
#include <string>

namespace tarsil {

namespace {

using test::errorOf;
using test::errorTextOf;

// The expected values are literals: the compiler rounds decimal text to the nearest single or
// double.

float single(std::string_view text)
{
    float value = -999.0F;
    EXPECT_EQ(parseSingle(text, value), NumberStatus::Ok) << '"' << text << '"';
    return value;
}

NumberStatus statusOf(std::string_view text)
{
    float value = 0;
    return parseSingle(text, value);
}

int integer16(std::string_view text)
{
    std::int16_t value = -999;
    EXPECT_EQ(parseInteger16(text, value), NumberStatus::Ok) << '"' << text << '"';
    return value;
}

NumberStatus integerStatusOf(std::string_view text)
{
    std::int16_t value = 0;
    return parseInteger16(text, value);
}

TEST(Numbers, acceptsEveryWayToWriteANumber)
{
    EXPECT_EQ(single("5"), 5.0F);
    EXPECT_EQ(single("-5"), -5.0F);
    EXPECT_EQ(single("+.5"), 0.5F);
    EXPECT_EQ(single("5."), 5.0F);
    EXPECT_EQ(single("-.25"), -0.25F);
    EXPECT_EQ(single("0.01500"), 0.015F);
    EXPECT_EQ(single("00012.50"), 12.5F);
}

TEST(Numbers, acceptsFourLettersForTheExponent)
{
    EXPECT_EQ(single("1.5E2"), 150.0F);
    EXPECT_EQ(single("1.5e+02"), 150.0F);
    EXPECT_EQ(single("1.5D-02"), 0.015F);
    EXPECT_EQ(single("1.5d2"), 150.0F);
    EXPECT_EQ(single("-9.72046E-02"), -9.72046E-02F);
    EXPECT_EQ(single(" 1.14964E-02"), 1.14964E-02F);
}

TEST(Numbers, acceptsBlanksAround)
{
    EXPECT_EQ(single("   1.5"), 1.5F);
    EXPECT_EQ(single("1.5   "), 1.5F);
    EXPECT_EQ(single("\t 1.5 \t"), 1.5F);
}

TEST(Numbers, refusesWhatIsNoNumber)
{
    for (const char* text :
         {"",        " ",    "        ", "********", "1.5x",     "x1.5",     "1 5",     "1.5 E2",
          "- 5",     "--5",  "+-5",      ".",        "-",        "+",        "E5",      ".E5",
          "1E",      "1E+",  "1E+-5",    "1E5.0",    "1.2.3",    "1,5",      "0x10",    "inf",
          "nan",     "INF",  "1e5e5",    "1f",       "1_0",      "\xB2",     ".-5",     ". 5",
          "5 .",     "1 .5", "-.",       "1.:5",     "P.5",      "1.5E+1/",  "1.5E+:1", "1.5E,02",
          "1.5E 02", "E+02", ".E+02",    "-E+02",    "1.5 E+02", "1.5E+02 1"}) {
        EXPECT_EQ(statusOf(text), NumberStatus::NotANumber) << '"' << text << '"';
        EXPECT_EQ(integerStatusOf(text), NumberStatus::NotANumber) << '"' << text << '"';
    }
    EXPECT_EQ(statusOf(std::string_view("1.5\0", 4)), NumberStatus::NotANumber);
}

TEST(Numbers, keepsTheSignOfZero)
{
    EXPECT_TRUE(std::signbit(single("-0.0")));
    EXPECT_FALSE(std::signbit(single("0.0")));
    EXPECT_EQ(single("0E+99"), 0.0F);
}

TEST(Numbers, saysOverflowBeyondTheLargestSingle)
{
    EXPECT_EQ(single("3.4028235E+38"), FLT_MAX);
    EXPECT_EQ(single("3.4028235677E+38"), FLT_MAX); // the last below half a unit more
    EXPECT_EQ(statusOf("3.40282358E+38"), NumberStatus::Overflow);
    EXPECT_EQ(statusOf("1E39"), NumberStatus::Overflow);
    EXPECT_EQ(statusOf("-1D999"), NumberStatus::Overflow);
    EXPECT_EQ(statusOf("1E99999999999999999999"), NumberStatus::Overflow);
    EXPECT_EQ(statusOf(std::string(400, '9')), NumberStatus::Overflow);
}

TEST(Numbers, readsWhatIsTooSmallAsZero)
{
    EXPECT_EQ(single("1E-45"), 1E-45F); // rounds up to the smallest single
    EXPECT_EQ(single("1E-50"), 0.0F);
    EXPECT_EQ(single("1E-99999999999999999999"), 0.0F);
    EXPECT_TRUE(std::signbit(single("-1E-50")));
    EXPECT_EQ(single("0." + std::string(400, '0') + "1"), 0.0F);
}

TEST(Numbers, roundsOnlyOnce)
{
    // 1 + 2^-24 is half-way between two singles: it rounds to the even one; slightly more rounds
    // up.
    EXPECT_EQ(single("1.000000059604644775390625"), 1.0F);
    EXPECT_EQ(single("1.0000000596046447753906250000001"), std::nextafter(1.0F, 2.0F));
    EXPECT_EQ(single("1.00000005960464477"), 1.0F);
    EXPECT_EQ(single("1.00000005960464478"), std::nextafter(1.0F, 2.0F));
    EXPECT_EQ(single("16777217"), 16777216.0F); // 2^24 + 1, ties to even
    EXPECT_EQ(single("16777219"), 16777220.0F);
}

TEST(Numbers, roundsIntegersToNearestWithTiesToEven)
{
    EXPECT_EQ(integer16("2.5"), 2);
    EXPECT_EQ(integer16("3.5"), 4);
    EXPECT_EQ(integer16("-2.5"), -2);
    EXPECT_EQ(integer16("0.5"), 0);
    EXPECT_EQ(integer16("2.500001"), 3);
    EXPECT_EQ(integer16(" 41 "), 41);
    EXPECT_EQ(integer16("1.5E2"), 150);
}

TEST(Numbers, keepsIntegersWithinSixteenBits)
{
    EXPECT_EQ(integer16("32767"), 32767);
    EXPECT_EQ(integer16("-32768"), -32768);
    EXPECT_EQ(integer16("32767.49"), 32767);
    EXPECT_EQ(integer16("-32768.5"), -32768); // a tie, to even
    EXPECT_EQ(integerStatusOf("32767.5"), NumberStatus::Overflow); // to even is 32768
    EXPECT_EQ(integerStatusOf("32768"), NumberStatus::Overflow);
    EXPECT_EQ(integerStatusOf("-32769"), NumberStatus::Overflow);
    EXPECT_EQ(integerStatusOf("1E400"), NumberStatus::Overflow);
}

TEST(Numbers, raisesErrorsThatSayWhereAndWhat)
{
    const auto error = errorOf([] { toSingle("****", "EVM", "wing.evm, line 5"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error->source(), "EVM");
    EXPECT_EQ(error->description(), "Type mismatch: wing.evm, line 5: \"****\"");
    EXPECT_EQ(errorTextOf([] { toDouble("1e999", "EVM", ""); }), "6 Overflow: \"1e999\"");
    EXPECT_EQ(errorTextOf([] { toInteger16("40000", "EVM", "row 2"); }),
              "6 Overflow: row 2: \"40000\"");
}

TEST(Numbers, cutsLongTextsInMessages)
{
    EXPECT_EQ(errorTextOf([] { toSingle(std::string(1000, 'x'), "EVM", ""); }),
              "13 Type mismatch: \"" + std::string(60, 'x') + "...\"");
}

TEST(Numbers, roundsDoublesToIntegers)
{
    EXPECT_EQ(roundToInteger16(0.5, "x", ""), 0);
    EXPECT_EQ(roundToInteger16(1.5, "x", ""), 2);
    EXPECT_THROW(roundToInteger16(32767.5, "x", ""), RunTimeError);
    EXPECT_THROW(roundToInteger16(std::numeric_limits<double>::quiet_NaN(), "x", ""), RunTimeError);
}

TEST(Numbers, writesTheShortestTextThatReadsBack)
{
    EXPECT_EQ(shortestText(0.1F), "0.1");
    EXPECT_EQ(shortestText(-0.25F), "-0.25");
    EXPECT_EQ(shortestText(700.0F), "700");
    EXPECT_EQ(shortestText(0.0F), "0");
    EXPECT_EQ(shortestText(-0.0F), "0");
    EXPECT_EQ(shortestText(273.6455F), "273.6455");
    for (const float value : {FLT_MAX, FLT_MIN, 1E-45F, 1.0F / 3.0F, 123456789.0F, 1E-5F, 9.9E-6F})
        EXPECT_EQ(single(shortestText(value)), value);
}

TEST(Numbers, writesNoExponentUpToSixteenDigits)
{
    EXPECT_EQ(shortestText(1e9F), "1000000000");
    EXPECT_EQ(shortestText(2147483647.0), "2147483647");
    EXPECT_EQ(shortestText(-1e15), "-1000000000000000");
    EXPECT_EQ(shortestText(9007199254740991.0), "9007199254740991"); // 2^53 - 1
    EXPECT_EQ(shortestText(1e16), "1e+16");
    EXPECT_EQ(shortestText(12345678901234568.0), "1.2345678901234568e+16");
    EXPECT_EQ(shortestText(1e-6F), "0.000001");
    EXPECT_EQ(shortestText(-9.9e-6), "-0.0000099");
    EXPECT_EQ(shortestText(1e-15), "0.000000000000001");
    EXPECT_EQ(shortestText(1e-16), "1e-16");
    EXPECT_EQ(shortestText(1.2345678e-8), "0.000000012345678");
    EXPECT_EQ(shortestText(1.2345678e-9), "1.2345678e-09");
}

TEST(Numbers, writesAllDigitsOfADoubleWhereAnExponentSavesNone)
{
    EXPECT_EQ(shortestText(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(shortestText(12345.678901234567), "12345.678901234567");
    EXPECT_EQ(shortestText(0.00012345678901234567), "0.00012345678901234567");
}

TEST(Numbers, writesTheDigitsOfALargeSingleThatTellItFromOthers)
{
    // The neighbouring singles are 2^28 = 268435456 away: the digits of the binary value,
    // 3000000028082176, carry no more information.
    EXPECT_EQ(shortestText(3e15F), "3000000000000000");
    EXPECT_EQ(decimalValue(3e15F), 3e15);
    EXPECT_EQ(shortestText(266.23883F), "266.23883");
}

TEST(Numbers, writesWhatIsNoFiniteNumberAsSuch)
{
    EXPECT_EQ(shortestText(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(shortestText(-std::numeric_limits<float>::infinity()), "-inf");
}

TEST(Numbers, givesTheDecimalValueThatIsReadInASingle)
{
    EXPECT_EQ(decimalValue(352.1F), 352.1);
    EXPECT_EQ(decimalValue(-0.03F), -0.03);
    EXPECT_EQ(decimalValue(0.0F), 0.0);
}

TEST(Numbers, readsDoublesToTheLastBit)
{
    double value = 0;
    ASSERT_EQ(parseDouble("0.1", value), NumberStatus::Ok);
    EXPECT_EQ(value, 0.1);
    ASSERT_EQ(parseDouble("1.7976931348623157D+308", value), NumberStatus::Ok);
    EXPECT_EQ(value, DBL_MAX);
    ASSERT_EQ(parseDouble("123456789.123456789123456789", value), NumberStatus::Ok);
    EXPECT_EQ(value, 123456789.123456789123456789);
    EXPECT_EQ(parseDouble("1.8E308", value), NumberStatus::Overflow);
}

} // namespace

} // namespace tarsil
