#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class QTreeWidgetItem;

namespace tarsil {

class EvmPlot;
class ExplorerImages;
class PlotList;

/// The nodes of the plots, children of one folder. They follow a list of plots: which there are,
/// what they are called, and which is active. A node's text and key are its plot's caption.
class PlotNodes : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive this.
    PlotNodes(QTreeWidgetItem& folder, PlotList& plots, ExplorerImages& images,
              QObject* parent = nullptr);

    /// Null for a plot without a node.
    QTreeWidgetItem* nodeOf(const EvmPlot* plot) const;

private:
    void addPlot(EvmPlot* plot);
    void removePlot(EvmPlot* plot);
    void markActive(EvmPlot* before, EvmPlot* now);
    void showCaption(const EvmPlot* plot);

    QTreeWidgetItem& m_folder;
    PlotList& m_plots;
    ExplorerImages& m_images;
    QHash<const EvmPlot*, QTreeWidgetItem*> m_nodes;
};

} // namespace tarsil
