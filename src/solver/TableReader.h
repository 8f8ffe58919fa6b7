// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "solver/PageHeader.h"
#include "solver/SummaryTable.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tarsil::solver {

/// Finds the flutter summaries in the lines of a printed output, one line at a time.
class TableReader
{
public:
    /// Reads the next line with its line end; only the last line of a file may lack it.
    void readLine(std::string_view line);

    /// Counts irrelevant lines, which are not passed on.
    void passOver(std::size_t lines) { m_file.lines += lines; }

    /// Whether the next line belongs to an open table.
    bool isInTable() const { return m_state != State::BetweenTables; }

    /// Ends the last table and returns what was read.
    SummaryFile result();

private:
    enum class State { BetweenTables, BeforePointLine, BeforeHeadings, BeforeRows, InRows };

    void startTable();
    void readPoint(std::string_view line);
    void readHeadings(std::string_view line);
    void readTableRow(std::string_view line, bool isWhole);
    bool isCutRow(std::string_view line, bool isWhole) const;
    void finishTable();
    void leaveOut(std::string_view reason);
    void readCard(std::string_view line);
    void note(std::size_t line, std::string text);
    void remember(std::string_view line);

    SummaryFile m_file;
    SummaryTable m_table; ///< the open table
    State m_state = State::BetweenTables;
    std::size_t m_linesLeft = 0; ///< lines in which the next part of the heading must appear
    std::array<std::size_t, 2>
        m_rowLengths {}; ///< characters of the last row without and with density
    std::size_t m_unlisted = 0; ///< number of entries beyond the limit of the log
    std::array<std::string, linesAboveTitle> m_last; ///< the last lines, as a ring buffer
    std::size_t m_nextOfLast = 0;
};

} // namespace tarsil::solver
