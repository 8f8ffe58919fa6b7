// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/CurvePalette.h"
#include "plot/Marker.h"
#include "plot/Series.h"
#include "vgfplot/PlotRows.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace tarsil {

class EVM;
class EvmPlot;

/// Commands of the Data Control's grid on the rows of a plot. Rows are given by their indices in
/// increasing order.
namespace mdlData {

using Indices = PlotRows::Indices;

/// Why a row has no mode: "There is no mode 12 in modal evolution case.ev2".
std::string missingModeText(const PlotRow& row);

/// The text of every row without a mode, one on a line; empty when all rows have one. If there are
/// many, the last line contains the number of the others.
std::string missingModesText(const PlotRows& rows);

/// Applies markers to every row, also to hidden ones. Returns the text of the rows without a mode.
std::string buildSeries(PlotRows& rows, const MarkerOptions& markers);

/// Applies to all rows those options that differ from `before`. The others, which may differ
/// between rows, stay.
void changeMarkers(PlotRows& rows, const MarkerOptions& before, const MarkerOptions& now);

/// Sets the colour of a curve, and that of its markers if it was the same.
void setColor(Series& series, ColorValue color);

/// Gives the rows the look of new ones: their colours, and with line styles those too.
void resetColors(PlotRows& rows, CurvePalette palette);

/// Moves rows to the gap before the row with index `target` (the number of rows means the end).
/// They keep their order and become adjacent.
void moveRows(EvmPlot& plot, const Indices& moved, std::size_t target);

/// Moves rows up or down by one. Rows at the edge stay.
void moveRowsUp(EvmPlot& plot, const Indices& moved);
void moveRowsDown(EvmPlot& plot, const Indices& moved);

/// Raises the mode numbers of rows by one, up to the number of modes that the evolution declares. A
/// row without an evolution is unchanged.
void raiseModes(PlotRows& rows, const Indices& raised);

/// Lowers the mode numbers of rows by one, down to 0.
void lowerModes(PlotRows& rows, const Indices& lowered);

/// Replaces line breaks by blanks and removes those at the end: text copied from a spreadsheet ends
/// with one.
QString inOneLine(QString text);

/// The legend text of a row: the file name for index -1, otherwise the entry of that index, counted
/// from 0, in the legend of the file, its parts (separated by bars) joined with "; ". Empty when
/// there is no such entry.
std::optional<QString> legendText(const PlotRow& row, std::int32_t index);

/// Sets that text in `filled` rows, or in all rows when `filled` is empty. False when a row lacks
/// the entry; the others are filled.
bool fillLegends(PlotRows& rows, const Indices& filled, std::int32_t index);

} // namespace mdlData

} // namespace tarsil
