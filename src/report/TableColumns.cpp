// SPDX-License-Identifier: Apache-2.0
#include "report/TableColumns.h"

#include "report/ReportFont.h"
#include "report/ReportPages.h"
#include "report/ReportText.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tarsil {

namespace {

constexpr double labelShare = 0.28; ///< of the width, for the labels of a table without headings

/// The widths that a column may have, in points with padding.
struct ColumnRange
{
    double least = 0; ///< texts are wrapped, also inside long words
    double comfortable = 0; ///< only long texts are wrapped
    double natural = 0; ///< no text is wrapped
};

constexpr double narrowestText = 42;
constexpr double longText = 120;

/// A number is never wrapped, a heading only between its words.
void widen(ColumnRange& range, const RowCell& cell, const ReportFont& font, bool isHeading)
{
    constexpr double tolerance = 1.5; // other programs measure a little differently
    const double edges = 2 * cellPadding + tolerance;
    const double words = wordWidthOf(cell.text, font) + edges;
    const double natural = isHeading ? words : widthOf(cell.text, font) + edges;
    const double least = cell.isNumber || isHeading ? natural : std::min(words, narrowestText);
    const double comfortable = std::max(least, std::min(natural, longText));
    range.least = std::max(range.least, least);
    range.comfortable = std::max(range.comfortable, comfortable);
    range.natural = std::max(range.natural, natural);
}

std::vector<std::size_t> allColumns(const Sheet& sheet)
{
    std::vector<std::size_t> columns(sheet.columnCount());
    std::iota(columns.begin(), columns.end(), std::size_t {1});
    return columns;
}

/// A text that extends over several columns does not widen any of them, except that a heading must
/// fit into its first one. Each row is a step; after a stop the ranges are too narrow.
std::vector<ColumnRange> rangesOf(const ReportTable& table, double points, StepCounter& steps)
{
    const std::vector<std::size_t> columns = allColumns(table.cells);
    std::vector<ColumnRange> ranges(columns.size());
    for (std::size_t row = 1; row <= table.cells.rowCount() && !steps.isStopped(); ++row) {
        const bool isHeading = row == 1 && table.hasHeadings;
        const ReportFont font {points, isHeading || lookOf(table.cells.rowStyle(row)).isBold};
        for (const RowCell& cell : rowCells(table.cells, row, columns)) {
            if (isHeading || cell.span == 1)
                widen(ranges[cell.column], cell, font, isHeading);
        }
        steps.next();
    }
    return ranges;
}

/// The sum of a width of some columns.
double sumOf(double ColumnRange::*width, const std::vector<ColumnRange>& ranges,
             const std::vector<std::size_t>& columns)
{
    return std::accumulate(columns.begin(), columns.end(), 0.0,
                           [&ranges, width](double sum, std::size_t column) {
                               return sum + ranges[column - 1].*width;
                           });
}

/// The widths of columns none of which is wider than `limit` unless it has to be, nor than its
/// natural width.
std::vector<double> limitedWidths(const std::vector<ColumnRange>& ranges,
                                  const std::vector<std::size_t>& columns, double limit)
{
    std::vector<double> widths;
    widths.reserve(columns.size());
    for (const std::size_t column : columns)
        widths.push_back(std::clamp(limit, ranges[column - 1].least, ranges[column - 1].natural));
    return widths;
}

double totalOf(const std::vector<double>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

/// The widest columns are narrowed to a common limit, so that the others keep their natural widths.
/// The table is not wider than needed.
std::vector<double> widthsOf(const std::vector<ColumnRange>& ranges,
                             const std::vector<std::size_t>& columns, double width)
{
    constexpr int steps = 40;
    double fitting = 0;
    double tooLarge = 2 * width;
    for (int i = 0; i < steps; ++i) {
        const double limit = (fitting + tooLarge) / 2;
        const bool fits = totalOf(limitedWidths(ranges, columns, limit)) <= width;
        (fits ? fitting : tooLarge) = limit;
    }
    std::vector<double> widths = limitedWidths(ranges, columns, fitting);
    const double shrink = std::min(1.0, width / totalOf(widths)); // key columns may be too wide
    for (double& one : widths)
        one *= shrink;
    return widths;
}

/// Keeps the names in the key columns on one line if the table then still fits.
void keepNames(const ReportTable& table, double width, std::vector<ColumnRange>& ranges)
{
    std::vector<ColumnRange> wider = ranges;
    for (std::size_t i = 0; i < std::min(table.keyColumns, wider.size()); ++i)
        wider[i].least = wider[i].comfortable;
    if (sumOf(&ColumnRange::least, wider, allColumns(table.cells)) <= width)
        ranges = std::move(wider);
}

/// Splits the columns so that each part begins with the key columns and fits.
std::vector<std::vector<std::size_t>> split(const ReportTable& table,
                                            const std::vector<ColumnRange>& ranges, double width)
{
    const std::vector<std::size_t> all = allColumns(table.cells);
    const auto keyCount = static_cast<std::ptrdiff_t>(std::min(table.keyColumns, all.size()));
    const std::vector<std::size_t> keys(all.begin(), all.begin() + keyCount);
    std::vector<std::vector<std::size_t>> parts = {keys};
    for (auto column = all.begin() + keyCount; column != all.end(); ++column) {
        std::vector<std::size_t> wider = parts.back();
        wider.push_back(*column);
        if (sumOf(&ColumnRange::least, ranges, wider) > width
            && parts.back().size() > keys.size()) {
            wider = keys;
            wider.push_back(*column);
            parts.push_back(wider);
        } else {
            parts.back() = wider;
        }
    }
    return parts;
}

/// Labels and values, over the whole width.
TableColumns labelColumns(double width)
{
    return {tableFontSizes[0], {{{1, 2}, {labelShare * width, (1 - labelShare) * width}}}};
}

/// The number of rows whose cells are measured.
std::size_t measuredRows(const ReportTable& table)
{
    return table.hasHeadings ? table.cells.rowCount() : 0;
}

/// A table with the width of its pages in points.
struct TableOnPages
{
    const ReportTable* table = nullptr;
    double width = 0;
};

std::vector<TableOnPages> tablesOf(const ReportContent& content)
{
    std::vector<TableOnPages> tables;
    for (const ReportSection& section : content.sections) {
        for (const ReportBlock& block : section.blocks) {
            if (const auto* const table = std::get_if<ReportTable>(&block))
                tables.push_back({table, paper::contentArea(section.isLandscape).width()});
        }
    }
    return tables;
}

} // namespace

std::optional<TableColumns> fitColumns(const ReportTable& table, double width,
                                       const Progress& progress)
{
    if (!table.hasHeadings)
        return labelColumns(width);
    StepCounter steps(progress, measuredRows(table) * tableFontSizes.size() + 1);
    TableColumns columns;
    std::vector<ColumnRange> ranges;
    for (const double points : tableFontSizes) {
        columns.points = points;
        ranges = rangesOf(table, points, steps);
        if (steps.isStopped())
            return std::nullopt;
        if (sumOf(&ColumnRange::comfortable, ranges, allColumns(table.cells)) <= width)
            break;
    }
    keepNames(table, width, ranges);
    for (std::vector<std::size_t>& part : split(table, ranges, width)) {
        std::vector<double> widths = widthsOf(ranges, part, width);
        columns.parts.push_back({std::move(part), std::move(widths)});
    }
    return columns;
}

std::optional<std::vector<TableColumns>> fitTables(const ReportContent& content,
                                                   const Progress& progress)
{
    const std::vector<TableOnPages> tables = tablesOf(content);
    std::size_t rows = 0;
    for (const auto& [table, width] : tables)
        rows += measuredRows(*table);
    std::size_t done = 0;
    std::vector<TableColumns> fitted;
    for (const auto& [table, width] : tables) {
        const std::size_t count = measuredRows(*table);
        auto columns = fitColumns(*table, width, partOf(progress, done, rows, count));
        if (!columns)
            return std::nullopt;
        fitted.push_back(std::move(*columns));
        done += count;
    }
    return fitted;
}

std::size_t stepCount(const ReportContent& content, const std::vector<TableColumns>& tables)
{
    const std::vector<TableOnPages> all = tablesOf(content);
    std::size_t count = stepCount(content);
    for (std::size_t i = 0; i < all.size(); ++i)
        count += all[i].table->cells.rowCount() * (tables[i].parts.size() - 1);
    return count;
}

} // namespace tarsil
