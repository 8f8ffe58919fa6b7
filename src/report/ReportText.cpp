// SPDX-License-Identifier: Apache-2.0
#include "report/ReportText.h"

#include "base/numbers/Numbers.h"
#include "base/text/TextCodec.h"
#include "surface/TextMetrics.h"

#include <variant>

namespace tarsil {

namespace {

bool isEmptyCell(const Sheet::Cell& cell)
{
    const auto* const text = std::get_if<std::string>(&cell);
    return std::holds_alternative<std::monostate>(cell) || (text != nullptr && text->empty());
}

/// The text of a heading row: a heading extends over the empty cells to its right, so in a part of
/// the columns that begins with such a cell it is repeated.
const Sheet::Cell& headingAt(const Sheet& sheet, std::size_t column)
{
    while (column > 1 && isEmptyCell(sheet.cell(1, column)))
        --column;
    return sheet.cell(1, column);
}

} // namespace

QString shownText(const std::string& text)
{
    return drawableText(QString::fromStdString(decodeText(text)));
}

QString cellText(const Sheet::Cell& cell)
{
    if (const auto* const number = std::get_if<double>(&cell))
        return QString::fromStdString(shortestText(static_cast<float>(*number)));
    return shownText(Sheet::textOf(cell));
}

RowLook lookOf(CellStyle style)
{
    const QString black = QStringLiteral("#000000");
    switch (style) {
    case CellStyle::Strong:
        return {{}, black, true};
    case CellStyle::Good:
        return {QStringLiteral("#c6efce"), black};
    case CellStyle::Warning:
        return {QStringLiteral("#ffeb9c"), black};
    case CellStyle::Bad:
        return {QStringLiteral("#ffc7ce"), black};
    case CellStyle::Quiet:
        return {{}, QStringLiteral("#5f5f5f")};
    case CellStyle::Plain:
        break;
    }
    return {{}, black};
}

std::vector<RowCell> rowCells(const Sheet& sheet, std::size_t row,
                              const std::vector<std::size_t>& columns)
{
    std::vector<RowCell> cells;
    bool mayExtend = false;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const Sheet::Cell& own = sheet.cell(row, columns[i]);
        const bool isFirstOfPart = i == 0 || columns[i] != columns[i - 1] + 1;
        const Sheet::Cell& cell = row == 1 && isFirstOfPart ? headingAt(sheet, columns[i]) : own;
        if (isEmptyCell(cell) && mayExtend) {
            ++cells.back().span;
            continue;
        }
        const bool isNumber = std::holds_alternative<double>(cell);
        cells.push_back({i, 1, cellText(cell), isNumber});
        mayExtend = !isNumber && !isEmptyCell(cell);
    }
    return cells;
}

} // namespace tarsil
