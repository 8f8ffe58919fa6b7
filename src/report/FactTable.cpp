// SPDX-License-Identifier: Apache-2.0
#include "report/FactTable.h"

#include "base/files/FileFacts.h"
#include "base/text/AsciiText.h"
#include "base/user/RunTimeError.h"

#include <utility>

namespace tarsil {

void FactTable::add(std::string_view label, const std::string& value, CellStyle style)
{
    if (isBlankText(value))
        return;
    const std::size_t row = m_sheet.rowCount() + 1;
    m_sheet.setText(row, 1, label);
    m_sheet.setText(row, 2, value);
    m_sheet.setRowStyle(row, style);
}

ReportTable FactTable::take()
{
    return {std::move(m_sheet), false};
}

ShownFacts shownFactsOf(const std::string& path)
{
    try {
        const FileFacts facts = factsOf(path);
        return {std::to_string(facts.size) + " bytes", facts.modified + " UTC", facts.sha256};
    } catch (const RunTimeError& error) {
        return {{}, {}, error.description()};
    }
}

} // namespace tarsil
