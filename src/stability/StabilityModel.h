// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "stability/PlotStability.h"

#include <QAbstractTableModel>

#include <vector>

namespace tarsil {

/// The columns of the table of stretches.
enum class StretchColumn {
    Evolution,
    Mode,
    Level,
    Course,
    Kind,
    Start,
    Frequency,
    Confidence,
    Altitude,
    Mach,
    End,
    Peak,
    PeakSpeed,
    Factor,
    Remark
};
constexpr int stretchColumnCount = 15;

/// Real stretches as rows of a table, in their order. Needs no window.
class StabilityModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setStretches(std::vector<PlotStretch> stretches);

    /// Null for an unknown row.
    const PlotStretch* stretch(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<PlotStretch> m_stretches;
};

} // namespace tarsil
