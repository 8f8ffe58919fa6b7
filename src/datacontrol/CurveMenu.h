// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMenu>

#include <functional>

namespace tarsil {

class DataCommands;
class SeriesPanel;
struct PlotRow;
struct Series;

/// The commands on the selected rows of the grid that the pop-up of a curve offers: line, tag, mode
/// up and down, hiding and showing, legend text, removal.
class CurveMenu : public QMenu
{
    Q_OBJECT

public:
    /// Both must outlive the menu.
    CurveMenu(const DataCommands& commands, SeriesPanel& series, QWidget* parent);
    ~CurveMenu() override;

private:
    void add(const QString& caption, const char* name, const std::function<void()>& action);
    const PlotRow* firstRow() const;
    void changeRows(const QString& step, const std::function<void(Series&)>& change);
    void askTag();
    void askLegend();

    const DataCommands& m_commands;
    SeriesPanel& m_series;
};

} // namespace tarsil
