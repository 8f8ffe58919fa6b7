// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class QTreeWidgetItem;

namespace tarsil {

class EvmPlot;
class ExplorerImages;
class PlotList;

/// The nodes of the plots, children of one folder. They follow a list of plots with their captions
/// and the active plot. Text and key of a node are the caption of its plot.
class PlotNodes : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive this object.
    PlotNodes(QTreeWidgetItem& folder, PlotList& plots, ExplorerImages& images,
              QObject* parent = nullptr);

    /// Null for a plot without a node.
    QTreeWidgetItem* nodeOf(const EvmPlot* plot) const;

private:
    void addPlot(EvmPlot* plot);
    void removePlot(EvmPlot* plot);
    void showActive(EvmPlot* before, EvmPlot* now);
    void showCaption(const EvmPlot* plot);

    QTreeWidgetItem& m_folder;
    PlotList& m_plots;
    ExplorerImages& m_images;
    QHash<const EvmPlot*, QTreeWidgetItem*> m_nodes;
};

} // namespace tarsil
