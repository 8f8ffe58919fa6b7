#pragma once

#include "plot/Series.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class QString;

namespace tarsil {

class EvmPlot;
class PlotRows;

/// What stands at the marked points of every curve of a plot.
struct MarkerOptions
{
    std::int32_t size = 8; ///< points
    std::int32_t spacing = 10;
    std::int32_t style = markerstyle::modeNumber;
    std::int32_t ithMpf = 1; ///< counted from 1

    bool operator==(const MarkerOptions&) const = default;
};

/// The rows of a plot as the Data Control's grid shows and changes them.
namespace mdlData {

/// Why a row has no series: "There is no mode 12 in modal evolution case.ev2".
std::string missingModeText(const PlotRows& rows, std::size_t row);

/// That text for every row without a series, a line each; empty when all have one. Of very many
/// the last line says how many more there are.
std::string missingModesText(const PlotRows& rows);

/// Gives every series the markers; returns the text of the rows that have none. Nothing is drawn.
std::string buildSeries(PlotRows& rows, const MarkerOptions& markers);

void setMarkers(Series& series, const MarkerOptions& markers);

/// Gives all rows those options that differ from the ones before; in the others rows may differ
/// from each other.
void changeMarkers(PlotRows& rows, const MarkerOptions& before, const MarkerOptions& now);

/// A marker text in the curve's colour goes along with it.
void setColor(Series& series, ColorValue color);

/// The colours that rows take in turn.
void resetColors(PlotRows& rows);

/// Where rows are by their places from 0, in increasing order.
using Places = std::vector<std::size_t>;

/// Moves rows with their series to the gap before the place `target` (the number of rows is the
/// end); they stay in order and are together then. Returns their new places.
Places moveRows(EvmPlot& plot, const Places& moved, std::size_t target);

/// Moves rows with their series one place up or down; those that have no room stay. Returns their
/// new places.
Places moveRowsUp(EvmPlot& plot, const Places& moved);
Places moveRowsDown(EvmPlot& plot, const Places& moved);

/// The number above, up to the number of modes that the evolution declares; else, and without an
/// evolution, the number as it is.
std::int32_t raisedMode(const EVM* evolution, std::int32_t number);

/// The number below, down to 0.
std::int32_t loweredMode(std::int32_t number);

/// A text with blanks in the place of line breaks, and without those at its end: what is copied
/// from a sheet ends with one.
QString inOneLine(QString text);

/// The legend text of a row: the file name for index -1, else the entry of that index, counted from
/// 0, of what the file says about itself, the parts of the entry (between bars) joined with "; ".
/// False when there is no such entry; the row is unchanged then.
bool fillLegend(PlotRows& rows, std::size_t row, std::int32_t index);

/// The same for the rows at these places, or for all when there are none. False when an entry is
/// not there for one of them; the others are filled.
bool fillLegends(PlotRows& rows, const Places& places, std::int32_t index);

} // namespace mdlData

} // namespace tarsil
