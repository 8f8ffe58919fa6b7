// SPDX-License-Identifier: Apache-2.0
#include "solver/RowText.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tarsil;
using namespace tarsil::solver;

namespace {

RowKind kindOf(const char* line, std::size_t count = numbersOfRow)
{
    SummaryRow row;
    std::string reason;
    return parseRow(line, count, row, reason);
}

} // namespace

TEST(PrintedNumber, mayLackTheLetterOfItsExponent)
{
    double value = 0;
    EXPECT_TRUE(parsePrintedNumber("1.4247944-120", value));
    EXPECT_DOUBLE_EQ(value, 1.4247944e-120);
    EXPECT_TRUE(parsePrintedNumber("-2.5+3", value));
    EXPECT_DOUBLE_EQ(value, -2500);
    EXPECT_TRUE(parsePrintedNumber("-1.5000000E-01", value));
    EXPECT_DOUBLE_EQ(value, -0.15);
}

TEST(PrintedNumber, isNothingElse)
{
    double value = 0;
    for (const char* text : {"", "-", "1.2E", "ABC", "1.5-", "-1-2-3", "****", "INF", "NaN", "1,5"})
        EXPECT_FALSE(parsePrintedNumber(text, value)) << text;
}

TEST(SummaryRow, hasSevenNumbersAfterABlankColumn)
{
    SummaryRow row;
    std::string reason;
    ASSERT_EQ(parseRow("  0.5 2.0 1.0E+02 -1.0E-02 5.0 -0.15 31.4", numbersOfRow, row, reason),
              RowKind::Row);
    EXPECT_EQ(row.k, 0.5);
    EXPECT_EQ(row.inverseK, 2);
    EXPECT_EQ(row.speed, 100);
    EXPECT_EQ(row.damping, -0.01);
    EXPECT_EQ(row.frequency, 5);
    EXPECT_EQ(row.re, -0.15);
    EXPECT_EQ(row.im, 31.4);
    EXPECT_TRUE(std::isnan(row.density));
    EXPECT_TRUE(std::isnan(row.mach));
}

TEST(SummaryRow, hasNineNumbersWithDensityAndMach)
{
    SummaryRow row;
    std::string reason;
    ASSERT_EQ(parseRow(" 0.5 2.0 1.225 0.8 1.0E+02 -1.0E-02 5.0 -0.15 31.4",
                       numbersOfRowWithDensity, row, reason),
              RowKind::Row);
    EXPECT_EQ(row.density, 1.225);
    EXPECT_EQ(row.mach, 0.8);
    EXPECT_EQ(row.speed, 100);
    EXPECT_EQ(row.im, 31.4);
}

TEST(SummaryRow, mayHaveStarsForTheReducedFrequencyOnly)
{
    EXPECT_EQ(kindOf(" ****** ******** 1.0 -0.1 5.0 -0.1 31.4"), RowKind::Row);
    EXPECT_EQ(kindOf(" 0.0 INF 1.0 -0.1 5.0 -0.1 31.4"), RowKind::Row);
    EXPECT_EQ(kindOf(" 0.0 INFINITE 1.0 -0.1 5.0 -0.1 31.4"), RowKind::Row);
    EXPECT_EQ(kindOf(" 0.5 2.0 ******** -0.1 5.0 -0.1 31.4"), RowKind::Unusable);
    EXPECT_EQ(kindOf(" 0.5 2.0 1.0 -INF 5.0 -0.1 31.4"), RowKind::Unusable);
    EXPECT_EQ(kindOf(" 0.5 2.0 1.0 -0.1 ****** -0.1 31.4"), RowKind::Unusable);
}

TEST(SummaryRow, endsTheTableWhenItIsNoRow)
{
    EXPECT_EQ(kindOf("1    WING"), RowKind::NoRow);
    EXPECT_EQ(kindOf("0.5 2.0 1.0 -0.1 5.0 -0.1 31.4"), RowKind::NoRow) << "column 1";
    EXPECT_EQ(kindOf(" 0.5 2.0 1.0 -0.1 5.0 -0.1"), RowKind::NoRow) << "six numbers";
    EXPECT_EQ(kindOf(" 0.5 2.0 1.0 -0.1 5.0 -0.1 31.4 1"), RowKind::NoRow) << "eight numbers";
    EXPECT_EQ(kindOf(" 0.5 2.0 FAST -0.1 5.0 -0.1 31.4"), RowKind::NoRow) << "a word";
    EXPECT_EQ(kindOf(" 1 2 3 4 5 6 7 8 9 10 11 12"), RowKind::NoRow) << "many numbers";
}

TEST(SummaryRow, isBlankOrANoteOnTheSystem)
{
    EXPECT_EQ(kindOf(""), RowKind::Blank);
    EXPECT_EQ(kindOf("      "), RowKind::Blank);
    EXPECT_EQ(kindOf("    UNSTABL-SYSTEM  1.0"), RowKind::SystemNote);
    EXPECT_EQ(kindOf("    STABLE-SYSTEM-  1.0 2.0"), RowKind::SystemNote);
}
