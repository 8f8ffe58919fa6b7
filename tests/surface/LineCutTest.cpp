// SPDX-License-Identifier: Apache-2.0
#include "surface/LineCut.h"

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

/// Expects the part of a line inside the rectangle from (0, 0) to (10, 10).
void expectCut(QPointF from, QPointF to, QPointF cutFrom, QPointF cutTo)
{
    ASSERT_TRUE(cutLine(from, to, QRectF(0, 0, 10, 10)));
    EXPECT_EQ(from, cutFrom);
    EXPECT_EQ(to, cutTo);
}

void expectNothing(QPointF from, QPointF to)
{
    EXPECT_FALSE(cutLine(from, to, QRectF(0, 0, 10, 10)));
}

} // namespace

TEST(LineCut, leavesALineWithin)
{
    expectCut({0, 0}, {10, 10}, {0, 0}, {10, 10});
    expectCut({3, 4}, {3, 4}, {3, 4}, {3, 4});
}

TEST(LineCut, keepsTheSlopeWhereItCuts)
{
    // The line of slope 1/2 through (5, 5) enters at row 2.5 and leaves at row 7.5.
    expectCut({-5, 0}, {15, 10}, {0, 2.5}, {10, 7.5});
    expectCut({15, 10}, {-5, 0}, {10, 7.5}, {0, 2.5});
    expectCut({5, -100}, {5, 100}, {5, 0}, {5, 10});
}

TEST(LineCut, leavesNothingOfALineThatPassesBy)
{
    expectNothing({-1, -1}, {-1, 11});
    expectNothing({-6, 5}, {5, 17});
    expectNothing({11, 11}, {11, 11});
}

TEST(LineCut, reachesTheGuardBandOnAllSides)
{
    QPointF from(-30, 0);
    QPointF to(0, 40);
    ASSERT_TRUE(cutLine(from, to, guardBand(20)));
    // From (-30, 0) with three columns for four rows: column -20 at row 13.33, row 20 at column
    // -15.
    EXPECT_NEAR(from.y(), 40.0 / 3, 1e-12);
    EXPECT_DOUBLE_EQ(to.x(), -15);
}
