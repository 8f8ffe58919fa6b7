#pragma once

#include "control/MdlData.h"
#include "runtime/RunTimeError.h"

#include <QAbstractTableModel>

#include <unordered_map>
#include <vector>

namespace tarsil {

class EvmPlot;

/// The columns of the grid of series.
enum class SeriesColumn { Index, Evolution, Tag, Mode, Line, Legend };
constexpr int seriesColumnCount = 6;

/// The series of a plot as rows of a grid: always the same rows, whoever changes them. The mode
/// number of a row is kept as it was typed, also while another plot is shown; it becomes the mode
/// of the series by `build`.
class SeriesGridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit SeriesGridModel(QObject* parent = nullptr);
    ~SeriesGridModel() override;

    /// Shows the series of a plot, which must outlive that; null shows no rows.
    void setPlot(EvmPlot* plot);
    EvmPlot* plot() const { return m_plot; }

    /// A plot ends: nothing about it is kept.
    void forget(const EvmPlot* plot);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::DropActions supportedDropActions() const override;

    /// Null for a row that is not there.
    Series* series(int row) const;

    std::int32_t modeNumber(int row) const;
    void setModeNumber(int row, std::int32_t number);

    /// Makes the rows the plot's series (`mdlData::buildSeries`); nothing is drawn.
    std::string build(const MarkerOptions& markers);

    // Rows with their series, as `mdlData` does it. Selections do not follow.

    using Places = mdlData::Places;
    void removeSeries(const Places& rows);
    Places moveSeries(const Places& rows, std::size_t target);
    Places moveSeriesUp(const Places& rows);
    Places moveSeriesDown(const Places& rows);

    /// What the cells show has changed, but not which rows there are.
    void seriesChanged();

Q_SIGNALS:
    /// The user has changed a cell of that column.
    void edited(tarsil::SeriesColumn column);

    /// What the user typed cannot stand there; the cell is as before.
    void refused(const tarsil::RunTimeError& error);

    /// Another plot is shown, or the plot has got its first series.
    void rowsReplaced();

private:
    using Rows = std::vector<mdlData::Row>;

    void follow();
    void replaceRows(Rows rows);
    void appendRows(const Rows& rows);
    QVariant text(const Series& one, int row, SeriesColumn column) const;
    QVariant toolTip(const Series& one, int row, SeriesColumn column) const;
    bool isDrawn(int row) const;
    bool setModeText(int row, const QString& text);

    EvmPlot* m_plot = nullptr;
    Rows m_rows; ///< of the plot that is shown
    std::unordered_map<const EvmPlot*, Rows> m_others; ///< of plots that were shown before
};

} // namespace tarsil
