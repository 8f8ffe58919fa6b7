// SPDX-License-Identifier: Apache-2.0
#include "solver/PageHeader.h"

#include <gtest/gtest.h>

using namespace tarsil;
using namespace tarsil::solver;

namespace {

SummaryTable headerOf(const LinesAbove& lines)
{
    SummaryTable table;
    readPageHeader(lines, table);
    return table;
}

} // namespace

TEST(SummaryTitle, standsAtTheEndOfALineWithTwoBlanks)
{
    EXPECT_TRUE(isSummaryTitle("0              FLUTTER  SUMMARY"));
    EXPECT_TRUE(isSummaryTitle("0              FLUTTER  SUMMARY   "));
    EXPECT_FALSE(isSummaryTitle("0              FLUTTER SUMMARY"));
    EXPECT_FALSE(isSummaryTitle("0   FLUTTER  SUMMARY OF A WING"));
    EXPECT_FALSE(isSummaryTitle(""));
}

TEST(PageHeader, givesTitleSubtitleLabelSubcaseAndBanner)
{
    const SummaryTable table = headerOf({"", "",
                                         "1    BAH WING                          SEPTEMBER  14, "
                                         "2016  MSC.NASTRAN  6/17/05   PAGE    21",
                                         "      FLUTTER ANALYSIS          ",
                                         "0     PK METHOD                       SUBCASE 12  "});
    EXPECT_EQ(table.title, "BAH WING");
    EXPECT_EQ(table.subtitle, "FLUTTER ANALYSIS");
    EXPECT_EQ(table.label, "PK METHOD");
    EXPECT_EQ(table.key.subcase, "12");
    EXPECT_EQ(table.banner, "MSC.NASTRAN  6/17/05");
    EXPECT_EQ(table.date, "SEPTEMBER  14, 2016");
}

TEST(PageHeader, ofAnOldSolverHasItsBannerBeforeTheDate)
{
    const SummaryTable table = headerOf(
        {"", "",
         "1     SWEPT WING           /    95 SUN SOLARIS NASTRAN    / MAY 17, 95 / PAGE    24",
         "      PROBLEM", "0     K VALUES"});
    EXPECT_EQ(table.title, "SWEPT WING");
    EXPECT_EQ(table.banner, "95 SUN SOLARIS NASTRAN");
    EXPECT_EQ(table.label, "K VALUES");
    EXPECT_FALSE(table.key.subcase);
}

TEST(PageHeader, takesASubcaseOnlyFromTheEndOfALine)
{
    EXPECT_FALSE(headerOf({"", "", "1  METHOD OF SUBCASE 7 AND MORE", "", ""}).key.subcase);
    EXPECT_FALSE(headerOf({"", "", "", "", "0   SUBCASE"}).key.subcase);
    EXPECT_EQ(headerOf({"", "", "", "", "0   SUBCASE = 3"}).key.subcase, "3");
}

TEST(PointLine, holdsPointMethodAndWhatElseIsPrinted)
{
    SummaryTable table;
    ASSERT_TRUE(
        readPointLine("   POINT =    4     MACH NUMBER =  0.4500     SIGMA VALUE =  15.0    "
                      "DENSITY RATIO =  9.6700E-01     METHOD = K   ",
                      table));
    EXPECT_EQ(table.point, 4);
    EXPECT_EQ(table.key.method, "K");
    EXPECT_EQ(table.key.mach, 0.45);
    EXPECT_EQ(table.key.sigmaValue, 15.0);
    EXPECT_EQ(table.key.densityRatio, 0.967);
    ASSERT_TRUE(readPointLine("       POINT =    1     METHOD = PKNL", table));
    EXPECT_EQ(table.key.method, "PKNL");
    EXPECT_FALSE(table.key.mach);
    EXPECT_FALSE(table.key.densityRatio);
}

TEST(PointLine, needsANumberAndAMethod)
{
    SummaryTable table;
    EXPECT_FALSE(readPointLine("   CONFIGURATION = AEROSG2D     XY-SYMMETRY = ASYMMETRIC", table));
    EXPECT_FALSE(readPointLine("   POINT =    1     MACH NUMBER =  0.3", table));
    EXPECT_FALSE(readPointLine("   POINT =  ONE   METHOD = PK", table));
    EXPECT_FALSE(readPointLine("   METHOD = PK", table));
}
