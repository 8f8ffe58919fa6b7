// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "datacontrol/DataCommands.h"
#include "vgfplot/PlotRows.h"

#include <QList>
#include <QWidget>

#include <cstdint>
#include <vector>

class QAction;
class QMenu;

namespace tarsil {

class MarkerPanel;
class SeriesPanel;

/// The window "Data Control": the series of the active plot as a grid, their markers, and header,
/// legend, subtitle, reference speeds and picture of the plot. Failures of its commands are
/// reported in module "wndData".
class wndData : public QWidget
{
    Q_OBJECT

public:
    /// Arguments passed by reference must outlive the window.
    wndData(Document& document, UserInterface& user, QWidget* parent = nullptr);
    ~wndData() override;

    /// Commits the text that is being typed in the grid, as Enter does.
    void commitEdits();

    /// Selects the first row of the mode with that number in the file, hidden or not. Does nothing
    /// without such a row.
    void selectCurve(const EVM& evolution, std::int16_t mode);

    /// Selects these rows of the active plot in the grid.
    void selectRows(const std::vector<tarsil::RowId>& rows);

    /// Removes the selected rows, as Del in the grid does.
    void removeRows();

    /// The commands on the selected rows.
    QMenu& curveMenu() { return *m_curveMenu; }

    /// The actions that hide and show curves: "Hide", "Show", "Show All Hidden".
    const QList<QAction*>& hideActions() const;

    /// The widths of the grid's columns as a text (`SeriesGridView::columnWidths`).
    QString columnWidths() const;
    void setColumnWidths(const QString& widths);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The selected rows of the grid have changed.
    void rowsSelected(const std::vector<tarsil::RowId>& rows);

private:
    void layOut();

    DataCommands m_commands;
    MarkerPanel* m_markers; ///< the layout owns the panels
    SeriesPanel* m_series;
    QMenu* m_curveMenu;
};

} // namespace tarsil
