// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/Sheet.h"

#include <QString>

#include <cstddef>
#include <string>
#include <vector>

namespace tarsil {

/// A text of the content as it is shown: decoded, and without invisible characters
/// (`drawableText`).
QString shownText(const std::string& text);

/// The text of a cell. A number has the shortest digits of a single, the precision of the files.
QString cellText(const Sheet::Cell& cell);

/// The colours of a row, as in a workbook: "#rrggbb". `fill` is empty for a white ground.
struct RowLook
{
    QString fill;
    QString color;
    bool isBold = false;
};

RowLook lookOf(CellStyle style);

/// The ground of the first row of a table with headings.
inline const QString headingFill = QStringLiteral("#dde4ec");

/// The lines between cells.
inline const QString gridColor = QStringLiteral("#c4cad1");

/// A cell of a table row. A text extends over the empty cells to its right, as in a spreadsheet.
struct RowCell
{
    std::size_t column = 0; ///< index in the columns of the table
    std::size_t span = 1; ///< number of columns
    QString text;
    bool isNumber = false;
};

/// The cells of a row in some of the columns of a sheet, which are counted from 1. They cover all
/// of these columns.
std::vector<RowCell> rowCells(const Sheet& sheet, std::size_t row,
                              const std::vector<std::size_t>& columns);

} // namespace tarsil
