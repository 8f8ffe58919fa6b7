#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarsil {

/// What a row of a table looks like where its file has colours.
enum class CellStyle {
    Plain,
    Strong, ///< bold, like the first row of every table
    Good, ///< green
    Warning, ///< yellow
    Bad, ///< red
    Quiet ///< grey
};

/// A table of plain cells, each empty, a text or a number; it knows nothing of files and windows.
/// Rows and columns are counted from 1, as in a spreadsheet, and the table grows as it is filled.
class Sheet
{
public:
    using Cell = std::variant<std::monostate, std::string, double>;

    /// The title is that of its page in a workbook, which allows 31 characters and none of []:*?/\.
    explicit Sheet(std::string_view title = "Flutter") : m_title(title) { }

    const std::string& title() const { return m_title; }

    /// Error 9 for row or column 0.
    void setText(std::size_t row, std::size_t column, std::string_view text);
    void setNumber(std::size_t row, std::size_t column, double number);

    /// Error 9 for row 0. A row without a style is plain, but for the first, which is strong.
    void setRowStyle(std::size_t row, CellStyle style);

    CellStyle rowStyle(std::size_t row) const;

    /// The cell; an empty one wherever nothing was written.
    const Cell& cell(std::size_t row, std::size_t column) const;

    std::size_t rowCount() const { return m_rows.size(); }
    std::size_t columnCount() const { return m_columnCount; }

    /// What a delimited text file holds for the cell: the text, or the shortest text of the number.
    static std::string textOf(const Cell& cell);

private:
    Cell& reach(std::size_t row, std::size_t column);

    std::string m_title;
    std::vector<std::vector<Cell>> m_rows;
    std::vector<CellStyle> m_styles = {CellStyle::Strong}; ///< by row, as far as they are set
    std::size_t m_columnCount = 0;
};

} // namespace tarsil
