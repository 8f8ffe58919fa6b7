// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tarsil {

// Cells as spreadsheets copy them: a line for each row, tabs between the cells. A cell with a tab,
// a line break or a quotation mark is quoted, its quotation marks doubled.

using CellRows = std::vector<QStringList>;

QString textOfCells(const CellRows& rows);

/// Accepts any text. A line break at the end begins no row.
CellRows cellsOfText(const QString& text);

} // namespace tarsil
