// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/GridEdits.h"

#include "base/numbers/Numbers.h"
#include "base/text/ShortList.h"
#include "base/user/RunTimeError.h"
#include "datacontrol/DataCommands.h"
#include "document/MdlData.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace tarsil {

namespace {

bool isEditable(SeriesColumn column)
{
    return column == SeriesColumn::Tag || column == SeriesColumn::Mode
        || column == SeriesColumn::Legend;
}

QString headingOf(const SeriesGridModel& grid, SeriesColumn column)
{
    return grid.headerData(static_cast<int>(column), Qt::Horizontal, Qt::AccessibleTextRole)
        .toString();
}

QString textAt(const SeriesGridModel& grid, std::size_t row, SeriesColumn column)
{
    const QModelIndex cell = grid.index(static_cast<int>(row), static_cast<int>(column));
    return grid.data(cell, Qt::AccessibleTextRole).toString();
}

/// Whether a row contains the headings of the columns from `first` on.
bool isHeadings(const SeriesGridModel& grid, SeriesColumn first, const QStringList& row)
{
    for (qsizetype i = 0; i < row.size(); ++i) {
        const int column = static_cast<int>(first) + static_cast<int>(i);
        if (row[i] != headingOf(grid, static_cast<SeriesColumn>(column)))
            return false;
    }
    return true;
}

/// Collects the edits of pasted cells and the reasons why some cannot be pasted.
class PasteCheck
{
public:
    explicit PasteCheck(const SeriesGridModel& grid) : m_grid(grid) { }

    void add(std::size_t row, int column, const QString& text)
    {
        const auto target = static_cast<SeriesColumn>(column);
        if (column >= seriesColumnCount)
            refuse(row, "column " + std::to_string(column + 1), text, "there is no such column");
        else if (isEditable(target))
            addText(row, target, text);
        else if (target == SeriesColumn::Evolution && text != textAt(m_grid, row, target))
            refuse(row, headingOf(m_grid, target).toStdString(), text,
                   "the evolution of the row is " + textAt(m_grid, row, target).toStdString());
    }

    void refuseRows(std::size_t missing)
    {
        if (missing > 0)
            m_faults.push_back("rows too many: " + std::to_string(missing));
    }

    /// Raises the error of all refused cells.
    CellEdits edits() const
    {
        if (!m_faults.empty())
            throw RunTimeError(ErrorNumber::TypeMismatch, std::string(DataCommands::module),
                               "nothing is pasted:\n" + shortList(m_faults, mostRowLines));
        return m_edits;
    }

private:
    void addText(std::size_t row, SeriesColumn column, const QString& text)
    {
        std::int16_t number = 0;
        if (column == SeriesColumn::Mode
            && parseInteger16(text.toStdString(), number) != NumberStatus::Ok)
            refuse(row, headingOf(m_grid, column).toStdString(), text, "a number is needed");
        else
            m_edits.push_back({row, column, text});
    }

    void refuse(std::size_t row, const std::string& column, const QString& text,
                const std::string& reason)
    {
        m_faults.push_back("row " + std::to_string(row + 1) + ", " + column + ": \""
                           + text.toStdString() + "\"; " + reason);
    }

    const SeriesGridModel& m_grid;
    CellEdits m_edits;
    std::vector<std::string> m_faults;
};

} // namespace

CellRows copiedCells(const SeriesGridModel& grid, const GridCells& cells)
{
    CellRows rows(1);
    for (const SeriesColumn column : cells.columns)
        rows[0].append(headingOf(grid, column));
    for (const std::size_t row : cells.rows) {
        QStringList& texts = rows.emplace_back();
        for (const SeriesColumn column : cells.columns)
            texts.append(textAt(grid, row, column));
    }
    return rows;
}

CellEdits pastedEdits(const SeriesGridModel& grid, const GridCells& cells,
                      const std::vector<std::size_t>& shown, const CellRows& pasted)
{
    PasteCheck check(grid);
    if (cells.rows.empty() || cells.columns.empty() || pasted.empty())
        return {};
    if (pasted.size() == 1 && pasted[0].size() == 1) {
        for (const std::size_t row : cells.rows) {
            for (const SeriesColumn column : cells.columns)
                check.add(row, static_cast<int>(column), pasted[0][0]);
        }
        return check.edits();
    }
    const SeriesColumn first = cells.columns.front();
    auto target = std::find(shown.begin(), shown.end(), cells.rows.front());
    std::size_t begin = isHeadings(grid, first, pasted[0]) ? 1 : 0;
    for (; begin < pasted.size() && target != shown.end(); ++begin, ++target) {
        for (qsizetype i = 0; i < pasted[begin].size(); ++i)
            check.add(*target, static_cast<int>(first) + static_cast<int>(i), pasted[begin][i]);
    }
    check.refuseRows(pasted.size() - begin);
    return check.edits();
}

CellEdits filledEdits(const SeriesGridModel& grid, const GridCells& cells,
                      const std::vector<std::size_t>& shown)
{
    CellEdits edits;
    std::vector<std::size_t> rows = cells.rows;
    if (rows.size() == 1) {
        const auto row = std::find(shown.begin(), shown.end(), rows.front());
        if (row == shown.begin() || row == shown.end())
            return edits;
        rows.insert(rows.begin(), *(row - 1));
    }
    for (const SeriesColumn column : cells.columns) {
        for (std::size_t i = 1; i < rows.size() && isEditable(column); ++i)
            edits.push_back({rows[i], column, textAt(grid, rows.front(), column)});
    }
    return edits;
}

void applyEdits(PlotRows& rows, const CellEdits& edits)
{
    for (const CellEdit& edit : edits) {
        const RowId id = rows.at(edit.row).id;
        if (edit.column == SeriesColumn::Mode) {
            std::int16_t number = 0;
            parseInteger16(edit.text.toStdString(), number);
            rows.setMode(id, number);
            continue;
        }
        rows.change(id, [&edit](Series& look) {
            const bool isTag = edit.column == SeriesColumn::Tag;
            (isTag ? look.MarkerTag : look.LegendText) = mdlData::inOneLine(edit.text);
        });
    }
}

} // namespace tarsil
