#pragma once

#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "model/PlotAxes.h"
#include "vgfplot/EvmPlot.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace tarsil {

class EvmPlotView;

/// The window of the V-g-f plots. It owns them as an array that begins with element 0, "Plot1",
/// which is always there. At most one plot is active: it is the only visible one, fills the window,
/// and is what every command on "the plot" means; the window's title names it. A new window has no
/// active plot.
class wndEvolPlot : public QWidget
{
    Q_OBJECT

public:
    /// `user` gets the window's messages and must outlive it.
    explicit wndEvolPlot(UserInterface& user, QWidget* parent = nullptr);
    ~wndEvolPlot() override;

    QSize sizeHint() const override;

    /// The axes of plots that are made anew from now on; those that are there, and copies, keep
    /// their own.
    void setNewPlotAxes(const PlotAxes& axes) { m_newPlotAxes = axes; }
    const PlotAxes& newPlotAxes() const { return m_newPlotAxes; }

    /// For series that `AddSerie` adds from now on.
    void setNewSeriesMarkers(const MarkerOptions& markers) { m_newSeriesMarkers = markers; }

    /// Null when no plot is active.
    EvmPlot* ActivePlot() const { return m_activePlot; }

    /// Hides the active plot and shows `plot` instead, fitted to the window and with the window's
    /// keyboard focus; null leaves no plot active. Error 5 for a plot of another window.
    void ActivatePlot(EvmPlot* plot);

    /// Appends a plot with the index after the highest one in use and does not activate it. It has
    /// the axes of `newPlotAxes`. An empty caption becomes "Plot" and the plot's place, its
    /// index counted from 1: "Plot2". Error 6 "Overflow" for an index above 32767.
    EvmPlot& AddPlot(const QString& caption);

    /// Appends a copy of the active plot (`EvmPlot::Clone`: without its series; with the text that
    /// is being edited) as `AddPlot` does.
    /// An empty caption becomes the active plot's with the copy's place: "Plot1(2)".
    /// Null, after a message to the user, when no plot is active. Errors as in `AddPlot`.
    EvmPlot* CopyPlot(const QString& caption);

    /// Removes a plot; its predecessor becomes active when it was. Element 0 stays, and a plot that
    /// is not of this window is nothing to remove.
    void RemovePlot(EvmPlot* plot);

    /// Appends a series for a mode to the active plot (`EvmPlot::addSeries`). Without an active
    /// plot the user gets a message and nothing changes.
    void AddSerie(AeMode& mode);

    /// Makes a plot fill the window from its upper left corner; null is nothing to fit.
    void FitPlot(EvmPlot* plot);

    /// All plots in the order of their indices.
    std::vector<EvmPlot*> plots() const;

    /// The widget that shows a plot; null for a plot of another window.
    EvmPlotView* viewOf(const EvmPlot& plot);

Q_SIGNALS:
    /// Another plot is active, or none (null); both still exist.
    void activePlotChanged(tarsil::EvmPlot* before, tarsil::EvmPlot* now);

    /// A plot is there, with its caption.
    void plotAdded(tarsil::EvmPlot* plot);

    /// A plot, which is not active any more, ends when all have heard of it.
    void plotAboutToBeRemoved(tarsil::EvmPlot* plot);

    /// The user wants the menu of the active plot, by the right button or by the keyboard.
    void plotMenuRequested(QPoint globalPosition);

    /// Drawing a plot failed; see `EvmPlotView::failed`.
    void failed(const tarsil::RunTimeError& error);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    /// One plot of the array. The view ends before the plot that it shows.
    struct Element
    {
        int index;
        std::unique_ptr<EvmPlot> plot;
        std::unique_ptr<EvmPlotView> view;
    };

    int nextIndex() const;
    Element makeElement(int index);
    EvmPlot& append(Element element);
    std::vector<Element>::iterator find(const EvmPlot* plot);
    bool hasActivePlot();
    void hideActivePlot();
    void updateTitle();

    UserInterface& m_user;
    std::vector<Element> evpVgf; ///< by increasing index
    EvmPlot* m_activePlot = nullptr;
    PlotAxes m_newPlotAxes;
    std::optional<MarkerOptions> m_newSeriesMarkers;
};

} // namespace tarsil
