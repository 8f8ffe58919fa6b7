#pragma once

#include <QString>
#include <QTreeWidgetItem>

#include <memory>

class QTreeWidget;

namespace tarsil {

class EVM;
class EvmPlot;
class ExplorerImages;

/// What a node of the explorer's tree holds besides its text.
enum NodeRole {
    KeyRole = Qt::UserRole, ///< the node's key, a text; none for a node that shows a value
    ImageRole, ///< the name of the node's image
    TagRole, ///< the EVM* or EvmPlot* that the node stands for
    MeaningRole, ///< what sets the node off from its neighbours, a text
    FindingsRole ///< what is doubtful about it, a text
};

using Node = std::unique_ptr<QTreeWidgetItem>;

/// A node of its own that cannot be edited, to be handed to its parent.
Node makeNode(const QString& key, const QString& text);

/// The child that shows the value of a node; it has no key.
Node makeValueNode(const QString& text, bool isEditable);

/// Appends a node and returns it; it belongs to `parent` then.
QTreeWidgetItem* append(QTreeWidgetItem& parent, Node child);

QString keyOf(const QTreeWidgetItem& node);
void setKey(QTreeWidgetItem& node, const QString& key);

/// Shows the image of that name; an empty name shows none.
void setImage(QTreeWidgetItem& node, ExplorerImages& images, const QString& name);

/// Shows a text while the pointer rests on a node: as it stands, also when it looks like HTML.
void setPlainToolTip(QTreeWidgetItem& node, const QString& text);

/// Shows a warning sign, and what is doubtful while the pointer rests on the node and to those who
/// cannot see that.
void warn(QTreeWidgetItem& node, ExplorerImages& images, const QString& findings);

/// The evolution or plot that a node itself stands for; null when it stands for none.
EVM* taggedEvolution(const QTreeWidgetItem* node);
EvmPlot* taggedPlot(const QTreeWidgetItem* node);
void setTag(QTreeWidgetItem& node, EVM* evolution);
void setTag(QTreeWidgetItem& node, EvmPlot* plot);

/// Sets a node off from its neighbours: bold, and with `meaning` for those who cannot see that.
void distinguish(QTreeWidgetItem& node, const QString& meaning);
void undistinguish(QTreeWidgetItem& node);

} // namespace tarsil
