// SPDX-License-Identifier: Apache-2.0

// Cells as spreadsheets copy them.

#include "datacontrol/CellText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

QStringList row(std::initializer_list<const char*> cells)
{
    QStringList texts;
    for (const char* cell : cells)
        texts.append(QString::fromUtf8(cell));
    return texts;
}

CellRows cellsOf(const char* text)
{
    return cellsOfText(QString::fromUtf8(text));
}

} // namespace

TEST(CellText, hasATabBetweenCellsAndALineForEachRow)
{
    EXPECT_EQ(textOfCells({row({"a", "b"}), row({"", "c"})}).toStdString(), "a\tb\n\tc\n");
    EXPECT_THAT(cellsOf("a\tb\r\n\tc\r\n"), ElementsAre(row({"a", "b"}), row({"", "c"})));
    EXPECT_THAT(cellsOf("a\t"), ElementsAre(row({"a", ""})));
    EXPECT_THAT(cellsOf("a\n\nb"), ElementsAre(row({"a"}), row({""}), row({"b"})));
    EXPECT_THAT(cellsOf(""), IsEmpty());
}

TEST(CellText, quotesCellsWithTabsBreaksAndQuotationMarks)
{
    const CellRows cells = {row({"a\tb", "say \"no\"", "two\nlines"}), row({"\"", "x", ""})};
    EXPECT_EQ(textOfCells({row({"a\tb", "\""})}).toStdString(), "\"a\tb\"\t\"\"\"\"\n");
    EXPECT_EQ(cellsOfText(textOfCells(cells)), cells);
}

TEST(CellText, readsAnUnfinishedQuotationToTheEnd)
{
    EXPECT_THAT(cellsOf("\"a\tb"), ElementsAre(row({"a\tb"})));
    EXPECT_THAT(cellsOf("5\" wing\tb"), ElementsAre(row({"5\" wing", "b"})));
}
