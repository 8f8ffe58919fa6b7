// SPDX-License-Identifier: Apache-2.0
#include "stability/SheetModel.h"

#include "stability/VerdictModel.h"

#include <utility>
#include <variant>

namespace tarsil {

namespace {

/// The row of a sheet is counted from 1, and its first row has the headings.
std::size_t sheetRow(int row)
{
    return static_cast<std::size_t>(row) + 2;
}

std::size_t sheetColumn(int column)
{
    return static_cast<std::size_t>(column) + 1;
}

} // namespace

void SheetModel::setSheet(Sheet sheet)
{
    beginResetModel();
    m_sheet = std::move(sheet);
    endResetModel();
}

int SheetModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_sheet.rowCount() == 0 ? 0
                                                       : static_cast<int>(m_sheet.rowCount()) - 1;
}

int SheetModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_sheet.columnCount());
}

QVariant SheetModel::data(const QModelIndex& index, int role) const
{
    const Sheet::Cell& cell = m_sheet.cell(sheetRow(index.row()), sheetColumn(index.column()));
    if (role == Qt::DisplayRole)
        return QString::fromStdString(Sheet::textOf(cell));
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(
            Qt::AlignVCenter
            | (std::holds_alternative<double>(cell) ? Qt::AlignRight : Qt::AlignLeft));
    return colorOf(m_sheet.rowStyle(sheetRow(index.row())), role);
}

QVariant SheetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation != Qt::Horizontal)
        return section + 1;
    return QString::fromStdString(Sheet::textOf(m_sheet.cell(1, sheetColumn(section))));
}

} // namespace tarsil
