// SPDX-License-Identifier: Apache-2.0

// Editing of the labels of the explorer's tree.

#include "base/user/TypedNumber.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "explorer/ExplorerNode.h"
#include "explorer/LabelDelegate.h"
#include "explorer/WndEvolExplorer.h"
#include "model/EVM.h"
#include "plotwindow/WndEvolPlot.h"
#include "vgfplot/EvmPlot.h"

#include <QLineEdit>
#include <QPointer>
#include <QTreeWidget>

#include <algorithm>

namespace tarsil {

/// Double click or Enter: shows a plot, or edits a value.
void wndEvolExplorer::nodeActivated(QTreeWidgetItem* node)
{
    if (EvmPlot* const plot = taggedPlot(node))
        runCommand([this, plot] { m_plotWindow.ActivatePlot(plot); });
    else if (node->flags().testFlag(Qt::ItemIsEditable))
        m_tree->editItem(node);
}

/// A closed editor is hidden and deleted a little later. A message shown while the label is
/// accepted can close the editor too.
void wndEvolExplorer::commitEdits()
{
    const QList<QLineEdit*> editors = m_tree->viewport()->findChildren<QLineEdit*>();
    const auto open = std::find_if(editors.begin(), editors.end(),
                                   [](const QLineEdit* editor) { return !editor->isHidden(); });
    if (open == editors.end())
        return;
    const QPointer<QLineEdit> editor(*open);
    Q_EMIT m_labels->commitData(editor);
    if (editor != nullptr && !editor->isHidden())
        Q_EMIT m_labels->closeEditor(editor);
}

void wndEvolExplorer::rename(QTreeWidgetItem& node, const QString& text)
{
    if (EvmPlot* const plot = taggedPlot(&node)) {
        renamePlot(*plot, text);
    } else if (text == node.text(0)) {
        return;
    } else if (EVM* const evolution = m_evolutions.evolutionAt(&node)) {
        changeParameter(*evolution, m_evolutions.valueAt(node), text);
    } else if (&node == &m_workspace.description()) {
        m_document.setDescription(text);
        m_document.history().note(tr("Edit Description"));
    }
}

/// The node follows the caption of the plot.
void wndEvolExplorer::renamePlot(EvmPlot& plot, const QString& text)
{
    if (!m_document.plots().rename(plot, text)) {
        m_user.showMessage("This name already exist. Please, select another one.", "Tarsil",
                           MessageIcon::Exclamation);
        return;
    }
    m_document.history().note(tr("Rename Plot"));
    m_plotWindow.ActivatePlot(&plot);
}

void wndEvolExplorer::changeParameter(EVM& evolution, EvolutionValue value, const QString& text)
{
    EditableParam parameters = evolution.Param.editable();
    switch (value) {
    case EvolutionValue::Airplane:
        parameters.airplane = text.toStdString();
        break;
    case EvolutionValue::Mass:
        parameters.mass = text.toStdString();
        break;
    case EvolutionValue::Mach: {
        const std::optional<float> mach =
            typedSingle(text.toStdString(), "wndEvolExplorer", "Mach No.", m_user);
        if (!mach)
            return;
        parameters.mach = *mach;
        break;
    }
    case EvolutionValue::None:
        return;
    }
    m_document.evolutions().setParameters(evolution, parameters);
    m_document.history().note(tr("Edit Parameters"));
}

} // namespace tarsil
