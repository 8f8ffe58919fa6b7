// SPDX-License-Identifier: Apache-2.0
#include "explorer/WorkspaceNodes.h"

#include "document/WorkspaceTexts.h"
#include "explorer/ExplorerImages.h"
#include "explorer/ExplorerNode.h"

#include <QTreeWidget>

namespace tarsil {

WorkspaceNodes::WorkspaceNodes(QTreeWidget& tree, ExplorerImages& images) : m_images(images)
{
    Node root = makeNode(QStringLiteral("Root"), QString());
    setImage(*root, images, QStringLiteral("workspace"));
    m_root = root.get();
    tree.addTopLevelItem(root.release());
    m_general = makeFolder(QStringLiteral("Gener"), QStringLiteral("General Information"));
    m_description =
        makeValue(QStringLiteral("AnaDesc"), QStringLiteral("Analysis Description"), true);
    m_dateCreated =
        makeValue(QStringLiteral("Date_Created"), QStringLiteral("Date Created"), false);
    m_dateModified =
        makeValue(QStringLiteral("Date_Modified"), QStringLiteral("Date Modified"), false);
    m_evolutions = makeFolder(QStringLiteral("Evols"), QStringLiteral("Modal Evolutions"));
    m_plots = makeFolder(QStringLiteral("Plots"), QStringLiteral("Plots"));

    const auto showState = [this](QTreeWidgetItem* node, bool isOpen) {
        if (node == m_general || node == m_evolutions || node == m_plots)
            setImage(*node, m_images,
                     isOpen ? QStringLiteral("folderOpen") : QStringLiteral("folderClosed"));
    };
    QObject::connect(&tree, &QTreeWidget::itemExpanded, &tree,
                     [showState](QTreeWidgetItem* node) { showState(node, true); });
    QObject::connect(&tree, &QTreeWidget::itemCollapsed, &tree,
                     [showState](QTreeWidgetItem* node) { showState(node, false); });
    closeFolders();
}

void WorkspaceNodes::show(const WorkspaceTexts& texts)
{
    m_root->setText(0, texts.name);
    m_description->setText(0, texts.description);
    m_dateCreated->setText(0, texts.dateCreated);
    m_dateModified->setText(0, texts.dateModified);
}

void WorkspaceNodes::closeFolders()
{
    for (QTreeWidgetItem* const node : {m_description, m_dateCreated, m_dateModified})
        node->parent()->setExpanded(false);
    for (QTreeWidgetItem* const folder : {m_general, m_evolutions, m_plots})
        folder->setExpanded(false);
    m_root->setExpanded(true);
}

QTreeWidgetItem* WorkspaceNodes::makeFolder(const QString& key, const QString& text)
{
    QTreeWidgetItem* const folder = append(*m_root, makeNode(key, text));
    setImage(*folder, m_images, QStringLiteral("folderClosed"));
    return folder;
}

/// Creates a node of the general information; returns the child that shows its value.
QTreeWidgetItem* WorkspaceNodes::makeValue(const QString& key, const QString& text, bool isEditable)
{
    QTreeWidgetItem* const node = append(*m_general, makeNode(key, text));
    return append(*node, makeValueNode(QString(), isEditable));
}

} // namespace tarsil
