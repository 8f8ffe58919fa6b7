#include "explorer/PlotNodes.h"

#include "explorer/ExplorerNode.h"
#include "plotwindow/WndEvolPlot.h"

namespace tarsil {

PlotNodes::PlotNodes(QTreeWidgetItem& folder, wndEvolPlot& plots, ExplorerImages& images,
                     QObject* parent)
    : QObject(parent), m_folder(folder), m_images(images)
{
    for (EvmPlot* const plot : plots.plots())
        addPlot(plot);
    markActive(nullptr, plots.ActivePlot());
    connect(&plots, &wndEvolPlot::plotAdded, this, &PlotNodes::addPlot);
    connect(&plots, &wndEvolPlot::plotAboutToBeRemoved, this, &PlotNodes::removePlot);
    connect(&plots, &wndEvolPlot::activePlotChanged, this, &PlotNodes::markActive);
}

QTreeWidgetItem* PlotNodes::nodeOf(const EvmPlot* plot) const
{
    return m_nodes.value(plot);
}

bool PlotNodes::isTaken(const QString& caption, const EvmPlot& plot) const
{
    for (int i = 0; i < m_folder.childCount(); ++i) {
        const QTreeWidgetItem* const node = m_folder.child(i);
        if (taggedPlot(node) != &plot && node->text(0) == caption)
            return true;
    }
    return false;
}

void PlotNodes::addPlot(EvmPlot* plot)
{
    const QString caption = uniqueCaption(*plot);
    if (caption != plot->Caption())
        plot->setCaption(caption);
    Node node = makeNode(caption, caption);
    node->setFlags(node->flags() | Qt::ItemIsEditable);
    setImage(*node, m_images, QStringLiteral("plot"));
    setTag(*node, plot);
    m_nodes.insert(plot, append(m_folder, std::move(node)));
    connect(plot, &EvmPlot::changed, this, [this, plot] { showCaption(plot); });
}

void PlotNodes::removePlot(EvmPlot* plot)
{
    plot->disconnect(this);
    const Node node(m_nodes.take(plot)); // leaves the tree as it ends
}

void PlotNodes::markActive(EvmPlot* before, EvmPlot* now)
{
    if (QTreeWidgetItem* const node = nodeOf(before))
        undistinguish(*node);
    if (QTreeWidgetItem* const node = nodeOf(now))
        distinguish(*node, QStringLiteral("active plot"));
}

void PlotNodes::showCaption(const EvmPlot* plot)
{
    QTreeWidgetItem* const node = nodeOf(plot);
    if (node == nullptr || node->text(0) == plot->Caption())
        return;
    node->setText(0, plot->Caption());
    setKey(*node, plot->Caption());
}

/// The plot's caption, with the first number from 2 on that no other plot has when it is taken.
QString PlotNodes::uniqueCaption(const EvmPlot& plot) const
{
    QString caption = plot.Caption();
    for (int number = 2; isTaken(caption, plot); ++number)
        caption = QStringLiteral("%1(%2)").arg(plot.Caption(), QString::number(number));
    return caption;
}

} // namespace tarsil
