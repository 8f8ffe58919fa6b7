// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarsil {

/// The look of a row in files that have colours.
enum class CellStyle {
    Plain,
    Strong, ///< bold, like the first row of every table
    Good, ///< green
    Warning, ///< yellow
    Bad, ///< red
    Quiet ///< grey
};

/// A table of cells; each is empty, a text or a number. Rows and columns are counted from 1, as in
/// a spreadsheet. The table grows as cells are set.
class Sheet
{
public:
    using Cell = std::variant<std::monostate, std::string, double>;

    /// `title` names the page in a workbook: at most 31 characters, none of []:*?/\.
    explicit Sheet(std::string_view title = "Flutter") : m_title(title) { }

    const std::string& title() const { return m_title; }

    /// Error 9 for row or column 0.
    void setText(std::size_t row, std::size_t column, std::string_view text);
    void setNumber(std::size_t row, std::size_t column, double number);

    /// Error 9 for row 0. A row without a style is plain, except the first, which is strong.
    void setRowStyle(std::size_t row, CellStyle style);

    CellStyle rowStyle(std::size_t row) const;

    /// The cell, empty if it was never set.
    const Cell& cell(std::size_t row, std::size_t column) const;

    std::size_t rowCount() const { return m_rows.size(); }
    std::size_t columnCount() const { return m_columnCount; }

    /// The text of a cell in a delimited text file: the text, or the shortest text of the number.
    static std::string textOf(const Cell& cell);

private:
    Cell& reach(std::size_t row, std::size_t column);

    std::string m_title;
    std::vector<std::vector<Cell>> m_rows;
    std::vector<CellStyle> m_styles = {CellStyle::Strong}; ///< by row; shorter than the table
    std::size_t m_columnCount = 0;
};

} // namespace tarsil
