// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"
#include "solver/SummaryTable.h"
#include "solver/TableReader.h"

#include <string_view>

namespace tarsil::solver {

/// Finds the flutter summaries in a text that arrives in pieces. Pieces without a relevant word,
/// the bulk of a solver's output, are only searched and counted.
class SummaryScanner
{
public:
    /// Reads the next whole lines; only the last line of a file may lack its end.
    void read(std::string_view piece);

    /// Ends the last table and returns what was read.
    SummaryFile result() { return m_reader.result(); }

private:
    void readLines(std::string_view lines);
    void skip(std::string_view piece);

    TableReader m_reader;
};

/// Reads the flutter summaries of a printed solver output, whatever its name. Reads the file once,
/// in pieces, and stores only tables. Without a summary the result has no tables. A binary file is
/// recognised by its first bytes, and the rest is not read. Reports the bytes read after each piece
/// but the last one. Errors: those of reading a file; faults of the text are entries of the log.
SummaryFile readSummaries(std::string_view path, const Progress& progress = {});

} // namespace tarsil::solver
