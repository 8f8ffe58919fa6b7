// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/PlotAxes.h"
#include "plot/CurvePalette.h"
#include "plot/Marker.h"
#include "vgfplot/PictureWriter.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace tarsil {

class EvmPlot;

/// The plots of a document by index. Index 0 is "Plot1", which always exists. At most one plot is
/// active: it is the only visible one, and commands on "the plot" mean it. Captions are unique. A
/// new list has no active plot.
///
/// Shares the ownership of plots with the undo history, which can put a removed plot back.
class PlotList : public QObject
{
    Q_OBJECT

public:
    PlotList();
    ~PlotList() override;

    struct Element
    {
        int index = 0; ///< constant for a plot
        std::shared_ptr<EvmPlot> plot;
    };

    const std::vector<Element>& elements() const { return m_plots; }

    /// All plots by index.
    std::vector<EvmPlot*> all() const;

    /// The plot of index 0.
    EvmPlot& first() const;

    bool contains(const EvmPlot* plot) const;

    /// Null when no plot is active.
    EvmPlot* active() const { return m_active; }

    /// Hides the active plot and shows `plot`; null activates none. Error 5 for a plot outside the
    /// list.
    void activate(EvmPlot* plot);

    /// The axes of plots that will be added. Existing plots and copies keep theirs.
    void setNewPlotAxes(const PlotAxes& axes) { m_newPlotAxes = axes; }
    const PlotAxes& newPlotAxes() const { return m_newPlotAxes; }

    /// The markers of series that the user will add; empty for the defaults of a series.
    void setNewSeriesMarkers(const MarkerOptions& markers) { m_newSeriesMarkers = markers; }
    const std::optional<MarkerOptions>& newSeriesMarkers() const { return m_newSeriesMarkers; }

    /// How series that the user will add are told apart.
    void setNewSeriesPalette(CurvePalette palette) { m_newSeriesPalette = palette; }
    CurvePalette newSeriesPalette() const { return m_newSeriesPalette; }

    /// How pictures of plots become files.
    void setPictureSettings(const PictureSettings& settings) { m_pictureSettings = settings; }
    const PictureSettings& pictureSettings() const { return m_pictureSettings; }

    /// Appends a plot with the index after the highest in use; does not activate it. An empty
    /// caption becomes "Plot" and the index counted from 1: "Plot2". A caption in use gets a
    /// number: "Wing(2)". Error 6 "Overflow" for an index above 32767.
    EvmPlot& add(const QString& caption);

    /// Appends a copy of the active plot as `add` does (`EvmPlot::Clone`: without its series, with
    /// edits in progress). An empty caption becomes that of the active plot with the index of the
    /// copy: "Plot1(2)". Error 91 when no plot is active.
    EvmPlot& copyActive(const QString& caption);

    /// Removes a plot from the list. If it was active, the plot before it becomes active. Error 5
    /// for the plot of index 0 and for one outside the list.
    void remove(EvmPlot& plot);

    /// Puts a removed plot back at its index. Does nothing when it is in the list.
    void putBack(const Element& element);

    /// Gives a plot another caption; a blank one changes nothing. False, and nothing changes, when
    /// another plot has that caption.
    bool rename(EvmPlot& plot, const QString& caption);

    /// Removes all plots but the first, empties and resets that one, and activates it. Does not
    /// draw.
    void startNew();

Q_SIGNALS:
    /// The active plot has changed; null for none. Both plots still exist.
    void activeChanged(tarsil::EvmPlot* before, tarsil::EvmPlot* now);

    /// A plot was added, with its caption.
    void added(tarsil::EvmPlot* plot);

    /// A plot, which is not active any more, is about to leave the list. Its views are to be
    /// deleted; the plot may be put back.
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
    CurvePalette m_newSeriesPalette = CurvePalette::Standard;
    PictureSettings m_pictureSettings;
};

} // namespace tarsil
