#pragma once

#include "base/user/RunTimeError.h"
#include "datacontrol/MdlData.h"

#include <QAbstractTableModel>

#include <vector>

namespace tarsil {

class EvmPlot;

/// The columns of the grid of series.
enum class SeriesColumn { Index, Evolution, Tag, Mode, Line, Legend };
constexpr int seriesColumnCount = 6;

/// The rows of a plot as rows of a grid: always the same rows, whoever changes them. The number of
/// a row that names no mode is marked.
class SeriesGridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit SeriesGridModel(QObject* parent = nullptr);
    ~SeriesGridModel() override;

    /// Shows the rows of a plot, which must outlive that; null shows none.
    void setPlot(EvmPlot* plot);
    EvmPlot* plot() const { return m_plot; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::DropActions supportedDropActions() const override;

    /// What the curve of a row looks like, or would, where its number names no mode. Null for a row
    /// that is not there.
    Series* look(int row) const;

    std::int32_t modeNumber(int row) const;

    /// Gives the row the series of that mode, or none; nothing is drawn.
    void setModeNumber(int row, std::int32_t number);

    /// The number above or below, as `mdlData` counts them.
    void raiseMode(int row);
    void lowerMode(int row);

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

    /// What the user typed into a cell cannot stay there; the cell is as before.
    void refused(const QModelIndex& cell, const QString& text, const tarsil::RunTimeError& error);

    /// Another plot is shown, or the plot has got its first row.
    void rowsReplaced();

private:
    /// What tells a row from another one.
    struct Row
    {
        const AeMode* drawn = nullptr;
        const EVM* evolution = nullptr;

        bool operator==(const Row&) const = default;
    };
    using Rows = std::vector<Row>;

    Row rowOf(std::size_t row) const;
    Rows rowsOfPlot() const;
    void follow();
    void replaceRows(Rows rows);
    void appendRows(Rows rows);
    QVariant text(int row, SeriesColumn column) const;
    QVariant toolTip(int row, SeriesColumn column) const;
    QString missingModeText(int row) const;
    bool hasSeries(int row) const;
    bool setModeText(const QModelIndex& cell, const QString& text);

    EvmPlot* m_plot = nullptr;
    Rows m_rows; ///< of the plot, as the view knows them
};

} // namespace tarsil
