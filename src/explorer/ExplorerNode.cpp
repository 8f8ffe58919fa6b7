// SPDX-License-Identifier: Apache-2.0
#include "explorer/ExplorerNode.h"

#include "explorer/ExplorerImages.h"
#include "model/EVM.h"
#include "plotwindow/ToolTipText.h"
#include "vgfplot/EvmPlot.h"

#include <QFont>
#include <QStringList>
#include <QTreeWidget>

namespace tarsil {

namespace {

/// Updates what screen readers say about a node beyond its text.
void describe(QTreeWidgetItem& node)
{
    QStringList texts {node.data(0, MeaningRole).toString(), node.data(0, FindingsRole).toString()};
    texts.removeAll(QString());
    node.setData(0, Qt::AccessibleDescriptionRole,
                 texts.isEmpty() ? QVariant() : QVariant(texts.join(u'\n')));
}

} // namespace

Node makeNode(const QString& key, const QString& text)
{
    auto node = std::make_unique<QTreeWidgetItem>();
    node->setText(0, text);
    node->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    setKey(*node, key);
    return node;
}

Node makeValueNode(const QString& text, bool isEditable)
{
    Node node = makeNode(QString(), text);
    node->setFlags(node->flags().setFlag(Qt::ItemIsEditable, isEditable));
    return node;
}

QTreeWidgetItem* append(QTreeWidgetItem& parent, Node child)
{
    parent.addChild(child.get());
    return child.release();
}

QString keyOf(const QTreeWidgetItem& node)
{
    return node.data(0, KeyRole).toString();
}

void setKey(QTreeWidgetItem& node, const QString& key)
{
    node.setData(0, KeyRole, key.isEmpty() ? QVariant() : QVariant(key));
}

void setImage(QTreeWidgetItem& node, ExplorerImages& images, const QString& name)
{
    node.setIcon(0, images.image(name));
    node.setData(0, ImageRole, name);
}

void setPlainToolTip(QTreeWidgetItem& node, const QString& text)
{
    node.setToolTip(0, toolTipText(text));
}

void warn(QTreeWidgetItem& node, ExplorerImages& images, const QString& findings)
{
    setImage(node, images, QStringLiteral("warning"));
    setPlainToolTip(node, findings);
    node.setData(0, FindingsRole, findings);
    describe(node);
}

EVM* taggedEvolution(const QTreeWidgetItem* node)
{
    return node != nullptr ? node->data(0, TagRole).value<EVM*>() : nullptr;
}

EvmPlot* taggedPlot(const QTreeWidgetItem* node)
{
    return node != nullptr ? node->data(0, TagRole).value<EvmPlot*>() : nullptr;
}

void setTag(QTreeWidgetItem& node, EVM* evolution)
{
    node.setData(0, TagRole, QVariant::fromValue(evolution));
}

void setTag(QTreeWidgetItem& node, EvmPlot* plot)
{
    node.setData(0, TagRole, QVariant::fromValue(plot));
}

void distinguish(QTreeWidgetItem& node, const QString& meaning)
{
    QFont font = node.treeWidget() != nullptr ? node.treeWidget()->font() : QFont();
    font.setBold(true);
    node.setFont(0, font);
    node.setData(0, MeaningRole, meaning);
    describe(node);
}

void undistinguish(QTreeWidgetItem& node)
{
    node.setData(0, Qt::FontRole, QVariant());
    node.setData(0, MeaningRole, QVariant());
    describe(node);
}

} // namespace tarsil
