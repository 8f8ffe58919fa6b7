// SPDX-License-Identifier: Apache-2.0
#include "explorer/PlotNodes.h"

#include "document/PlotList.h"
#include "explorer/ExplorerNode.h"
#include "vgfplot/EvmPlot.h"

#include <algorithm>
#include <vector>

namespace tarsil {

PlotNodes::PlotNodes(QTreeWidgetItem& folder, PlotList& plots, ExplorerImages& images,
                     QObject* parent)
    : QObject(parent), m_folder(folder), m_plots(plots), m_images(images)
{
    for (EvmPlot* const plot : plots.all())
        addPlot(plot);
    showActive(nullptr, plots.active());
    connect(&plots, &PlotList::added, this, &PlotNodes::addPlot);
    connect(&plots, &PlotList::aboutToBeRemoved, this, &PlotNodes::removePlot);
    connect(&plots, &PlotList::activeChanged, this, &PlotNodes::showActive);
}

QTreeWidgetItem* PlotNodes::nodeOf(const EvmPlot* plot) const
{
    return m_nodes.value(plot);
}

void PlotNodes::addPlot(EvmPlot* plot)
{
    Node node = makeNode(plot->properties().Caption(), plot->properties().Caption());
    node->setFlags(node->flags() | Qt::ItemIsEditable);
    setImage(*node, m_images, QStringLiteral("plot"));
    setTag(*node, plot);
    m_nodes.insert(plot, node.get());
    const std::vector<EvmPlot*> all = m_plots.all();
    const auto position = std::find(all.begin(), all.end(), plot) - all.begin();
    m_folder.insertChild(static_cast<int>(position), node.release());
    connect(plot, &EvmPlot::changed, this, [this, plot] { showCaption(plot); });
}

void PlotNodes::removePlot(EvmPlot* plot)
{
    plot->disconnect(this);
    const Node node(m_nodes.take(plot)); // the destructor removes it from the tree
}

void PlotNodes::showActive(EvmPlot* before, EvmPlot* now)
{
    if (QTreeWidgetItem* const node = nodeOf(before))
        undistinguish(*node);
    if (QTreeWidgetItem* const node = nodeOf(now))
        distinguish(*node, QStringLiteral("active plot"));
}

void PlotNodes::showCaption(const EvmPlot* plot)
{
    QTreeWidgetItem* const node = nodeOf(plot);
    if (node == nullptr || node->text(0) == plot->properties().Caption())
        return;
    node->setText(0, plot->properties().Caption());
    setKey(*node, plot->properties().Caption());
}

} // namespace tarsil
