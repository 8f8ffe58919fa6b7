#include "control/MdlData.h"

#include "model/EVM.h"
#include "vgf/EvmPlot.h"

#include <QStringList>

#include <algorithm>
#include <numeric>

namespace tarsil::mdlData {

namespace {

/// The place of a mode in its evolution, counted from 1.
std::int32_t placeOf(const AeMode* mode)
{
    if (mode == nullptr || mode->Parent == nullptr)
        return 0;
    const auto& modes = mode->Parent->Modes;
    const auto place = std::find_if(modes.begin(), modes.end(),
                                    [mode](const auto& one) { return one.get() == mode; });
    return place == modes.end() ? 0 : static_cast<std::int32_t>(place - modes.begin() + 1);
}

/// Moves one row with its series.
void moveRow(EvmPlot& plot, std::vector<Row>& rows, std::size_t from, std::size_t to)
{
    plot.SerieMove(from + 1, to + 1);
    const auto begin = rows.begin() + static_cast<std::ptrdiff_t>(std::min(from, to));
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(std::max(from, to)) + 1;
    if (from < to)
        std::rotate(begin, begin + 1, end);
    else
        std::rotate(begin, end - 1, end);
}

} // namespace

std::vector<Row> rowsOf(const SeriesList& series, const std::vector<Row>& before)
{
    std::vector<Row> rows;
    rows.reserve(series.size());
    auto next = before.begin();
    for (const Series& one : series) {
        const auto known = std::find_if(next, before.end(), [&one](const Row& row) {
            return row.drawn == one.Mode && row.drawn != nullptr;
        });
        if (known == before.end()) {
            rows.push_back({one.Mode, placeOf(one.Mode)});
        } else {
            rows.push_back(*known);
            next = known + 1;
        }
    }
    return rows;
}

AeMode* modeNumbered(const Series& series, std::int32_t number)
{
    if (series.Mode == nullptr || series.Mode->Parent == nullptr || number < 1)
        return nullptr;
    const auto& modes = series.Mode->Parent->Modes;
    const auto place = static_cast<std::size_t>(number - 1);
    return place < modes.size() ? modes[place].get() : nullptr;
}

std::string missingModeText(const Series& series, std::int32_t number)
{
    const bool isKnown = series.Mode != nullptr && series.Mode->Parent != nullptr;
    return "There is no mode " + std::to_string(number) + " in modal evolution "
        + (isKnown ? series.Mode->Parent->FileName : std::string());
}

std::string buildSeries(SeriesList& series, std::vector<Row>& rows, const MarkerOptions& markers)
{
    std::string missing;
    for (std::size_t i = 0; i < series.size() && i < rows.size(); ++i) {
        AeMode* const mode = modeNumbered(series[i], rows[i].mode);
        if (mode != nullptr) {
            series[i].Mode = mode;
            rows[i].drawn = mode;
        } else if (missing.empty()) {
            missing = missingModeText(series[i], rows[i].mode);
        }
        setMarkers(series[i], markers);
    }
    return missing;
}

void setMarkers(Series& series, const MarkerOptions& markers)
{
    series.MarkerSize = markers.size;
    series.MarkerSpacing = markers.spacing;
    series.MarkerStyle = markers.style;
    series.IthMpf = markers.ithMpf;
}

void setColor(Series& series, ColorValue color)
{
    if (series.MarkerForegroundColor == series.ColorIndex)
        series.MarkerForegroundColor = color;
    series.ColorIndex = color;
}

void resetColors(SeriesList& series)
{
    for (std::size_t i = 0; i < series.size(); ++i)
        setColor(series[i], BaseColors[i % BaseColors.size()]);
}

/// From the last to the first when they go down and the other way when they go up, so that no move
/// changes the place of one that is still to come.
Places moveRows(EvmPlot& plot, std::vector<Row>& rows, const Places& moved, std::size_t target)
{
    const auto above = static_cast<std::size_t>(std::count_if(
        moved.begin(), moved.end(), [target](std::size_t place) { return place < target; }));
    const std::size_t first = target - above;
    for (std::size_t i = above; i-- > 0;)
        moveRow(plot, rows, moved[i], first + i);
    for (std::size_t i = above; i < moved.size(); ++i)
        moveRow(plot, rows, moved[i], first + i);
    Places places(moved.size());
    std::iota(places.begin(), places.end(), first);
    return places;
}

Places moveRowsUp(EvmPlot& plot, std::vector<Row>& rows, const Places& moved)
{
    Places places = moved;
    std::size_t top = 0; // the first place that is free to move to
    for (std::size_t& place : places) {
        if (place > top) {
            moveRow(plot, rows, place, place - 1);
            --place;
        }
        top = place + 1;
    }
    return places;
}

Places moveRowsDown(EvmPlot& plot, std::vector<Row>& rows, const Places& moved)
{
    Places places = moved;
    std::size_t end = rows.size(); // behind the last place that is free to move to
    for (std::size_t i = places.size(); i-- > 0;) {
        if (places[i] + 1 < end) {
            moveRow(plot, rows, places[i], places[i] + 1);
            ++places[i];
        }
        end = places[i];
    }
    return places;
}

std::int32_t raisedMode(const Series& series, std::int32_t number)
{
    const bool canGo = series.Mode != nullptr && series.Mode->Parent != nullptr
        && number < series.Mode->Parent->na;
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

bool fillLegend(Series& series, std::int32_t index)
{
    if (series.Mode == nullptr || series.Mode->Parent == nullptr)
        return false;
    const EVM& evolution = *series.Mode->Parent;
    if (index == -1) {
        series.LegendText = QString::fromStdString(evolution.FileName);
        return true;
    }
    if (index < 0 || static_cast<std::size_t>(index) >= evolution.Param.legends.size())
        return false;
    const auto& entry = evolution.Param.legends[static_cast<std::size_t>(index)];
    QStringList parts = QString::fromStdString(entry.text).split(u'|', Qt::SkipEmptyParts);
    for (QString& part : parts)
        part = part.trimmed();
    series.LegendText = parts.join(QStringLiteral("; "));
    return true;
}

bool fillLegends(SeriesList& series, const Places& places, std::int32_t index)
{
    bool isThere = true;
    const auto fill = [&](Series& one) { isThere &= fillLegend(one, index); };
    if (places.empty())
        std::for_each(series.begin(), series.end(), fill);
    for (const std::size_t place : places)
        fill(series.at(place));
    return isThere;
}

} // namespace tarsil::mdlData
