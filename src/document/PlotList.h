#pragma once

#include "model/PlotAxes.h"
#include "plot/Marker.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace tarsil {

class EvmPlot;

/// The plots of a document, in the order of their indices. Index 0 is "Plot1", which is always
/// there. At most one plot is active: it is the only visible one, and what every command on "the
/// plot" means. No two plots have the same caption. A new list has no active plot.
///
/// The list owns its plots, together with whoever wants to put back one that has left it.
class PlotList : public QObject
{
    Q_OBJECT

public:
    PlotList();
    ~PlotList() override;

    struct Element
    {
        int index = 0; ///< which the plot keeps for life
        std::shared_ptr<EvmPlot> plot;
    };

    const std::vector<Element>& elements() const { return m_plots; }

    /// All plots in the order of their indices.
    std::vector<EvmPlot*> all() const;

    /// The plot of index 0.
    EvmPlot& first() const;

    bool contains(const EvmPlot* plot) const;

    /// Null when no plot is active.
    EvmPlot* active() const { return m_active; }

    /// Hides the active plot and shows `plot` instead; null leaves no plot active. Error 5 for a
    /// plot that is not in the list.
    void activate(EvmPlot* plot);

    /// The axes of plots that are made from now on; those that are there, and copies, keep theirs.
    void setNewPlotAxes(const PlotAxes& axes) { m_newPlotAxes = axes; }
    const PlotAxes& newPlotAxes() const { return m_newPlotAxes; }

    /// The markers of series that the user adds from now on; nothing for those of a new series.
    void setNewSeriesMarkers(const MarkerOptions& markers) { m_newSeriesMarkers = markers; }
    const std::optional<MarkerOptions>& newSeriesMarkers() const { return m_newSeriesMarkers; }

    /// Appends a plot with the index after the highest one in use and does not activate it. An
    /// empty caption becomes "Plot" and the index counted from 1: "Plot2". A caption that another
    /// plot has gets a number: "Wing(2)". Error 6 "Overflow" for an index above 32767.
    EvmPlot& add(const QString& caption);

    /// Appends a copy of the active plot (`EvmPlot::Clone`: without its series; with the text that
    /// is being edited) as `add` does. An empty caption becomes the active plot's with the index
    /// of the copy: "Plot1(2)". Error 91 when no plot is active.
    EvmPlot& copyActive(const QString& caption);

    /// Removes a plot; its predecessor becomes active when it was. Error 5 for the plot of index 0
    /// and for one that is not in the list.
    void remove(EvmPlot& plot);

    /// Inserts a plot that has left the list at its index. Nothing happens when it is there.
    void putBack(const Element& element);

    /// Gives a plot another caption; a blank one changes nothing. False, and nothing changes, when
    /// another plot has that caption.
    bool rename(EvmPlot& plot, const QString& caption);

    /// Leaves the plot of index 0 alone, empty and as new, and activates it. Nothing is drawn.
    void startNew();

Q_SIGNALS:
    /// Another plot is active, or none (null); both still exist.
    void activeChanged(tarsil::EvmPlot* before, tarsil::EvmPlot* now);

    /// A plot is in the list, with its caption.
    void added(tarsil::EvmPlot* plot);

    /// A plot, which is not active any more, leaves the list when all have heard of it. Views of
    /// it end now; it may come back.
    void aboutToBeRemoved(tarsil::EvmPlot* plot);

private:
    std::vector<Element>::iterator find(const EvmPlot* plot);
    int nextIndex() const;
    Element makeElement(int index) const;
    EvmPlot& append(Element element, const QString& caption);
    bool isTaken(const QString& caption, const EvmPlot& plot) const;
    QString uniqueCaption(const QString& caption, const EvmPlot& plot) const;

    std::vector<Element> m_plots; ///< by increasing index
    EvmPlot* m_active = nullptr;
    PlotAxes m_newPlotAxes;
    std::optional<MarkerOptions> m_newSeriesMarkers;
};

} // namespace tarsil
