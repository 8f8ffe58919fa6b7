// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace tarsil {

class FindingList;

/// Follows the numbers of fields in the rows of a result table. Finds rows whose number differs
/// from the first one, numbers of fields without participation factors, and factors that are
/// ignored because later rows have none. Consecutive rows of the same number give one finding.
class FieldCountWatch
{
public:
    explicit FieldCountWatch(FindingList& findings) : m_findings(findings) { }

    void addRow(std::size_t line, std::size_t fields);

    /// Ends the last run of rows.
    void finish();

private:
    void closeRun();
    void followFactors(std::size_t line, std::size_t fields);

    FindingList& m_findings;
    std::size_t m_usual = 0; ///< fields of the first row; 0: no row yet
    std::size_t m_fields = 0; ///< of the current run of rows
    std::size_t m_firstLine = 0; ///< of the current run
    std::size_t m_lastLine = 0;
    bool m_hasFactors = false; ///< what the reader would decide so far
    std::size_t m_lineWithoutFactors = 0; ///< the line that turned factors off; 0: none
};

} // namespace tarsil
