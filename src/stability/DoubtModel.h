#pragma once

#include "analysis/TrackedFile.h"

#include <QAbstractTableModel>

#include <vector>

namespace tarsil {

class EVM;

/// A step of one of several evolutions that the tracking doubts.
struct PlotDoubt
{
    const EVM* evolution = nullptr; ///< not owned
    TrackingDoubt doubt;
};

/// The doubts about some evolutions, in their order.
std::vector<PlotDoubt> doubtsOfAll(const std::vector<const EVM*>& evolutions);

/// Doubts as rows of a table; it needs no window.
class DoubtModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setDoubts(std::vector<PlotDoubt> doubts);

    /// Null for a row that is not there.
    const PlotDoubt* doubt(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<PlotDoubt> m_doubts;
};

} // namespace tarsil
