#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class QTreeWidgetItem;

namespace tarsil {

class EvmPlot;
class ExplorerImages;
class wndEvolPlot;

/// The nodes of the plots, children of one folder. They follow the plots of the window: which there
/// are, what they are called, and which is active. A node's text and key are its plot's caption; a
/// plot that comes with the caption of another one gets a caption of its own.
class PlotNodes : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive this.
    PlotNodes(QTreeWidgetItem& folder, wndEvolPlot& plots, ExplorerImages& images,
              QObject* parent = nullptr);

    /// Null for a plot without a node.
    QTreeWidgetItem* nodeOf(const EvmPlot* plot) const;

    /// Whether a plot other than `plot` has this caption.
    bool isTaken(const QString& caption, const EvmPlot& plot) const;

private:
    void addPlot(EvmPlot* plot);
    void removePlot(EvmPlot* plot);
    void markActive(EvmPlot* before, EvmPlot* now);
    void showCaption(const EvmPlot* plot);
    QString uniqueCaption(const EvmPlot& plot) const;

    QTreeWidgetItem& m_folder;
    ExplorerImages& m_images;
    QHash<const EvmPlot*, QTreeWidgetItem*> m_nodes;
};

} // namespace tarsil
