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

/// Moves rows, given by their places from 0 in increasing order, and their series to the gap before
/// the place `target` (the number of rows is the end); they stay in order and are together then.
/// Returns the place of the first of them.
std::size_t moveRows(EvmPlot& plot, std::vector<Row>& rows, const std::vector<std::size_t>& moved,
                     std::size_t target);

/// The legend text of a row: the file name for index -1, else the entry of that index, counted from
/// 0, of what the file says about itself, the parts of the entry (between bars) joined with "; ".
/// False when there is no such entry; the series is unchanged then.
bool fillLegend(Series& series, std::int32_t index);

} // namespace mdlData

} // namespace tarsil
