// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/UndoHistory.h"
#include "plotwindow/PlotHighlight.h"
#include "plotwindow/PlotSigns.h"
#include "vgfplot/EvmPlot.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace tarsil {

class EvmPlotView;
class EvolutionList;
class PlotList;

/// The window of the V-g-f plots: shows the active plot of a list in its whole area and names it in
/// its title. It has a view for every plot but owns none of the plots.
class wndEvolPlot : public QWidget
{
    Q_OBJECT

public:
    /// Both must outlive the window. `user` shows its messages.
    wndEvolPlot(PlotList& plots, UserInterface& user, QWidget* parent = nullptr);
    ~wndEvolPlot() override;

    QSize sizeHint() const override;

    /// Null when no plot is active.
    EvmPlot* ActivePlot() const;

    /// Activates a plot (`PlotList::activate`) and shows it fitted to the window, with the focus
    /// that the window has.
    void ActivatePlot(EvmPlot* plot);

    /// `PlotList::add`.
    EvmPlot& AddPlot(const QString& caption);

    /// `PlotList::copyActive`. Null, after a message to the user, when no plot is active.
    EvmPlot* CopyPlot(const QString& caption);

    /// `PlotList::remove`. Does nothing for the first plot and for a plot of another window.
    void RemovePlot(EvmPlot* plot);

    /// Appends a series for a mode to the active plot (`PlotRows::add`). Without an active plot it
    /// shows a message and changes nothing.
    void AddSerie(AeMode& mode);

    /// Makes a plot fill the window. Null does nothing.
    void FitPlot(EvmPlot* plot);

    /// `PlotList::all`.
    std::vector<EvmPlot*> plots() const;

    /// The widget of a plot; null for a plot of another window.
    EvmPlotView* viewOf(const EvmPlot& plot);

    /// Shows a highlight in the active plot (`EvmPlotView::setHighlight`) and removes those of the
    /// others.
    void highlight(const std::optional<PlotHighlight>& highlight);

    /// Selects the curves of these rows in the active plot.
    void selectCurves(const std::vector<tarsil::RowId>& rows);

    /// Shows signs in the active plot (`EvmPlotView::setSigns`) and removes those of the others.
    void showSigns(const PlotSigns& signs);

    /// Fits all plots, also those never shown.
    void fitAll();

    /// A plot without rows says from now on what to do next: open evolutions while this list is
    /// empty, otherwise choose some to draw.
    void adviseOn(const EvolutionList& evolutions);

Q_SIGNALS:
    /// The user has changed a plot; see `EvmPlotView::edited`.
    void edited(const QString& what, tarsil::UndoHistory::Joining joining);

    /// The user has selected the curves of these rows of the active plot, or none.
    void curvesSelected(const std::vector<tarsil::RowId>& rows);

    /// The user asks for the removal of the selected curves.
    void removeWanted();

    /// The user has clicked a sign; see `EvmPlotView::signClicked`.
    void signClicked(std::size_t index);

    /// The user asks for the menu of the active plot, by the right button or the keyboard.
    /// `hasCurve`: a curve is selected.
    void plotMenuRequested(QPoint globalPosition, bool hasCurve);

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
    void setHint(bool hasEvolutions);

    PlotList& m_plots;
    UserInterface& m_user;
    QString m_hint;
    std::vector<Element> evpVgf; ///< the first one shows "Plot1", which always exists
};

} // namespace tarsil
