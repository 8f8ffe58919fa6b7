#include "datacontrol/MdlData.h"

#include "base/text/ShortList.h"
#include "model/EVM.h"
#include "vgfplot/EvmPlot.h"

#include <QStringList>

#include <algorithm>
#include <numeric>

namespace tarsil::mdlData {

namespace {

constexpr std::size_t mostLines = 30; ///< more do not fit on a small screen

} // namespace

std::string missingModeText(const PlotRows& rows, std::size_t row)
{
    const EVM* const evolution = rows.evolution(row);
    return "There is no mode " + std::to_string(rows.mode(row)) + " in modal evolution "
        + (evolution != nullptr ? evolution->FileName : std::string());
}

std::string missingModesText(const PlotRows& rows)
{
    std::vector<std::string> lines;
    for (const std::size_t row : rows.withoutSeries())
        lines.push_back(missingModeText(rows, row));
    return shortList(lines, mostLines);
}

std::string buildSeries(PlotRows& rows, const MarkerOptions& markers)
{
    for (std::size_t row = 0; row < rows.count(); ++row)
        setMarkers(rows.look(row), markers);
    return missingModesText(rows);
}

void setMarkers(Series& series, const MarkerOptions& markers)
{
    series.MarkerSize = markers.size;
    series.MarkerSpacing = markers.spacing;
    series.MarkerStyle = markers.style;
    series.IthMpf = markers.ithMpf;
}

void changeMarkers(PlotRows& rows, const MarkerOptions& before, const MarkerOptions& now)
{
    for (std::size_t row = 0; row < rows.count(); ++row) {
        Series& look = rows.look(row);
        if (now.size != before.size)
            look.MarkerSize = now.size;
        if (now.spacing != before.spacing)
            look.MarkerSpacing = now.spacing;
        if (now.style != before.style)
            look.MarkerStyle = now.style;
        if (now.ithMpf != before.ithMpf)
            look.IthMpf = now.ithMpf;
    }
}

void setColor(Series& series, ColorValue color)
{
    if (series.MarkerForegroundColor == series.ColorIndex)
        series.MarkerForegroundColor = color;
    series.ColorIndex = color;
}

void resetColors(PlotRows& rows)
{
    for (std::size_t row = 0; row < rows.count(); ++row)
        setColor(rows.look(row), BaseColors[row % BaseColors.size()]);
}

/// From the last to the first when they go down and the other way when they go up, so that no move
/// changes the place of one that is still to come.
Places moveRows(EvmPlot& plot, const Places& moved, std::size_t target)
{
    const auto above = static_cast<std::size_t>(std::count_if(
        moved.begin(), moved.end(), [target](std::size_t place) { return place < target; }));
    const std::size_t first = target - above;
    for (std::size_t i = above; i-- > 0;)
        plot.SerieMove(moved[i] + 1, first + i + 1);
    for (std::size_t i = above; i < moved.size(); ++i)
        plot.SerieMove(moved[i] + 1, first + i + 1);
    Places places(moved.size());
    std::iota(places.begin(), places.end(), first);
    return places;
}

Places moveRowsUp(EvmPlot& plot, const Places& moved)
{
    Places places = moved;
    std::size_t top = 0; // the first place that is free to move to
    for (std::size_t& place : places) {
        if (place > top) {
            plot.SerieMove(place + 1, place);
            --place;
        }
        top = place + 1;
    }
    return places;
}

Places moveRowsDown(EvmPlot& plot, const Places& moved)
{
    Places places = moved;
    std::size_t end = plot.rows().count(); // behind the last place that is free to move to
    for (std::size_t i = places.size(); i-- > 0;) {
        if (places[i] + 1 < end) {
            plot.SerieMove(places[i] + 1, places[i] + 2);
            ++places[i];
        }
        end = places[i];
    }
    return places;
}

std::int32_t raisedMode(const EVM* evolution, std::int32_t number)
{
    const bool canGo = evolution != nullptr && number < evolution->na;
    return canGo ? number + 1 : number;
}

std::int32_t loweredMode(std::int32_t number)
{
    return number != 0 ? number - 1 : number;
}

QString inOneLine(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    while (text.endsWith(u'\n'))
        text.chop(1);
    return text.replace(u'\n', u' ');
}

bool fillLegend(PlotRows& rows, std::size_t row, std::int32_t index)
{
    const EVM* const evolution = rows.evolution(row);
    if (evolution == nullptr)
        return false;
    QString& text = rows.look(row).LegendText;
    if (index == -1) {
        text = QString::fromStdString(evolution->FileName);
        return true;
    }
    if (index < 0 || static_cast<std::size_t>(index) >= evolution->Param.legends.size())
        return false;
    const auto& entry = evolution->Param.legends[static_cast<std::size_t>(index)];
    QStringList parts = QString::fromStdString(entry.text).split(u'|', Qt::SkipEmptyParts);
    for (QString& part : parts)
        part = part.trimmed();
    text = parts.join(QStringLiteral("; "));
    return true;
}

bool fillLegends(PlotRows& rows, const Places& places, std::int32_t index)
{
    bool isThere = true;
    if (places.empty()) {
        for (std::size_t row = 0; row < rows.count(); ++row)
            isThere &= fillLegend(rows, row, index);
    }
    for (const std::size_t row : places)
        isThere &= fillLegend(rows, row, index);
    return isThere;
}

} // namespace tarsil::mdlData
