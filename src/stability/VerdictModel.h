// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/Sheet.h"
#include "stability/PlotStability.h"

#include <QAbstractTableModel>

#include <string>
#include <vector>

namespace tarsil {

/// The background or text colour of a row with a style, as in the sheets; empty for other roles and
/// for plain rows.
QVariant colorOf(CellStyle style, int role);

/// The verdicts of evolutions as rows of a table: a column for the file, one for each level, and
/// one for the margin if an airplane requires a speed. Needs no window.
class VerdictModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setEvolutions(const std::vector<EvolutionStability>& evolutions,
                       const std::vector<float>& levels);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Cell
    {
        std::string text;
        CellStyle style = CellStyle::Plain;
    };

    static Cell cellOf(const EvolutionStability& stability, const StabilityVerdict& verdict);
    static std::vector<Cell> rowOf(const EvolutionStability& stability);

    std::vector<std::string> m_headings;
    std::vector<std::vector<Cell>> m_rows;
};

} // namespace tarsil
