// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTableView>

#include <functional>
#include <set>
#include <vector>

namespace tarsil {

/// The grid of series. Cells are selected as in a spreadsheet; a row is dragged by its first
/// column. Commands are signals; the view itself changes nothing. The column of the evolutions is
/// as wide as its names, as far as the other columns leave room, until the user sets its width; a
/// longer name is shortened in the middle.
class SeriesGridView : public QTableView
{
    Q_OBJECT

public:
    explicit SeriesGridView(QWidget* parent = nullptr);

    /// Shows only the rows that `isShown` accepts; an empty function shows all. The filter is
    /// applied again when rows change.
    void setRowFilter(std::function<bool(int row)> isShown);

    /// Applies the filter to what has changed outside the model.
    void filterAgain();

    /// The rows that the filter shows, in increasing order.
    std::vector<std::size_t> shownRows() const;

    /// The shown rows with a selected cell, in increasing order.
    std::vector<std::size_t> selectedRows() const;

    /// The columns with a selected cell, or the current column when nothing is selected.
    std::vector<int> selectedOrCurrentColumns() const;

    /// The selected rows, or the current row when nothing is selected.
    std::vector<std::size_t> selectedOrCurrentRows() const;

    /// Whether cells are selected, all of them in this column.
    bool isSelectedOnlyIn(int column) const;

    /// Selects the cells of a column in these rows and makes the first one current.
    void selectRows(const std::vector<std::size_t>& rows, int column);

    /// Commits the text that is being typed, as Enter does.
    void commitEditor();

    /// Reopens the editor of a cell that refused a text, with that text, after the former editor
    /// has closed. Does nothing if the cell has disappeared.
    void editAgain(const QModelIndex& cell, const QString& text);

    /// The gap between rows that is nearest to a position in the viewport, given by the index of
    /// the row after it.
    int gapAt(QPoint position) const;

    /// The widths of the columns in pixels, separated by bars; 0 where the user has not set one.
    /// The last column uses what is left.
    QString columnWidths() const;

    /// Sets these widths, as if by the user. Ignores a text of another form.
    void setColumnWidths(const QString& widths);

    /// The text in the middle of an empty grid.
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

    /// The selected rows were dropped into a gap (see `gapAt`).
    void rowsDropped(int gap);

    /// The user asks for the style of the selected rows.
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

    void filterSoon();

    QString m_placeholder;
    std::function<bool(int)> m_isShown;
    bool m_isFilterDue = false;
    std::multiset<int> m_nameWidths; ///< of all rows
    bool m_isFitting = false;
    bool m_hasUsersWidth =
        false; ///< whether the user set the width of the column of the evolutions
};

} // namespace tarsil
