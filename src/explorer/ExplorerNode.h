// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QTreeWidgetItem>

#include <memory>

class QTreeWidget;

namespace tarsil {

class EVM;
class EvmPlot;
class ExplorerImages;

/// The data roles of a node of the tree.
enum NodeRole {
    KeyRole = Qt::UserRole, ///< QString: key of the node; none for a node that shows a value
    ImageRole, ///< QString: name of the image
    TagRole, ///< EVM* or EvmPlot* of the node
    MeaningRole, ///< QString: what distinguishes the node from its neighbours
    FindingsRole ///< QString: findings about the node
};

using Node = std::unique_ptr<QTreeWidgetItem>;

/// A node without a parent that cannot be edited.
Node makeNode(const QString& key, const QString& text);

/// A child node for a value; it has no key.
Node makeValueNode(const QString& text, bool isEditable);

/// Appends a node, which `parent` then owns, and returns it.
QTreeWidgetItem* append(QTreeWidgetItem& parent, Node child);

QString keyOf(const QTreeWidgetItem& node);
void setKey(QTreeWidgetItem& node, const QString& key);

/// Shows the image of a name, or none for an empty name.
void setImage(QTreeWidgetItem& node, ExplorerImages& images, const QString& name);

/// Sets a tool tip that is shown as plain text, even if it looks like HTML.
void setPlainToolTip(QTreeWidgetItem& node, const QString& text);

/// Shows a warning sign, with the findings as tool tip and for screen readers.
void warn(QTreeWidgetItem& node, ExplorerImages& images, const QString& findings);

/// The evolution or plot of this node; null when it has none.
EVM* taggedEvolution(const QTreeWidgetItem* node);
EvmPlot* taggedPlot(const QTreeWidgetItem* node);
void setTag(QTreeWidgetItem& node, EVM* evolution);
void setTag(QTreeWidgetItem& node, EvmPlot* plot);

/// Makes a node bold, and gives `meaning` to screen readers.
void distinguish(QTreeWidgetItem& node, const QString& meaning);
void undistinguish(QTreeWidgetItem& node);

} // namespace tarsil
