// SPDX-License-Identifier: Apache-2.0
#include "solver/SummaryReader.h"

#include "solver/PrintedPages.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

using namespace tarsil;
using namespace tarsil::solver;
using namespace tarsil::test;

namespace {

std::size_t rowCount(const SummaryFile& file)
{
    std::size_t count = 0;
    for (const SummaryTable& table : file.tables)
        count += table.rows.size();
    return count;
}

} // namespace

TEST(SummaryReader, findsATableWithItsLines)
{
    const std::string before = "text before\nmore\n";
    const SummaryFile file = readSummariesOfText(
        before + printed({.rows = {row("1.0E+02"), row("2.0E+02")}}) + "1   NEXT\n");
    ASSERT_EQ(file.tables.size(), 1U);
    const SummaryTable& table = file.tables[0];
    EXPECT_EQ(table.point, 1);
    EXPECT_EQ(table.key.subcase, "1");
    EXPECT_EQ(table.firstLine, 6U);
    EXPECT_EQ(table.lastLine, 14U);
    ASSERT_EQ(table.rows.size(), 2U);
    EXPECT_EQ(table.rows[1].speed, 200);
    EXPECT_EQ(table.rows[1].line, 14U);
    EXPECT_TRUE(file.log.empty());
}

TEST(SummaryReader, readsLinesThatEndWithCarriageReturns)
{
    std::string text = printed({.rows = {row("1.0E+02")}});
    for (std::size_t i = text.find('\n'); i != std::string::npos; i = text.find('\n', i + 2))
        text.insert(i, "\r");
    EXPECT_EQ(rowCount(readSummariesOfText(text)), 1U);
}

TEST(SummaryReader, continuesATableOnTheNextPage)
{
    const std::string page = printed({.rows = {row("1.0E+02")}});
    const SummaryFile file = readSummariesOfText(page + page);
    ASSERT_EQ(file.tables.size(), 1U);
    EXPECT_EQ(file.tables[0].rows.size(), 2U);
}

TEST(SummaryReader, ignoresDecoysInTitles)
{
    const SummaryFile file =
        readSummariesOfText(printed({.title = "FLUTTER SUMMARY AND METHOD OF SUBCASE 7",
                                     .subtitle = "POINT = 3     METHOD = KE",
                                     .label = "MACH NUMBER =  0.9 IN A LABEL",
                                     .rows = {row("1.0E+02")}}));
    ASSERT_EQ(file.tables.size(), 1U);
    EXPECT_EQ(file.tables[0].key.subcase, "1");
    EXPECT_EQ(file.tables[0].point, 1);
    EXPECT_EQ(file.tables[0].key.method, "PK");
    EXPECT_EQ(file.tables[0].key.mach, 0.3);
}

TEST(SummaryReader, leavesOutRowsWithoutASpeedAndGoesOn)
{
    const SummaryFile file = readSummariesOfText(printed(
        {.rows = {row("********"), row("1.0E+02"), "      UNSTABL-SYSTEM", row("2.0E+02")}}));
    EXPECT_EQ(rowCount(file), 2U);
    ASSERT_EQ(file.log.size(), 2U);
    EXPECT_EQ(file.log[0].line, 11U);
    EXPECT_NE(file.log[0].text.find("********"), std::string::npos);
    EXPECT_EQ(file.log[1].line, 13U);
}

TEST(SummaryReader, endsATableAtABlankLineOrAWord)
{
    EXPECT_EQ(
        rowCount(readSummariesOfText(printed({.rows = {"", row("1.0E+02"), "", row("2.0E+02")}}))),
        1U);
    const SummaryFile file =
        readSummariesOfText(printed({.rows = {row("1.0E+02"), row("FAST"), row("2.0E+02")}}));
    EXPECT_EQ(rowCount(file), 1U);
    ASSERT_EQ(file.log.size(), 1U);
    EXPECT_NE(file.log[0].text.find("\"FAST\" is not a number"), std::string::npos);
}

TEST(SummaryReader, saysWhichSummaryHasNoPointLineHeadingsOrRows)
{
    const std::string title = "0           FLUTTER  SUMMARY\n";
    const std::string filler = "x\nx\nx\nx\nx\nx\nx\nx\nx\n";
    const SummaryFile file = readSummariesOfText(title + filler + title + pointLine(1) + "\n"
                                                 + filler + printed({.rows = {}}));
    EXPECT_TRUE(file.tables.empty());
    ASSERT_EQ(file.log.size(), 3U);
    EXPECT_NE(file.log[0].text.find("no line with POINT and METHOD"), std::string::npos);
    EXPECT_NE(file.log[1].text.find("no column headings"), std::string::npos);
    EXPECT_NE(file.log[2].text.find("no rows"), std::string::npos);
    EXPECT_EQ(file.log[1].line, 11U);
}

TEST(SummaryReader, findsNothingInOtherFiles)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(readSummaries(folder.write("empty.f06", "")).tables.empty());
    std::string bytes(100000, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * 7919 % 256);
    EXPECT_TRUE(readSummaries(folder.write("binary.f06", bytes)).tables.empty());
    EXPECT_TRUE(readSummariesOfText("0   FLUTTER SUMMARY.\n").tables.empty());
}

TEST(SummaryReader, keepsLineNumbersOverLongTextBetweenTables)
{
    std::string text;
    for (int i = 0; i < 20000; ++i)
        text += "      some other output of the solver\n";
    const TemporaryFolder folder;
    const std::string page = printed({.rows = {row("1.0E+02")}});
    const SummaryFile file = readSummaries(folder.write("long.f06", text + page + text + page));
    ASSERT_EQ(file.tables.size(), 1U) << "the second page continues the first";
    EXPECT_EQ(file.tables[0].firstLine, 20004U);
    EXPECT_EQ(file.tables[0].key.subcase, "1");
    EXPECT_EQ(file.tables[0].lastLine, 40022U);
    EXPECT_EQ(file.lines, 40022U);
}

TEST(SummaryReader, keepsCardsOfTheDeckThatTellUnits)
{
    const SummaryFile file =
        readSummariesOfText("      12-        AERO    0       1.3+4   2.07    1.1-7\n"
                            "PARAM,VREF,12.0\n"
                            "1   AERO DEMO 3\n"
                            "BEGIN    AERO 10 - ANALYSIS\n");
    ASSERT_EQ(file.cards.size(), 2U);
    EXPECT_EQ(file.cards[0].line, 1U);
    EXPECT_EQ(file.cards[1].text, "PARAM,VREF,12.0");
}

TEST(SummaryReader, survivesACutAtEveryByteWithNoOtherRows)
{
    const std::string whole = printed({.rows = {row("1.0000000E+02"), row("2.0000000E+02")}})
        + printed({.pointLine = pointLine(2),
                   .rows = {row("1.0000000E+02"), row("2.0000000E+02")}});
    const std::size_t rows = rowCount(readSummariesOfText(whole));
    ASSERT_EQ(rows, 4U);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const SummaryFile file = readSummariesOfText(whole.substr(0, length));
        EXPECT_LE(rowCount(file), rows);
        for (const SummaryTable& table : file.tables) {
            for (const SummaryRow& row : table.rows)
                EXPECT_EQ(row.im, 31.415927) << "cut after " << length << " bytes";
        }
    }
}
