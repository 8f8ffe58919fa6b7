// SPDX-License-Identifier: Apache-2.0

// Solver outputs truncated anywhere, because a disk was full or a run was killed.

#include "base/user/RunTimeError.h"
#include "solver/Ev2Text.h"
#include "solver/PrintedPages.h"
#include "solver/SolverRun.h"
#include "solver/UnitEvidence.h"
#include "support/TestFiles.h"

#include "model/EVM.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

using namespace tarsil;
using namespace tarsil::solver;
using namespace tarsil::test;

namespace {

std::size_t rowsOf(const SummaryFile& file)
{
    std::size_t rows = 0;
    for (const SummaryTable& table : file.tables)
        rows += table.rows.size();
    return rows;
}

/// Runs the whole import of a text. Returns the number of rows of its tables.
std::size_t importText(std::string_view text)
{
    const SummaryFile file = readSummariesOfText(text);
    const std::vector<SolverRun> runs = runsOf(file);
    for (const SolverRun& run : runs)
        EXPECT_FALSE(ev2Text(EVM(), importRun(run, {}).modes).empty());
    EXPECT_EQ(evidenceText(unitEvidence(runs), file).empty(), !unitEvidence(runs).chord);
    return rowsOf(file);
}

void expectNeverMoreThanTheWhole(std::string_view text)
{
    const std::size_t whole = importText(text);
    EXPECT_GT(whole, 0U);
    std::size_t before = 0;
    for (std::size_t size = 0; size <= text.size(); ++size) {
        const std::size_t rows = importText(text.substr(0, size));
        ASSERT_LE(rows, whole) << "cut after " << size << " bytes";
        ASSERT_GE(rows, before) << "cut after " << size << " bytes";
        before = rows;
    }
}

} // namespace

TEST(CutSummary, hasNoMoreRowsThanTheWholeOfTwoPagesOfPk)
{
    const std::vector<std::string> rows = {row("1.0E+02"), row("*****"), row("2.0E+02")};
    const std::string page = printed({.rows = rows});
    expectNeverMoreThanTheWhole(page + page + printed({.pointLine = pointLine(2), .rows = rows})
                                + "1  END\n");
}

TEST(CutSummary, hasNoMoreRowsThanTheWholeOfARunWithDensities)
{
    const std::string line = " 0.5 2.0 0.725 0.5 1.6E+02 -0.01 5.0 -0.15 31.4";
    expectNeverMoreThanTheWhole(printed({.pointLine = "   POINT =    1     METHOD = PKNL",
                                         .hasDensity = true,
                                         .rows = {line, " 0.5 2.0 0.725 0.5 UNSTABL-SYSTEM", line}})
                                + "\r\n1  END\r\n");
}

TEST(CutSummary, hasNoMoreRowsThanTheWholeOfLoopsOfK)
{
    std::string text;
    for (int loop = 1; loop <= 3; ++loop)
        text += printed({.subcase = "",
                         .pointLine = pointLine(loop, "0.4500", "9.6700E-01", "K"),
                         .rows = {row("1.0E+02"), row("2.0E+02")}});
    expectNeverMoreThanTheWhole(text);
}

/// The line end of the last row is missing, as some editors leave it.
TEST(CutSummary, keepsAWholeRowThatIsAloneOnTheLastPage)
{
    const std::string page = printed({.rows = {row("1.0E+02")}});
    std::string text = page + page;
    text.pop_back();
    EXPECT_EQ(importText(text), 2U);
    text.pop_back();
    EXPECT_EQ(importText(text), 1U) << "the last digit is missing";
}

/// Truncates at every byte around the first page breaks, and at some bytes between.
TEST(CutSummary, hasNoMoreRowsThanTheWholeOfASample)
{
    const std::string text = fileBytes(sample("goland_clean.f06"));
    const std::size_t whole = importText(text);
    EXPECT_EQ(whole, 3U * 7 * 26);
    constexpr std::size_t around = 150;
    constexpr std::size_t step = 997;
    std::size_t border = 0;
    for (int page = 0; page < 2; ++page) {
        border = text.find("\n1  ", border + 1);
        for (std::size_t size = border - around; size < border + around; ++size)
            ASSERT_LE(importText(std::string_view(text).substr(0, size)), whole) << size;
    }
    for (std::size_t size = 0; size < text.size(); size += step)
        ASSERT_LE(importText(std::string_view(text).substr(0, size)), whole) << size;
}
