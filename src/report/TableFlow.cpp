// SPDX-License-Identifier: Apache-2.0
#include "report/TableFlow.h"

#include "base/user/Progress.h"
#include "report/PageFlow.h"
#include "report/ReportText.h"
#include "report/TableColumns.h"

#include <algorithm>
#include <numeric>

namespace tarsil {

namespace {

constexpr double verticalPadding = 1.5;
constexpr double gridWidth = 0.4;
constexpr double gapAfterTable = 10;

/// A cell with its text wrapped.
struct FlowCell
{
    double left = 0; ///< from the left edge of the table
    double width = 0;
    std::vector<QString> lines;
    ReportFont font;
    bool isRightAligned = false;
};

struct FlowRow
{
    std::vector<FlowCell> cells;
    QString fill;
    QString color;
    double lineHeight = 0;
    std::size_t lineCount = 0; ///< of the highest cell
};

/// Lays out one part of a table.
class PartFlow
{
public:
    PartFlow(const ReportTable& table, const TablePart& part, double points, PageFlow& flow)
        : m_table(table), m_part(part), m_points(points), m_flow(flow)
    { }

    void run(StepCounter& steps);

private:
    FlowRow rowOf(std::size_t row) const;
    FlowCell cellOf(const RowCell& cell, ReportFont font) const;
    void place(const FlowRow& row);
    void placeLines(const FlowRow& row, std::size_t first, std::size_t count);
    void placeHeadings();
    bool hasHeadings() const { return m_table.hasHeadings; }

    const ReportTable& m_table;
    const TablePart& m_part;
    double m_points;
    PageFlow& m_flow;
};

double heightOf(const FlowRow& row, std::size_t lines)
{
    return static_cast<double>(lines) * row.lineHeight + 2 * verticalPadding;
}

FlowCell PartFlow::cellOf(const RowCell& cell, ReportFont font) const
{
    const auto first = m_part.widths.begin() + static_cast<std::ptrdiff_t>(cell.column);
    FlowCell result;
    result.left = std::accumulate(m_part.widths.begin(), first, 0.0);
    result.width = std::accumulate(first, first + static_cast<std::ptrdiff_t>(cell.span), 0.0);
    font.isBold = font.isBold || (!hasHeadings() && cell.column == 0);
    result.font = font;
    result.lines = wrapped(cell.text, font, result.width - 2 * cellPadding);
    result.isRightAligned = cell.isNumber;
    return result;
}

FlowRow PartFlow::rowOf(std::size_t row) const
{
    const RowLook look = lookOf(m_table.cells.rowStyle(row));
    const bool isHeading = row == 1 && hasHeadings();
    const ReportFont font {m_points, look.isBold || isHeading};
    FlowRow result;
    result.fill = isHeading ? headingFill : look.fill;
    result.color = look.color;
    result.lineHeight = lineHeightOf(font);
    for (const RowCell& cell : rowCells(m_table.cells, row, m_part.columns)) {
        result.cells.push_back(cellOf(cell, font));
        result.lineCount = std::max(result.lineCount, result.cells.back().lines.size());
    }
    return result;
}

/// Adds some of the lines of a row, with its ground and the lines around its cells.
void PartFlow::placeLines(const FlowRow& row, std::size_t first, std::size_t count)
{
    const double height = heightOf(row, count);
    const double left = m_flow.area().left();
    const double top = m_flow.y();
    for (const FlowCell& cell : row.cells) {
        const QRectF box(left + cell.left, top, cell.width, height);
        if (!row.fill.isEmpty())
            m_flow.addFill(box, row.fill);
        m_flow.addFill({box.left(), box.bottom() - gridWidth, box.width(), gridWidth}, gridColor);
        const std::size_t last = std::min(first + count, cell.lines.size());
        for (std::size_t i = first; i < last; ++i) {
            const double y =
                top + verticalPadding + static_cast<double>(i - first) * row.lineHeight;
            const double spare = cell.width - 2 * cellPadding - widthOf(cell.lines[i], cell.font);
            m_flow.addText(cell.left + cellPadding + (cell.isRightAligned ? spare : 0), y,
                           cell.lines[i], cell.font, row.color);
        }
    }
    m_flow.skip(height);
}

void PartFlow::placeHeadings()
{
    if (!hasHeadings())
        return;
    const FlowRow headings = rowOf(1);
    placeLines(headings, 0, headings.lineCount);
}

/// Splits a row only when it is higher than a page.
void PartFlow::place(const FlowRow& row)
{
    std::size_t first = 0;
    while (first < row.lineCount) {
        const std::size_t left = row.lineCount - first;
        const double pageHeight = m_flow.area().height() / 2;
        if (heightOf(row, std::min(left, std::size_t {3})) > m_flow.heightLeft()
            || (heightOf(row, left) > m_flow.heightLeft() && heightOf(row, left) < pageHeight)) {
            m_flow.continueOnNewPage();
            placeHeadings();
        }
        const double space = m_flow.heightLeft() - 2 * verticalPadding;
        const auto most = static_cast<std::size_t>(std::max(1.0, space / row.lineHeight));
        const std::size_t count = std::min(left, most);
        placeLines(row, first, count);
        first += count;
    }
}

void PartFlow::run(StepCounter& steps)
{
    constexpr double severalRows = 40;
    m_flow.require(severalRows);
    placeHeadings();
    if (hasHeadings())
        steps.next();
    const std::size_t rows = m_table.cells.rowCount();
    for (std::size_t row = hasHeadings() ? 2 : 1; row <= rows && !steps.isStopped(); ++row) {
        place(rowOf(row));
        steps.next();
    }
    m_flow.skip(gapAfterTable);
}

} // namespace

void flowTable(const ReportTable& table, const TableColumns& columns, PageFlow& flow,
               StepCounter& steps)
{
    for (const TablePart& part : columns.parts)
        PartFlow(table, part, columns.points, flow).run(steps);
}

} // namespace tarsil
