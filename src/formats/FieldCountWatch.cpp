// SPDX-License-Identifier: Apache-2.0
#include "formats/FieldCountWatch.h"

#include "formats/Ev2Layout.h"
#include "formats/FindingList.h"
#include "formats/ResultRow.h"

namespace tarsil {

void FieldCountWatch::addRow(std::size_t line, std::size_t fields)
{
    if (m_usual == 0)
        m_usual = fields;
    if (fields != m_fields) {
        closeRun();
        m_fields = fields;
        m_firstLine = line;
    }
    m_lastLine = line;
    followFactors(line, fields);
}

void FieldCountWatch::finish()
{
    closeRun();
    if (!m_hasFactors && m_lineWithoutFactors > 0)
        m_findings.addSummary(m_lineWithoutFactors,
                              "from here on no row has participation factors: those of the rows "
                              "before it do not count");
}

void FieldCountWatch::closeRun()
{
    const bool isOther = m_fields != m_usual;
    const bool isOdd =
        m_fields > resultfield::mostWithoutFactors && ev2layout::factorStep(m_fields) == 0;
    if (m_fields == 0 || (!isOther && !isOdd))
        return;
    std::string text = std::to_string(m_fields) + " fields";
    if (m_lastLine > m_firstLine)
        text += ", up to line " + std::to_string(m_lastLine);
    if (isOther)
        text += ", but the first row has " + std::to_string(m_usual);
    if (isOdd)
        text += ": no participation factors are read from them (rows of up to 11 fields have none, "
                "rows of 21 or 26 have five)";
    m_findings.add(m_firstLine, std::move(text));
}

/// The last row that decides whether there are factors applies to the whole file.
void FieldCountWatch::followFactors(std::size_t line, std::size_t fields)
{
    if (ev2layout::factorStep(fields) > 0) {
        m_hasFactors = true;
    } else if (fields <= resultfield::mostWithoutFactors && m_hasFactors) {
        m_hasFactors = false;
        m_lineWithoutFactors = line;
    }
}

} // namespace tarsil
