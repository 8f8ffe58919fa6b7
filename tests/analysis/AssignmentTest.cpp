// SPDX-License-Identifier: Apache-2.0
#include "analysis/Assignment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

using namespace tarsil;

namespace {

double leastCostOfAll(const CostMatrix& costs)
{
    std::vector<std::size_t> columns(costs.size());
    std::iota(columns.begin(), columns.end(), std::size_t {0});
    double least = totalCost(costs, columns);
    while (std::next_permutation(columns.begin(), columns.end()))
        least = std::min(least, totalCost(costs, columns));
    return least;
}

} // namespace

TEST(Assignment, costsAsLittleAsTheBestPermutation)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> cost(0, 100);
    for (std::size_t size = 1; size <= 7; ++size) {
        for (int turn = 0; turn < 30; ++turn) {
            CostMatrix costs(size);
            for (std::size_t row = 0; row < size; ++row) {
                for (std::size_t column = 0; column < size; ++column)
                    costs.at(row, column) = cost(random);
            }
            const std::vector<std::size_t> columns = leastCostAssignment(costs);
            std::vector<std::size_t> sorted = columns;
            std::sort(sorted.begin(), sorted.end());
            for (std::size_t i = 0; i < size; ++i)
                ASSERT_EQ(sorted[i], i) << "each column once";
            EXPECT_NEAR(totalCost(costs, columns), leastCostOfAll(costs), 1e-9);
        }
    }
}

TEST(Assignment, reassignsRowsWhereTheCheapestColumnIsWantedTwice)
{
    CostMatrix costs(3);
    const double rows[3][3] = {{1, 2, 3}, {1, 4, 6}, {1, 5, 9}};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            costs.at(row, column) = rows[row][column];
    }
    EXPECT_EQ(leastCostAssignment(costs), (std::vector<std::size_t> {2, 1, 0}));
}

TEST(Assignment, ofNothingIsNothing)
{
    EXPECT_TRUE(leastCostAssignment(CostMatrix(0)).empty());
}
