#pragma once

#include <QTableView>

#include <set>
#include <vector>

namespace tarsil {

/// The grid of series. Cells are selected as in a sheet; a row is dragged by its first column to
/// another position. What the user wants is a signal; the view changes nothing itself.
/// The column of the evolutions is as wide as their names are, as far as the other columns leave it
/// room, until the user gives it a width; a name that is longer is shortened in its middle.
class SeriesGridView : public QTableView
{
    Q_OBJECT

public:
    explicit SeriesGridView(QWidget* parent = nullptr);

    /// The rows with a selected cell, from 0 in increasing order.
    std::vector<std::size_t> selectedRows() const;

    /// The same, or the current row when nothing is selected.
    std::vector<std::size_t> selectedOrCurrentRows() const;

    /// Whether something is selected, and all of it in that column.
    bool isSelectedOnlyIn(int column) const;

    /// Selects the cells of a column in these rows, and makes the first current.
    void selectRows(const std::vector<std::size_t>& rows, int column);

    /// Writes what is being typed into its cell, as Enter does.
    void commitEditor();

    /// Lets the user go on with a text that its cell refused, as soon as the editor that it
    /// was typed into has gone; unless the cell has gone, too.
    void editAgain(const QModelIndex& cell, const QString& text);

    /// The gap between rows, counted by the row after it, that is nearest to a position in the
    /// viewport.
    int gapAt(QPoint position) const;

    /// The text shown in the middle while there are no rows.
    void setPlaceholder(const QString& text) { m_placeholder = text; }

    void setModel(QAbstractItemModel* model) override;
    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                     const QList<int>& roles) override;

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
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void measureAllNames();
    void addNames(int first, int last);
    void removeNames(int first, int last);
    int widthOfName(int row) const;
    void fitNames();
    int widthOfNames(int width) const;
    bool handleKey(const QKeyEvent& event);

    QString m_placeholder;
    std::multiset<int> m_nameWidths; ///< of all rows
    bool m_isFitting = false;
    bool m_hasUsersWidth = false; ///< of the column of the evolutions
};

} // namespace tarsil
