// SPDX-License-Identifier: Apache-2.0
#include "report/TableColumns.h"

#include "report/ReportFont.h"
#include "report/ReportText.h"

#include <gmock/gmock.h>

#include <numeric>

using namespace tarsil;
using ::testing::ElementsAre;

namespace {

constexpr double page = 742;

/// A table of `columns` columns with a text in the first one and numbers in the others.
ReportTable numbers(std::size_t columns)
{
    ReportTable table;
    table.cells.setText(1, 1, "File");
    table.cells.setText(2, 1, "a_long_name_of_an_evolution.ev2");
    for (std::size_t column = 2; column <= columns; ++column) {
        table.cells.setText(1, column, "Start (KEAS)");
        table.cells.setNumber(2, column, 123.456787109375);
    }
    return table;
}

double sum(const std::vector<double>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

} // namespace

TEST(TableColumnsTest, givesAFewColumnsTheSpaceThatTheyNeed)
{
    const TableColumns columns = fitColumns(numbers(3), page).value();
    ASSERT_EQ(columns.parts.size(), 1U);
    EXPECT_EQ(columns.points, tableFontSizes.front());
    EXPECT_LT(sum(columns.parts[0].widths), page / 2);
    const double text =
        widthOf(QStringLiteral("a_long_name_of_an_evolution.ev2"), {columns.points, false});
    EXPECT_GE(columns.parts[0].widths[0], text + 2 * cellPadding);
}

TEST(TableColumnsTest, makesTheLettersOfAWideTableSmaller)
{
    const TableColumns columns = fitColumns(numbers(17), page).value();
    EXPECT_EQ(columns.parts.size(), 1U);
    EXPECT_LT(columns.points, tableFontSizes.front());
    EXPECT_LE(sum(columns.parts[0].widths), page + 0.01);
}

TEST(TableColumnsTest, keepsTheNamesOfACrowdedTableOnOneLine)
{
    ReportTable table = numbers(17);
    const QString remark = QStringLiteral("a remark that is as long as that of a doubtful step ");
    table.cells.setText(1, 18, "Remark");
    table.cells.setText(2, 18, remark.repeated(5).toStdString());
    const TableColumns columns = fitColumns(table, page).value();
    ASSERT_EQ(columns.parts.size(), 1U);
    const std::vector<double>& widths = columns.parts[0].widths;
    EXPECT_LE(sum(widths), page + 0.01);
    const double name =
        widthOf(QStringLiteral("a_long_name_of_an_evolution.ev2"), {columns.points, false});
    EXPECT_GE(widths.front(), name + 2 * cellPadding);
    EXPECT_LT(widths.back(), name) << "the remark is wrapped instead";
}

TEST(TableColumnsTest, splitsATableWhoseNumbersDoNotFit)
{
    ReportTable table = numbers(60);
    table.keyColumns = 2;
    const TableColumns columns = fitColumns(table, page).value();
    ASSERT_GT(columns.parts.size(), 1U);
    std::size_t next = 3;
    for (const TablePart& part : columns.parts) {
        EXPECT_LE(sum(part.widths), page + 0.01);
        EXPECT_THAT(std::vector(part.columns.begin(), part.columns.begin() + 2), ElementsAre(1, 2));
        for (std::size_t i = 2; i < part.columns.size(); ++i) {
            EXPECT_EQ(part.columns[i], next++) << "each column once, in order";
            EXPECT_GE(part.widths[i],
                      widthOf(QStringLiteral("123.45679"), {columns.points, false}));
        }
    }
    EXPECT_EQ(next, 61U);
}

TEST(TableColumnsTest, extendsATextOverTheEmptyCellsToItsRight)
{
    Sheet sheet;
    sheet.setText(1, 1, "File");
    sheet.setText(1, 3, "Speed");
    sheet.setNumber(2, 1, 7);
    sheet.setText(2, 3, "text");
    sheet.setText(2, 5, "end");
    const auto shapeOf = [&sheet](std::size_t row) {
        std::string shape;
        for (const RowCell& cell : rowCells(sheet, row, {1, 2, 3, 4, 5}))
            shape += cell.text.toStdString() + ":" + std::to_string(cell.column) + "+"
                + std::to_string(cell.span) + " ";
        return shape;
    };
    EXPECT_EQ(shapeOf(1), "File:0+2 Speed:2+3 ");
    EXPECT_EQ(shapeOf(2), "7:0+1 :1+1 text:2+2 end:4+1 ") << "a number does not extend";
}

TEST(TableColumnsTest, repeatsTheHeadingOfABlockThatIsSplit)
{
    Sheet sheet;
    sheet.setText(1, 1, "File");
    sheet.setText(1, 2, "Speed");
    sheet.setNumber(2, 4, 1);
    const std::vector<RowCell> cells = rowCells(sheet, 1, {1, 4});
    ASSERT_EQ(cells.size(), 2U);
    EXPECT_EQ(cells[1].text, QStringLiteral("Speed"));
}

TEST(TableColumnsTest, showsNumbersWithTheDigitsOfTheFiles)
{
    EXPECT_EQ(cellText(352.1), QStringLiteral("352.1"));
    EXPECT_EQ(cellText(-2133.0912345678), QStringLiteral("-2133.0913"));
    EXPECT_EQ(cellText(std::string("a\tb")), QStringLiteral("a b"));
}
