// SPDX-License-Identifier: Apache-2.0

// The toolbar of the explorer; adding and removing evolutions and plots.

#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "explorer/CurveAdder.h"
#include "explorer/ExplorerNode.h"
#include "explorer/PlotNodes.h"
#include "explorer/WndEvolExplorer.h"
#include "model/EVM.h"
#include "plotwindow/ToolTipText.h"
#include "plotwindow/WndEvolPlot.h"
#include "vgfplot/EvmPlot.h"

#include <QAction>
#include <QToolBar>
#include <QTreeWidget>

namespace tarsil {

std::vector<wndEvolExplorer::Button> wndEvolExplorer::buttonTable()
{
    return {{"New", "New Workspace", &wndEvolExplorer::newWanted},
            {"Open", "Open Workspace", &wndEvolExplorer::openWanted},
            {"Save", "Save Workspace", &wndEvolExplorer::saveWanted, true},
            {"Add", "Add Modal Evolution", &wndEvolExplorer::addWanted},
            {"Remove", "Remove Modal Evolution", &wndEvolExplorer::remove_Click},
            {"Select", "Select Modal Evolution", &wndEvolExplorer::select_Click, true},
            {"AddPlot", "Insert New Plot", &wndEvolExplorer::addPlot_Click},
            {"CopyPlot", "Copy Active Plot", &wndEvolExplorer::copyPlot_Click},
            {"RemovePlot", "Remove Active Plot", &wndEvolExplorer::removePlot_Click}};
}

void wndEvolExplorer::makeToolbar()
{
    m_toolBar->setObjectName(QStringLiteral("tbrEvolExp"));
    m_toolBar->setAccessibleName(QStringLiteral("Workspace"));
    m_toolBar->setIconSize({20, 20});
    for (const Button& button : buttonTable()) {
        addButton(button);
        if (button.endsGroup)
            m_toolBar->addSeparator();
    }
}

void wndEvolExplorer::addButton(const Button& button)
{
    const QString key = QString::fromLatin1(button.key);
    const QString toolTip = QString::fromLatin1(button.toolTip);
    QAction* const action = m_toolBar->addAction(m_images.image(key), toolTip);
    action->setObjectName(key);
    action->setToolTip(toolTip);
    connect(action, &QAction::triggered, this, [this, toolTip, handler = button.handler] {
        runCommand([this, handler] { (this->*handler)(); });
        m_document.history().note(toolTip);
    });
}

void wndEvolExplorer::showKeyOfSave(const QKeySequence& key)
{
    QAction& save = *m_toolBar->findChild<QAction*>(QStringLiteral("Save"));
    save.setToolTip(toolTipWithKeys(save.text(), {key}));
}

void wndEvolExplorer::remove_Click()
{
    const std::vector<EVM*> evolutions = selectedEvolutions();
    if (evolutions.empty())
        m_user.showMessage("Please select a modal evolution.", "Tarsil", MessageIcon::Exclamation);
    m_document.remove(evolutions);
}

/// Checks all evolutions before the first series is added, so that an error changes nothing.
void wndEvolExplorer::select_Click()
{
    std::vector<AeMode*> modes;
    for (const EVM* const evolution : evolutionsToSelect()) {
        if (evolution->Modes.empty())
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "wndEvolExplorer",
                               "mode 1 of \"" + evolution->FileName + "\", which has no modes");
        modes.push_back(evolution->Modes.front().get());
    }
    addCurves(m_plotWindow, modes);
}

/// The ticked evolutions; those of the selected nodes when none is ticked.
std::vector<EVM*> wndEvolExplorer::evolutionsToSelect() const
{
    std::vector<EVM*> evolutions = m_evolutions.ticked();
    if (evolutions.empty() && evolutionOfSelectedNode() != nullptr)
        evolutions = selectedEvolutions();
    return evolutions;
}

void wndEvolExplorer::addPlot_Click()
{
    showNode(m_plotWindow.AddPlot(QString()));
}

void wndEvolExplorer::copyPlot_Click()
{
    if (EvmPlot* const copy = m_plotWindow.CopyPlot(QString()))
        showNode(*copy);
}

/// A new plot is not activated, so only its node and a note show that it exists.
void wndEvolExplorer::showNode(const EvmPlot& plot)
{
    m_tree->scrollToItem(m_plots->nodeOf(&plot));
    m_user.showNote("Added the plot \"" + plot.properties().Caption().toStdString()
                    + "\". Double-click it to show it");
}

void wndEvolExplorer::removePlot_Click()
{
    m_plotWindow.RemovePlot(m_plotWindow.ActivePlot());
}

} // namespace tarsil
