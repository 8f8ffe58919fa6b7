// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/HideCommands.h"

#include "base/user/UserInterface.h"
#include "datacontrol/DataCommands.h"
#include "datacontrol/SeriesGridView.h"
#include "document/Document.h"
#include "vgfplot/EvmPlot.h"

#include <QAction>
#include <QKeySequence>
#include <QString>

#include <cstddef>

namespace tarsil {

namespace {

QString stepName(bool hides, std::size_t count)
{
    if (count == 1)
        return hides ? HideCommands::tr("Hide Curve") : HideCommands::tr("Show Curve");
    return (hides ? HideCommands::tr("Hide %1 Curves") : HideCommands::tr("Show %1 Curves"))
        .arg(count);
}

} // namespace

HideCommands::HideCommands(const DataCommands& commands, const SeriesGridView& grid,
                           QObject* parent)
    : QObject(parent), m_commands(commands), m_grid(grid)
{
    add("curveHide", tr("&Hide"), QKeySequence(Qt::CTRL | Qt::Key_H), [this] { hideSelected(); });
    add("curveShow", tr("&Show"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_H),
        [this] { showSelected(); });
    add("curveShowAll", tr("Show &All Hidden"), {}, [this] { showAll(); });
}

HideCommands::~HideCommands() = default;

void HideCommands::add(const char* name, const QString& text, const QKeySequence& key,
                       const std::function<void()>& action)
{
    auto* const entry = new QAction(text, this);
    entry->setObjectName(QString::fromLatin1(name));
    entry->setShortcut(key);
    connect(entry, &QAction::triggered, this, m_commands.command(action));
    m_actions.append(entry);
}

/// Changes only rows that are not in the wanted state yet.
void HideCommands::hideOrShow(const PlotRows::Indices& rows, bool hides)
{
    const EvmPlot* const plot = m_commands.activePlot();
    if (plot == nullptr)
        return;
    PlotRows::Indices changed;
    for (const std::size_t row : rows) {
        if (plot->rows().at(row).isHidden != hides)
            changed.push_back(row);
    }
    if (!changed.empty())
        m_commands.change(stepName(hides, changed.size()),
                          [&](EvmPlot& active) { active.rows().setHidden(changed, hides); });
    m_commands.user().showNote(tr("Hidden curves: %1 of %2")
                                   .arg(plot->rows().hidden().size())
                                   .arg(plot->rows().count())
                                   .toStdString());
}

void HideCommands::hideSelected()
{
    const PlotRows::Indices rows = m_grid.selectedRows();
    if (rows.empty())
        m_commands.warn("Please select curves, or rows of Data Control, to hide.");
    else
        hideOrShow(rows, true);
}

void HideCommands::showSelected()
{
    const PlotRows::Indices rows = m_grid.selectedRows();
    if (rows.empty())
        m_commands.warn("Please select hidden rows of Data Control to show.");
    else
        hideOrShow(rows, false);
}

void HideCommands::showAll()
{
    if (const EvmPlot* const plot = m_commands.activePlot())
        hideOrShow(plot->rows().hidden(), false);
}

} // namespace tarsil
