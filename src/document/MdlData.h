#pragma once

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

/// The rows of a plot as the Data Control's grid shows and changes them. Rows are given by their
/// indices in increasing order.
namespace mdlData {

using Indices = PlotRows::Indices;

/// Why a row has no curve: "There is no mode 12 in modal evolution case.ev2".
std::string missingModeText(const PlotRow& row);

/// That text for every row without a curve, a line each; empty when all have one. Of very many the
/// last line says how many more there are.
std::string missingModesText(const PlotRows& rows);

/// Gives every row the markers; returns the text of the rows that have no curve.
std::string buildSeries(PlotRows& rows, const MarkerOptions& markers);

/// Gives all rows those options that differ from the ones before; in the others rows may differ
/// from each other.
void changeMarkers(PlotRows& rows, const MarkerOptions& before, const MarkerOptions& now);

/// Sets the colour of a curve, and of its marker text when that had the curve's colour.
void setColor(Series& series, ColorValue color);

/// Gives the rows their default colours in turn.
void resetColors(PlotRows& rows);

/// Moves rows to the gap before the row with index `target` (the number of rows is the end); they
/// stay in order and are together then.
void moveRows(EvmPlot& plot, const Indices& moved, std::size_t target);

/// Moves rows up or down by one; those that have no room stay.
void moveRowsUp(EvmPlot& plot, const Indices& moved);
void moveRowsDown(EvmPlot& plot, const Indices& moved);

/// Raises the mode numbers of rows by one, each up to the number of modes that its evolution
/// declares. A row without an evolution keeps its number.
void raiseModes(PlotRows& rows, const Indices& raised);

/// Lowers the mode numbers of rows by one, down to 0.
void lowerModes(PlotRows& rows, const Indices& lowered);

/// Replaces line breaks by blanks, and drops those at the end: text copied from a sheet ends with
/// one.
QString inOneLine(QString text);

/// The legend text of a row: the file name for index -1, else the entry of that index, counted from
/// 0, of what the file says about itself, the parts of the entry (between bars) joined with "; ".
/// None when there is no such entry.
std::optional<QString> legendText(const PlotRow& row, std::int32_t index);

/// Gives that text to rows, or to all when none are given. False when an entry is not there for one
/// of them; the others are filled.
bool fillLegends(PlotRows& rows, const Indices& filled, std::int32_t index);

} // namespace mdlData

} // namespace tarsil
