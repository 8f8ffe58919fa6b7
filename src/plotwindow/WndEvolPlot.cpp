// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/WndEvolPlot.h"

#include "document/EvolutionList.h"
#include "document/PlotList.h"
#include "plotwindow/EvmPlotView.h"
#include "plotwindow/PlotReadout.h"

#include <QApplication>
#include <QContextMenuEvent>

#include <algorithm>

namespace tarsil {

wndEvolPlot::wndEvolPlot(PlotList& plots, UserInterface& user, QWidget* parent)
    : QWidget(parent), m_plots(plots), m_user(user)
{
    setObjectName(QStringLiteral("wndEvolPlot"));
    for (EvmPlot* const plot : m_plots.all())
        addView(plot);
    setMinimumSize(evpVgf.front().view->minimumSize());
    connect(&m_plots, &PlotList::added, this, &wndEvolPlot::addView);
    connect(&m_plots, &PlotList::aboutToBeRemoved, this, &wndEvolPlot::removeView);
    connect(&m_plots, &PlotList::activeChanged, this, &wndEvolPlot::showPlot);
    showPlot(nullptr, m_plots.active());
}

wndEvolPlot::~wndEvolPlot() = default;

QSize wndEvolPlot::sizeHint() const
{
    return evpVgf.front().view->sizeHint();
}

EvmPlot* wndEvolPlot::ActivePlot() const
{
    return m_plots.active();
}

void wndEvolPlot::ActivatePlot(EvmPlot* plot)
{
    m_plots.activate(plot);
}

EvmPlot& wndEvolPlot::AddPlot(const QString& caption)
{
    return m_plots.add(caption);
}

EvmPlot* wndEvolPlot::CopyPlot(const QString& caption)
{
    return hasActivePlot() ? &m_plots.copyActive(caption) : nullptr;
}

void wndEvolPlot::RemovePlot(EvmPlot* plot)
{
    if (m_plots.contains(plot) && plot != &m_plots.first())
        m_plots.remove(*plot);
}

void wndEvolPlot::AddSerie(AeMode& mode)
{
    if (hasActivePlot())
        ActivePlot()->rows().add(mode, m_plots.newSeriesMarkers(), m_plots.newSeriesPalette());
}

void wndEvolPlot::FitPlot(EvmPlot* plot)
{
    EvmPlotView* const view = plot != nullptr ? viewOf(*plot) : nullptr;
    if (view == nullptr)
        return;
    view->setGeometry(rect());
    if (plot->size() != view->size()) // a hidden view gets its resize event only when it is shown
        plot->resize(view->size(), view->devicePixelRatioF());
}

void wndEvolPlot::fitAll()
{
    for (EvmPlot* const plot : m_plots.all())
        FitPlot(plot);
}

std::vector<EvmPlot*> wndEvolPlot::plots() const
{
    return m_plots.all();
}

EvmPlotView* wndEvolPlot::viewOf(const EvmPlot& plot)
{
    const auto element = std::find_if(evpVgf.begin(), evpVgf.end(),
                                      [&plot](const Element& one) { return one.plot == &plot; });
    return element != evpVgf.end() ? element->view.get() : nullptr;
}

void wndEvolPlot::showSigns(const PlotSigns& signs)
{
    for (const Element& element : evpVgf)
        element.view->setSigns(element.plot == ActivePlot() ? signs : PlotSigns());
}

void wndEvolPlot::highlight(const std::optional<PlotHighlight>& highlight)
{
    for (const Element& element : evpVgf)
        element.view->setHighlight(element.plot == ActivePlot() ? highlight : std::nullopt);
}

void wndEvolPlot::selectCurves(const std::vector<RowId>& rows)
{
    if (ActivePlot() != nullptr)
        viewOf(*ActivePlot())->selectCurves(rows);
}

void wndEvolPlot::resizeEvent(QResizeEvent* /*event*/)
{
    FitPlot(ActivePlot());
}

/// Called when the view has no menu of its own at the pointer.
void wndEvolPlot::contextMenuEvent(QContextMenuEvent* event)
{
    event->setAccepted(ActivePlot() != nullptr);
    if (ActivePlot() != nullptr)
        Q_EMIT plotMenuRequested(event->globalPos(), viewOf(*ActivePlot())->hasSelectedCurve());
}

/// Adds a hidden view with its readout.
void wndEvolPlot::addView(EvmPlot* plot)
{
    auto view = std::make_unique<EvmPlotView>(*plot, this);
    view->hide(); // otherwise it would be shown with the window
    view->setHint(m_hint);
    new PlotReadout(*plot, *view); // the view owns it
    connect(view.get(), &EvmPlotView::failed, this, &wndEvolPlot::failed);
    connect(view.get(), &EvmPlotView::edited, this, &wndEvolPlot::edited);
    connect(view.get(), &EvmPlotView::curvesSelected, this, &wndEvolPlot::curvesSelected);
    connect(view.get(), &EvmPlotView::removeWanted, this, &wndEvolPlot::removeWanted);
    connect(view.get(), &EvmPlotView::signClicked, this, &wndEvolPlot::signClicked);
    connect(view.get(), &EvmPlotView::commandBegun, this, [this] { m_user.beginCommand(); });
    connect(plot, &EvmPlot::changed, this, &wndEvolPlot::updateTitle);
    evpVgf.push_back({plot, std::move(view)});
}

void wndEvolPlot::removeView(EvmPlot* plot)
{
    plot->disconnect(this);
    std::erase_if(evpVgf, [plot](const Element& element) { return element.plot == plot; });
}

void wndEvolPlot::showPlot(EvmPlot* before, EvmPlot* now)
{
    if (before != nullptr)
        hidePlot(*before);
    if (now != nullptr) {
        FitPlot(now);
        EvmPlotView* const view = viewOf(*now);
        view->show();
        setFocusProxy(view); // passes on the focus that the window has
    }
    updateTitle();
}

/// The window keeps the focus of the plot until the next plot is shown.
void wndEvolPlot::hidePlot(EvmPlot& plot)
{
    EvmPlotView* const view = viewOf(plot);
    const bool hadFocus =
        view->isAncestorOf(QApplication::focusWidget()); // or it has the focus itself
    view->selectCurves({});
    setFocusProxy(nullptr);
    if (hadFocus)
        setFocus(Qt::OtherFocusReason);
    view->hide();
}

void wndEvolPlot::adviseOn(const EvolutionList& evolutions)
{
    connect(&evolutions, &EvolutionList::added, this, [this] { setHint(true); });
    connect(&evolutions, &EvolutionList::aboutToBeRemoved, this,
            [this, &evolutions](const std::vector<EVM*>& leaving) {
                setHint(leaving.size() < evolutions.all().size());
            });
    setHint(!evolutions.all().empty());
}

void wndEvolPlot::setHint(bool hasEvolutions)
{
    m_hint = hasEvolutions
        ? tr("Tick modal evolutions in the explorer and press \"Select Modal Evolution\".")
        : tr("Open modal evolutions with Ctrl+Shift+O, or drop files here.\n"
             "No files at hand? Choose Help > Open Samples.");
    for (const Element& element : evpVgf)
        element.view->setHint(m_hint);
}

/// Qt replaces "[*]" in a window title unless it is written twice.
void wndEvolPlot::updateTitle()
{
    QString title = QStringLiteral("V-g-f Plot");
    if (ActivePlot() != nullptr)
        title += QStringLiteral(" - ") + ActivePlot()->properties().Caption();
    if (title == accessibleName())
        return;
    setAccessibleName(title);
    setWindowTitle(title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

/// Whether a plot is active; shows a message otherwise.
bool wndEvolPlot::hasActivePlot()
{
    if (ActivePlot() == nullptr)
        m_user.showMessage("Please select activate a plot.", "Tarsil", MessageIcon::Exclamation);
    return ActivePlot() != nullptr;
}

} // namespace tarsil
