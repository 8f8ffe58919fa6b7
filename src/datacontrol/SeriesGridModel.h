// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/RunTimeError.h"
#include "vgfplot/PlotRows.h"

#include <QAbstractTableModel>

namespace tarsil {

class EvmPlot;
class UndoHistory;

/// The columns of the grid of series.
enum class SeriesColumn { Index, Evolution, Tag, Mode, Line, Legend };
constexpr int seriesColumnCount = 6;

/// A model of the rows of a plot, which it always follows. The selection moves with its rows. A
/// number that does not exist is flagged; a hidden row is grey and italic.
class SeriesGridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Edits go through `history`, which must outlive the model.
    explicit SeriesGridModel(UndoHistory& history, QObject* parent = nullptr);
    ~SeriesGridModel() override;

    /// Shows the rows of a plot, which must stay alive meanwhile; null shows none.
    void setPlot(EvmPlot* plot);
    EvmPlot* plot() const { return m_plot; }

    /// Null for an index outside the rows.
    const PlotRow* row(int index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::DropActions supportedDropActions() const override;

Q_SIGNALS:
    /// The user has changed a cell of this column.
    void edited(tarsil::SeriesColumn column);

    /// A text was refused; the cell is unchanged.
    void refused(const QModelIndex& cell, const QString& text, const tarsil::RunTimeError& error);

    /// Another plot is shown, or the plot got its first row.
    void rowsReplaced();

private:
    void follow(const PlotRows& rows);
    void followMoves(const PlotRows& rows);
    QVariant text(int row, SeriesColumn column) const;
    bool setText(const QModelIndex& cell, const QString& text);
    bool setModeText(const QModelIndex& cell, const QString& text);

    UndoHistory& m_history;
    EvmPlot* m_plot = nullptr;
    bool m_wasEmpty = true; ///< whether there were no rows before an insertion
};

} // namespace tarsil
