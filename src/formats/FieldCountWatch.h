#pragma once

#include <cstddef>

namespace tarsil {

class FindingList;

/// Follows the numbers of fields in the rows of a result table: finds rows that have more or fewer
/// than the first one, numbers of fields that carry no participation factors, and factors that do
/// not count since rows without any come after them. Rows of one number that follow each other make
/// one finding.
class FieldCountWatch
{
public:
    explicit FieldCountWatch(FindingList& findings) : m_findings(findings) { }

    void addRow(std::size_t line, std::size_t fields);

    /// Closes the last run of rows.
    void finish();

private:
    void closeRun();
    void followFactors(std::size_t line, std::size_t fields);

    FindingList& m_findings;
    std::size_t m_usual = 0; ///< fields of the first row; 0: no row yet
    std::size_t m_fields = 0; ///< of the rows being followed
    std::size_t m_firstLine = 0; ///< of these rows
    std::size_t m_lastLine = 0;
    bool m_hasFactors = false; ///< what the reader makes of the rows so far
    std::size_t m_lineWithoutFactors = 0; ///< which ended them; 0: none did
};

} // namespace tarsil
