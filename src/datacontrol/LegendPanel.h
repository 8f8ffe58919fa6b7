// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QGroupBox>

#include <memory>

namespace tarsil {

namespace Ui {
class LegendPanel;
}

class DataCommands;
class MarkerPanel;
class SeriesGridView;

/// The group "Legend Options": fills the legend texts of rows, and writes the legend of the plot.
class LegendPanel : public QGroupBox
{
    Q_OBJECT

public:
    /// The first three must outlive the panel. The legend texts of the rows selected in `grid` are
    /// filled; the markers are applied before the legend is written.
    LegendPanel(const DataCommands& commands, const MarkerPanel& markers,
                const SeriesGridView& grid, QWidget* parent = nullptr);
    ~LegendPanel() override;

private:
    void btnFilltLeg_Click();
    void btnPlotLeg_Click();

    const DataCommands& m_commands;
    const MarkerPanel& m_markers;
    const SeriesGridView& m_grid;
    std::unique_ptr<Ui::LegendPanel> m_ui;
};

} // namespace tarsil
