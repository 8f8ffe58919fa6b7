#pragma once

#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "plotwindow/PlotHighlight.h"
#include "vgfplot/EvmPlot.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace tarsil {

class EvmPlotView;
class PlotList;

/// The window of the V-g-f plots: it shows the active plot of a list, which fills it; its title
/// names that plot. It has a view for every plot of the list, and owns none of the plots.
class wndEvolPlot : public QWidget
{
    Q_OBJECT

public:
    /// Both must outlive the window; `user` gets its messages.
    wndEvolPlot(PlotList& plots, UserInterface& user, QWidget* parent = nullptr);
    ~wndEvolPlot() override;

    QSize sizeHint() const override;

    /// Null when no plot is active.
    EvmPlot* ActivePlot() const;

    /// `PlotList::activate`; the plot is shown fitted to the window and with the window's keyboard
    /// focus.
    void ActivatePlot(EvmPlot* plot);

    /// `PlotList::add`.
    EvmPlot& AddPlot(const QString& caption);

    /// `PlotList::copyActive`. Null, after a message to the user, when no plot is active.
    EvmPlot* CopyPlot(const QString& caption);

    /// `PlotList::remove`. Element 0 stays, and a plot that is not of this window is nothing
    /// to remove.
    void RemovePlot(EvmPlot* plot);

    /// Appends a series for a mode to the active plot (`PlotRows::add`). Without an active
    /// plot the user gets a message and nothing changes.
    void AddSerie(AeMode& mode);

    /// Makes a plot fill the window from its upper left corner; null is nothing to fit.
    void FitPlot(EvmPlot* plot);

    /// `PlotList::all`.
    std::vector<EvmPlot*> plots() const;

    /// The widget that shows a plot; null for a plot of another window.
    EvmPlotView* viewOf(const EvmPlot& plot);

    /// Points something out in the active plot (`EvmPlotView::setHighlight`), and nothing in the
    /// others.
    void highlight(const std::optional<PlotHighlight>& highlight);

    /// Fits all plots, also those that have never been shown.
    void fitAll();

Q_SIGNALS:
    /// The user has edited or moved a text box; see `EvmPlotView::edited`.
    void edited(const QString& what, bool joins);

    /// The user wants the menu of the active plot, by the right button or by the keyboard.
    void plotMenuRequested(QPoint globalPosition);

    /// Drawing a plot failed; see `EvmPlotView::failed`.
    void failed(const tarsil::RunTimeError& error);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    struct Element
    {
        EvmPlot* plot;
        std::unique_ptr<EvmPlotView> view;
    };

    void addView(EvmPlot* plot);
    void removeView(EvmPlot* plot);
    void showPlot(EvmPlot* before, EvmPlot* now);
    void hidePlot(EvmPlot& plot);
    bool hasActivePlot();
    void updateTitle();

    PlotList& m_plots;
    UserInterface& m_user;
    std::vector<Element> evpVgf; ///< the first one is that of "Plot1", which is always there
};

} // namespace tarsil
