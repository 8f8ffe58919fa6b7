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

/// What stands at the marked points of every curve of a plot.
struct MarkerOptions
{
    std::int32_t size = 8; ///< points
    std::int32_t spacing = 10;
    std::int32_t style = markerstyle::modeNumber;
    std::int32_t ithMpf = 1; ///< counted from 1

    bool operator==(const MarkerOptions&) const = default;
};

/// The rows of the Data Control's grid, and how they become the series of a plot.
namespace mdlData {

/// What a row knows beyond its series: the number that stands in its column "Mode", counted from 1
/// as the modes of an evolution are. It differs from the drawn mode as long as it names none.
struct Row
{
    const AeMode* drawn = nullptr;
    std::int32_t mode = 0;

    bool operator==(const Row&) const = default;
};

/// One row for each series. A series that had a row before keeps it, with the number in it; series
/// may have gone, or have come at the end, in the meantime.
std::vector<Row> rowsOf(const SeriesList& series, const std::vector<Row>& before);

/// The mode of that number in the evolution of a series; null when it has none.
AeMode* modeNumbered(const Series& series, std::int32_t number);

/// "There is no mode 12 in modal evolution case.ev2".
std::string missingModeText(const Series& series, std::int32_t number);

/// Gives every series the mode that its row names, and the markers. A row that names no mode keeps
/// the curve that it has; returns the text that says so for the first of them, empty when there is
/// none. Nothing is drawn.
std::string buildSeries(SeriesList& series, std::vector<Row>& rows, const MarkerOptions& markers);

void setMarkers(Series& series, const MarkerOptions& markers);

/// A marker text in the curve's colour goes along with it.
void setColor(Series& series, ColorValue color);

/// The colours that series take in turn.
void resetColors(SeriesList& series);

/// Where rows are by their places from 0, in increasing order.
using Places = std::vector<std::size_t>;

/// Moves rows with their series to the gap before the place `target` (the number of rows is the
/// end); they stay in order and are together then. Returns their new places.
Places moveRows(EvmPlot& plot, std::vector<Row>& rows, const Places& moved, std::size_t target);

/// Moves rows with their series one place up or down; those that have no room stay. Returns their
/// new places.
Places moveRowsUp(EvmPlot& plot, std::vector<Row>& rows, const Places& moved);
Places moveRowsDown(EvmPlot& plot, std::vector<Row>& rows, const Places& moved);

/// The number above, up to the number of modes that the evolution of a series declares; else the
/// number as it is.
std::int32_t raisedMode(const Series& series, std::int32_t number);

/// The number below, down to 0.
std::int32_t loweredMode(std::int32_t number);

/// A text with blanks in the place of line breaks, and without those at its end: what is copied
/// from a sheet ends with one.
QString inOneLine(QString text);

/// The legend text of a row: the file name for index -1, else the entry of that index, counted from
/// 0, of what the file says about itself, the parts of the entry (between bars) joined with "; ".
/// False when there is no such entry; the series is unchanged then.
bool fillLegend(Series& series, std::int32_t index);

/// The same for the rows at these places, or for all when there are none. False when an entry is
/// not there for one of them; the others are filled.
bool fillLegends(SeriesList& series, const Places& places, std::int32_t index);

} // namespace mdlData

} // namespace tarsil
