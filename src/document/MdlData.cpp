// SPDX-License-Identifier: Apache-2.0
#include "document/MdlData.h"

#include "base/text/ShortList.h"
#include "model/EVM.h"
#include "vgfplot/EvmPlot.h"

#include <QStringList>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace tarsil::mdlData {

namespace {

/// Consecutive rows.
struct Block
{
    std::size_t first;
    std::size_t count;

    std::size_t end() const { return first + count; }
};

std::vector<Block> blocksOf(const Indices& rows)
{
    std::vector<Block> blocks;
    for (const std::size_t row : rows) {
        if (!blocks.empty() && blocks.back().end() == row)
            ++blocks.back().count;
        else
            blocks.push_back({row, 1});
    }
    return blocks;
}

/// `to` is the index of the first row after the move.
void moveBlock(EvmPlot& plot, const Block& block, std::size_t to)
{
    plot.SerieMove(block.first + 1, to + 1, block.count);
}

template <typename Change>
void changeAll(PlotRows& rows, const Change& change)
{
    for (std::size_t row = 0; row < rows.count(); ++row)
        rows.change(rows.at(row).id, change);
}

} // namespace

std::string missingModeText(const PlotRow& row)
{
    return "There is no mode " + std::to_string(row.mode) + " in modal evolution "
        + (row.evolution != nullptr ? row.evolution->FileName : std::string());
}

std::string missingModesText(const PlotRows& rows)
{
    std::vector<std::string> lines;
    for (const std::size_t row : rows.withoutMode())
        lines.push_back(missingModeText(rows.at(row)));
    return shortList(lines, mostRowLines);
}

std::string buildSeries(PlotRows& rows, const MarkerOptions& markers)
{
    changeAll(rows, [&](Series& look) { markers.applyTo(look); });
    return missingModesText(rows);
}

void changeMarkers(PlotRows& rows, const MarkerOptions& before, const MarkerOptions& now)
{
    changeAll(rows, [&](Series& look) {
        if (now.size != before.size)
            look.MarkerSize = now.size;
        if (now.spacing != before.spacing)
            look.MarkerSpacing = now.spacing;
        if (now.kind != before.kind)
            look.MarkerStyle = markerNumber(now.kind);
        if (now.ithMpf != before.ithMpf)
            look.IthMpf = now.ithMpf;
    });
}

void setColor(Series& series, ColorValue color)
{
    if (series.MarkerForegroundColor == series.ColorIndex)
        series.MarkerForegroundColor = color;
    series.ColorIndex = color;
}

void resetColors(PlotRows& rows, CurvePalette palette)
{
    std::size_t row = 0;
    changeAll(rows, [&](Series& look) {
        Series fresh = look;
        applyPalette(fresh, palette, row++);
        look.LineStyle = fresh.LineStyle;
        setColor(look, fresh.ColorIndex);
    });
}

/// Moves blocks downwards from the last to the first, and upwards from the first to the last, so
/// that no move changes the index of a later one.
void moveRows(EvmPlot& plot, const Indices& moved, std::size_t target)
{
    const auto middle = std::lower_bound(moved.begin(), moved.end(), target);
    std::size_t end = target;
    std::vector<Block> above = blocksOf({moved.begin(), middle});
    std::reverse(above.begin(), above.end());
    for (const Block& block : above) {
        end -= block.count;
        moveBlock(plot, block, end);
    }
    std::size_t first = target;
    for (const Block& block : blocksOf({middle, moved.end()})) {
        moveBlock(plot, block, first);
        first += block.count;
    }
}

void moveRowsUp(EvmPlot& plot, const Indices& moved)
{
    for (const Block& block : blocksOf(moved)) {
        if (block.first > 0)
            moveBlock(plot, block, block.first - 1);
    }
}

void moveRowsDown(EvmPlot& plot, const Indices& moved)
{
    std::vector<Block> blocks = blocksOf(moved);
    std::reverse(blocks.begin(), blocks.end());
    for (const Block& block : blocks) {
        if (block.end() < plot.rows().count())
            moveBlock(plot, block, block.first + 1);
    }
}

void raiseModes(PlotRows& rows, const Indices& raised)
{
    for (const std::size_t index : raised) {
        const PlotRow& row = rows.at(index);
        if (row.evolution != nullptr && row.mode < row.evolution->na)
            rows.setMode(row.id, row.mode + 1);
    }
}

void lowerModes(PlotRows& rows, const Indices& lowered)
{
    for (const std::size_t index : lowered) {
        const PlotRow& row = rows.at(index);
        if (row.mode != 0)
            rows.setMode(row.id, row.mode - 1);
    }
}

QString inOneLine(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    while (text.endsWith(u'\n'))
        text.chop(1);
    return text.replace(u'\n', u' ');
}

std::optional<QString> legendText(const PlotRow& row, std::int32_t index)
{
    const EVM* const evolution = row.evolution;
    if (evolution == nullptr)
        return std::nullopt;
    if (index == -1)
        return QString::fromStdString(evolution->FileName);
    if (index < 0 || static_cast<std::size_t>(index) >= evolution->Param.legends.size())
        return std::nullopt;
    const auto& entry = evolution->Param.legends[static_cast<std::size_t>(index)];
    QStringList parts = QString::fromStdString(entry.text).split(u'|', Qt::SkipEmptyParts);
    for (QString& part : parts)
        part = part.trimmed();
    return parts.join(QStringLiteral("; "));
}

bool fillLegends(PlotRows& rows, const Indices& filled, std::int32_t index)
{
    Indices all(filled.empty() ? rows.count() : 0);
    std::iota(all.begin(), all.end(), std::size_t {0});
    bool areThere = true;
    for (const std::size_t row : filled.empty() ? all : filled) {
        const std::optional<QString> text = legendText(rows.at(row), index);
        areThere &= text.has_value();
        if (text)
            rows.change(rows.at(row).id, [&text](Series& look) { look.LegendText = *text; });
    }
    return areThere;
}

} // namespace tarsil::mdlData
