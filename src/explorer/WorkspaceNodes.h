// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QTreeWidget;
class QTreeWidgetItem;

namespace tarsil {

class ExplorerImages;
struct WorkspaceTexts;

/// The permanent nodes of the tree: the workspace, its general information with a description and
/// two dates, and the folders of evolutions and plots.
class WorkspaceNodes
{
public:
    /// Creates the nodes in an empty tree, which owns them. The images must outlive the tree.
    WorkspaceNodes(QTreeWidget& tree, ExplorerImages& images);

    void show(const WorkspaceTexts& texts);

    /// Opens the root and closes the folders.
    void closeFolders();

    QTreeWidgetItem& root() const { return *m_root; }
    QTreeWidgetItem& evolutions() const { return *m_evolutions; }
    QTreeWidgetItem& plots() const { return *m_plots; }

    /// The node that shows the description.
    QTreeWidgetItem& description() const { return *m_description; }

private:
    QTreeWidgetItem* makeFolder(const QString& key, const QString& text);
    QTreeWidgetItem* makeValue(const QString& key, const QString& text, bool isEditable);

    ExplorerImages& m_images;
    QTreeWidgetItem* m_root = nullptr;
    QTreeWidgetItem* m_general = nullptr;
    QTreeWidgetItem* m_description = nullptr;
    QTreeWidgetItem* m_dateCreated = nullptr;
    QTreeWidgetItem* m_dateModified = nullptr;
    QTreeWidgetItem* m_evolutions = nullptr;
    QTreeWidgetItem* m_plots = nullptr;
};

} // namespace tarsil
