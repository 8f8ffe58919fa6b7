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

/// The rows of a plot as rows of a grid: always the same rows, whoever changes them. What is
/// selected follows its row. The number of a row that names no mode is marked.
class SeriesGridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// What the user types goes through `history`, which must outlive the model.
    explicit SeriesGridModel(UndoHistory& history, QObject* parent = nullptr);
    ~SeriesGridModel() override;

    /// Shows the rows of a plot, which must outlive that; null shows none.
    void setPlot(EvmPlot* plot);
    EvmPlot* plot() const { return m_plot; }

    /// Null for a row that is not there.
    const PlotRow* row(int index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::DropActions supportedDropActions() const override;

Q_SIGNALS:
    /// The user has changed a cell of that column.
    void edited(tarsil::SeriesColumn column);

    /// What the user typed into a cell cannot stay there; the cell is as before.
    void refused(const QModelIndex& cell, const QString& text, const tarsil::RunTimeError& error);

    /// Another plot is shown, or the plot has got its first row.
    void rowsReplaced();

private:
    void follow(const PlotRows& rows);
    void followMoves(const PlotRows& rows);
    QVariant text(int row, SeriesColumn column) const;
    bool setText(const QModelIndex& cell, const QString& text);
    bool setModeText(const QModelIndex& cell, const QString& text);

    UndoHistory& m_history;
    EvmPlot* m_plot = nullptr;
    bool m_wasEmpty = true; ///< before the rows that are being added
};

} // namespace tarsil
