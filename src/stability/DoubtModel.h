// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/TrackedFile.h"

#include <QAbstractTableModel>

#include <vector>

namespace tarsil {

class EVM;

/// A doubtful step of the tracking of an evolution.
struct PlotDoubt
{
    const EVM* evolution = nullptr; ///< not owned
    TrackingDoubt doubt;
};

/// The doubtful steps of the evolutions, in their order.
std::vector<PlotDoubt> doubtsOfAll(const std::vector<const EVM*>& evolutions);

/// The doubtful steps as rows of a table. Needs no window.
class DoubtModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setDoubts(std::vector<PlotDoubt> doubts);

    const std::vector<PlotDoubt>& doubts() const { return m_doubts; }

    /// Null for an unknown row.
    const PlotDoubt* doubt(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<PlotDoubt> m_doubts;
};

} // namespace tarsil
