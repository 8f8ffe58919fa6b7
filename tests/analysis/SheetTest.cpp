// SPDX-License-Identifier: Apache-2.0
#include "analysis/Sheet.h"

#include "base/user/RunTimeError.h"

#include <gtest/gtest.h>

using tarsil::Sheet;

TEST(SheetOfCells, growsAsItIsFilled)
{
    Sheet sheet;
    EXPECT_EQ(sheet.rowCount(), 0U);
    sheet.setText(2, 3, "text");
    sheet.setNumber(1, 5, 1.5);
    EXPECT_EQ(sheet.rowCount(), 2U);
    EXPECT_EQ(sheet.columnCount(), 5U);
    EXPECT_EQ(std::get<std::string>(sheet.cell(2, 3)), "text");
    EXPECT_EQ(std::get<double>(sheet.cell(1, 5)), 1.5);
}

TEST(SheetOfCells, isEmptyWhereNothingWasWritten)
{
    Sheet sheet;
    sheet.setNumber(2, 2, 1);
    for (const auto& [row, column] : {std::pair(1, 1), {2, 1}, {2, 3}, {9, 9}, {0, 1}, {1, 0}})
        EXPECT_TRUE(std::holds_alternative<std::monostate>(
            sheet.cell(static_cast<std::size_t>(row), static_cast<std::size_t>(column))));
}

TEST(SheetOfCells, keepsWhatWasWrittenLast)
{
    Sheet sheet;
    sheet.setText(1, 1, "text");
    sheet.setNumber(1, 1, 2);
    EXPECT_EQ(std::get<double>(sheet.cell(1, 1)), 2.0);
}

TEST(SheetOfCells, countsFromOne)
{
    Sheet sheet;
    EXPECT_THROW(sheet.setText(0, 1, "x"), tarsil::RunTimeError);
    EXPECT_THROW(sheet.setNumber(1, 0, 1), tarsil::RunTimeError);
}

TEST(SheetOfCells, givesNumbersAsTheirShortestText)
{
    EXPECT_EQ(Sheet::textOf(352.1), "352.1");
    EXPECT_EQ(Sheet::textOf(std::string("a")), "a");
    EXPECT_EQ(Sheet::textOf({}), "");
}
