// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMenu>

#include <functional>

namespace tarsil {

class DataCommands;
class MarkerPanel;
class SeriesPanel;
struct PlotRow;
struct Series;

/// The commands on the selected rows of the grid that the pop-up of a curve offers: line, tag, mode
/// up and down, hiding, legend text, removal.
class CurveMenu : public QMenu
{
    Q_OBJECT

public:
    /// All must outlive the menu.
    CurveMenu(const DataCommands& commands, SeriesPanel& series, const MarkerPanel& markers,
              QWidget* parent);
    ~CurveMenu() override;

private:
    void add(const QString& caption, const char* name, const std::function<void()>& action);
    void addHide();
    const PlotRow* firstRow() const;
    void changeRows(const QString& step, const std::function<void(Series&)>& change);
    void askTag();
    void askLegend();
    void hideOrShow(bool hides);

    const DataCommands& m_commands;
    SeriesPanel& m_series;
    const MarkerPanel& m_markers;
};

} // namespace tarsil
