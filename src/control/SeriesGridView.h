#pragma once

#include <QTableView>

#include <vector>

namespace tarsil {

/// The grid of series. Cells are selected as in a sheet; a row is dragged by its first column to
/// another place. What the user wants goes up as a signal; the view changes nothing itself.
class SeriesGridView : public QTableView
{
    Q_OBJECT

public:
    explicit SeriesGridView(QWidget* parent = nullptr);

    /// The rows with a selected cell, from 0 in increasing order; the current row when nothing is
    /// selected.
    std::vector<std::size_t> selectedRows() const;

    /// Whether something is selected, and all of it in that column.
    bool isSelectedOnlyIn(int column) const;

    /// Selects the cells of a column in rows that follow each other, and makes the first current.
    void selectRows(std::size_t first, std::size_t count, int column);

    /// The gap between rows, counted by the row behind it, that is nearest to a place of the
    /// viewport.
    int gapAt(QPoint place) const;

    /// What stands in the middle while there are no rows.
    void setPlaceholder(const QString& text) { m_placeholder = text; }

Q_SIGNALS:
    void removeWanted();
    void raiseWanted();
    void lowerWanted();
    void moveUpWanted();
    void moveDownWanted();

    /// The selected rows were dropped into a gap between rows (see `gapAt`).
    void rowsDropped(int gap);

    /// The user wants the style of the selected rows.
    void styleWanted();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool handleKey(const QKeyEvent& event);

    QString m_placeholder;
};

} // namespace tarsil
