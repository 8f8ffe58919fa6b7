// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/Sheet.h"

#include <QAbstractTableModel>

namespace tarsil {

/// A sheet as a table, with the first row as headings and the colours of its rows. Needs no window.
class SheetModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setSheet(Sheet sheet);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    Sheet m_sheet;
};

} // namespace tarsil
