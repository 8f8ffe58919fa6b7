// SPDX-License-Identifier: Apache-2.0
#include "analysis/Sheet.h"

#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"

#include <algorithm>

namespace tarsil {

void Sheet::setText(std::size_t row, std::size_t column, std::string_view text)
{
    reach(row, column) = std::string(text);
}

void Sheet::setNumber(std::size_t row, std::size_t column, double number)
{
    reach(row, column) = number;
}

void Sheet::setRowStyle(std::size_t row, CellStyle style)
{
    if (row == 0)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "Sheet", "row 0");
    if (m_styles.size() < row)
        m_styles.resize(row, CellStyle::Plain);
    m_styles[row - 1] = style;
}

CellStyle Sheet::rowStyle(std::size_t row) const
{
    return row - 1 < m_styles.size() ? m_styles[row - 1] : CellStyle::Plain;
}

const Sheet::Cell& Sheet::cell(std::size_t row, std::size_t column) const
{
    static const Cell empty;
    // Row or column 0 wraps to the largest index, which is always out of range.
    if (row - 1 >= m_rows.size() || column - 1 >= m_rows[row - 1].size())
        return empty;
    return m_rows[row - 1][column - 1];
}

std::string Sheet::textOf(const Cell& cell)
{
    if (const auto* text = std::get_if<std::string>(&cell))
        return *text;
    if (const auto* number = std::get_if<double>(&cell))
        return shortestText(*number);
    return {};
}

Sheet::Cell& Sheet::reach(std::size_t row, std::size_t column)
{
    if (row == 0 || column == 0)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "Sheet",
                           "row " + std::to_string(row) + ", column " + std::to_string(column));
    if (m_rows.size() < row)
        m_rows.resize(row);
    auto& cells = m_rows[row - 1];
    if (cells.size() < column)
        cells.resize(column);
    m_columnCount = std::max(m_columnCount, column);
    return cells[column - 1];
}

} // namespace tarsil
