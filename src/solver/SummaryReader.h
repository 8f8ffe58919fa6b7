#pragma once

#include "solver/SummaryTable.h"
#include "solver/TableReader.h"

#include <string_view>

namespace tarsil::solver {

/// Finds the flutter summaries in a text that comes in pieces. Pieces that hold nothing of interest
/// are only searched and counted, which is what most of a solver's output is.
class SummaryScanner
{
public:
    /// Reads whole lines that follow those read before; only the last line of a file may lack its
    /// end.
    void read(std::string_view piece);

    /// Ends the last table and returns what was read.
    SummaryFile result() { return m_reader.result(); }

private:
    void readLines(std::string_view lines);
    void skip(std::string_view piece);

    TableReader m_reader;
};

/// Reads the flutter summaries of a printed solver output, whatever its name. The file is read once
/// and in pieces; only tables are kept. Without a summary the result has no tables; a binary file
/// is known by its first bytes and not read on. Errors: those of reading a file; what is wrong in
/// the text itself is an entry of the log.
SummaryFile readSummaries(std::string_view path);

} // namespace tarsil::solver
