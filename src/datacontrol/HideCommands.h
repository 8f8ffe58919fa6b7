// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "vgfplot/PlotRows.h"

#include <QList>
#include <QObject>

#include <functional>

class QAction;
class QKeySequence;
class QString;

namespace tarsil {

class DataCommands;
class SeriesGridView;

/// The commands that hide the curves of the selected rows and show them again. The same actions,
/// with their keys, are in the pop-ups of grid and plot and in the menu "Edit".
class HideCommands : public QObject
{
    Q_OBJECT

public:
    /// `commands` and `grid` must outlive this object.
    HideCommands(const DataCommands& commands, const SeriesGridView& grid, QObject* parent);
    ~HideCommands() override;

    /// "Hide", "Show" and "Show All Hidden".
    const QList<QAction*>& actions() const { return m_actions; }

private:
    void add(const char* name, const QString& text, const QKeySequence& key,
             const std::function<void()>& action);
    void hideOrShow(const PlotRows::Indices& rows, bool hides);
    void hideSelected();
    void showSelected();
    void showAll();

    const DataCommands& m_commands;
    const SeriesGridView& m_grid;
    QList<QAction*> m_actions;
};

} // namespace tarsil
