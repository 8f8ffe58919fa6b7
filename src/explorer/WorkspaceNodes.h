#pragma once

#include <QString>

class QTreeWidget;
class QTreeWidgetItem;

namespace tarsil {

class ExplorerImages;

/// The nodes of the tree that are always there: the workspace, its general information with a
/// description and two dates, and the folders of evolutions and plots. Their texts are the
/// workspace's description in memory.
class WorkspaceNodes
{
public:
    /// Builds the nodes in an empty tree, which owns them. The images must outlive the tree.
    WorkspaceNodes(QTreeWidget& tree, ExplorerImages& images);

    /// Gives the nodes the texts of a new, untitled workspace created now, opens the root and
    /// closes the folders.
    void startNew();

    QTreeWidgetItem& root() const { return *m_root; }
    QTreeWidgetItem& evolutions() const { return *m_evolutions; }
    QTreeWidgetItem& plots() const { return *m_plots; }

    // The nodes whose text is a value.
    QTreeWidgetItem& description() const { return *m_description; }
    QTreeWidgetItem& dateCreated() const { return *m_dateCreated; }
    QTreeWidgetItem& dateModified() const { return *m_dateModified; }

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
