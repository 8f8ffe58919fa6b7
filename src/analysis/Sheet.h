#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarsil {

/// A table of plain cells, each empty, a text or a number; it knows nothing of files and windows.
/// Rows and columns are counted from 1, as in a spreadsheet, and the table grows as it is filled.
class Sheet
{
public:
    using Cell = std::variant<std::monostate, std::string, double>;

    /// Error 9 for row or column 0.
    void setText(std::size_t row, std::size_t column, std::string_view text);
    void setNumber(std::size_t row, std::size_t column, double number);

    /// The cell; an empty one wherever nothing was written.
    const Cell& cell(std::size_t row, std::size_t column) const;

    std::size_t rowCount() const { return m_rows.size(); }
    std::size_t columnCount() const { return m_columnCount; }

    /// What a delimited text file holds for the cell: the text, or the shortest text of the number.
    static std::string textOf(const Cell& cell);

private:
    Cell& reach(std::size_t row, std::size_t column);

    std::vector<std::vector<Cell>> m_rows;
    std::size_t m_columnCount = 0;
};

} // namespace tarsil
