// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "datacontrol/CellText.h"
#include "datacontrol/SeriesGridModel.h"

#include <cstddef>
#include <vector>

namespace tarsil {

/// A text for a cell of the grid of series.
struct CellEdit
{
    std::size_t row = 0;
    SeriesColumn column = SeriesColumn::Tag;
    QString text;
};

using CellEdits = std::vector<CellEdit>;

/// The selected cells of the grid: shown rows in increasing order, and columns.
struct GridCells
{
    std::vector<std::size_t> rows;
    std::vector<SeriesColumn> columns;
};

/// The texts of cells, below the headings of their columns. The line of a series is a text of its
/// own.
CellRows copiedCells(const SeriesGridModel& grid, const GridCells& cells);

/// What pasting changes. The first cell of `pasted` belongs to the first of `cells`, and the others
/// follow in the rows `shown` and in the columns; headings are not pasted. A single cell is pasted
/// into all of `cells`. Raises error 13 "Type mismatch", with every bad cell, when a row or column
/// does not exist, a mode is not a number, or an evolution is another one: evolutions cannot be
/// pasted. Indices and lines are ignored.
CellEdits pastedEdits(const SeriesGridModel& grid, const GridCells& cells,
                      const std::vector<std::size_t>& shown, const CellRows& pasted);

/// What filling down changes: each column of `cells` gets the text of its first row; a single row
/// gets the texts of the row before it in `shown`.
CellEdits filledEdits(const SeriesGridModel& grid, const GridCells& cells,
                      const std::vector<std::size_t>& shown);

/// Applies edits to tags, modes and legends; the modes must be numbers.
void applyEdits(PlotRows& rows, const CellEdits& edits);

} // namespace tarsil
