// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "datacontrol/GridEdits.h"
#include "datacontrol/SeriesGridModel.h"

#include <QList>
#include <QWidget>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class QAction;

namespace tarsil {

namespace Ui {
class SeriesPanel;
}

class DataCommands;
class EVM;
class HideCommands;
class MarkerPanel;
class SeriesGridView;

/// The grid with the rows of the active plot, and the buttons below it: modes, order, colours and
/// lines of the rows; frequency axis and picture of the plot.
class SeriesPanel : public QWidget
{
    Q_OBJECT

public:
    /// `commands` and `markers` must outlive the panel. Drawing applies the markers to all rows.
    SeriesPanel(const DataCommands& commands, MarkerPanel& markers, QWidget* parent = nullptr);
    ~SeriesPanel() override;

    /// Commits the text that is being typed in the grid, as Enter does.
    void commitEdits();

    /// Selects the first row of the mode with that number in the file, hidden or not. Does nothing
    /// without such a row.
    void selectCurve(const EVM& evolution, std::int16_t mode);

    /// Selects these rows of the active plot.
    void selectRows(const std::vector<tarsil::RowId>& rows);

    SeriesGridView& grid() const;

    /// The actions that hide and show curves (`HideCommands`).
    const QList<QAction*>& hideActions() const;

    // Commands on the selected rows.
    void raiseModes();
    void lowerModes();
    void chooseLine();
    void removeRows() { cmdRemove_Click(); }

Q_SIGNALS:
    /// The selected rows of the active plot have changed.
    void rowsSelected(const std::vector<tarsil::RowId>& rows);

private:
    void connectGrid();
    void prepareColumns();
    void connectButtons();
    void showKeys();
    void makeMoveMenu();
    void makeGridMenu();
    void connectFilter();
    std::function<void()> command(void (SeriesPanel::*handler)());

    void cmdDrawPlot_Click();
    void btnFitFreq_Click();
    void cmdIncMode_Click();
    void cmdDecMode_Click();
    void cmdRemove_Click();
    void btnSerieMove_Click();
    void btnResColor_Click();
    void SavePic_Click();

    bool isModeSelected(const char* refusal);
    void changeAndPlot(const QString& step, const std::function<void(EvmPlot&)>& change);
    void moveUp();
    void moveDown();
    void moveSelectedTo(std::size_t target);
    void move(const std::function<void(EvmPlot&)>& change);
    void reportSelection();
    GridCells selectedCells() const;
    void copyCells();
    void pasteCells();
    void fillDown();
    void apply(const QString& step, const CellEdits& edits);
    void sort(Qt::SortOrder order);
    void afterEdit(SeriesColumn column);
    void askAgain(const QModelIndex& cell, const QString& text, const RunTimeError& error);

    const DataCommands& m_commands;
    MarkerPanel& m_markers;
    SeriesGridModel m_model;
    HideCommands* m_hideCommands = nullptr;
    std::unique_ptr<Ui::SeriesPanel> m_ui;
};

} // namespace tarsil
