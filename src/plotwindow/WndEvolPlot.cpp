#include "plotwindow/WndEvolPlot.h"

#include "plotwindow/EvmPlotView.h"
#include "plotwindow/PlotReadout.h"

#include <QApplication>
#include <QContextMenuEvent>

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace tarsil {

namespace {

/// The place of an element counted from 1, as captions tell it.
QString placeText(int index)
{
    return QString::number(index + 1);
}

} // namespace

wndEvolPlot::wndEvolPlot(UserInterface& user, QWidget* parent) : QWidget(parent), m_user(user)
{
    setObjectName(QStringLiteral("wndEvolPlot"));
    updateTitle();
    evpVgf.push_back(makeElement(0));
    setMinimumSize(evpVgf.front().view->minimumSize());
}

wndEvolPlot::~wndEvolPlot() = default;

QSize wndEvolPlot::sizeHint() const
{
    return evpVgf.front().view->sizeHint();
}

void wndEvolPlot::ActivatePlot(EvmPlot* plot)
{
    EvmPlotView* const view = plot != nullptr ? viewOf(*plot) : nullptr;
    if (plot != nullptr && view == nullptr)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "wndEvolPlot",
                           "the plot \"" + plot->Caption().toStdString()
                               + "\" is not in this window");
    if (plot == m_activePlot)
        return;
    hideActivePlot();
    EvmPlot* const before = std::exchange(m_activePlot, plot);
    if (plot != nullptr) {
        FitPlot(plot);
        plot->setVisible(true);
        view->show();
        setFocusProxy(view); // takes the focus along when the window has it
    }
    updateTitle();
    Q_EMIT activePlotChanged(before, plot);
}

/// The window keeps the keyboard focus that the plot had, until the next plot is there.
void wndEvolPlot::hideActivePlot()
{
    if (m_activePlot == nullptr)
        return;
    EvmPlotView* const view = viewOf(*m_activePlot);
    const bool hadFocus = view->isAncestorOf(QApplication::focusWidget()); // or is it itself
    setFocusProxy(nullptr);
    if (hadFocus)
        setFocus(Qt::OtherFocusReason);
    view->hide();
    m_activePlot->setVisible(false);
}

/// The toolkit puts something else in the place of "[*]" in a title, unless it is written twice.
void wndEvolPlot::updateTitle()
{
    QString title = QStringLiteral("V-g-f Plot");
    if (m_activePlot != nullptr)
        title += QStringLiteral(" - ") + m_activePlot->Caption();
    if (title == accessibleName())
        return;
    setAccessibleName(title);
    setWindowTitle(title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

EvmPlot& wndEvolPlot::AddPlot(const QString& caption)
{
    Element element = makeElement(nextIndex());
    const QString standard = QStringLiteral("Plot") + placeText(element.index);
    element.plot->setCaption(caption.isEmpty() ? standard : caption);
    element.plot->setAxes(m_newPlotAxes);
    return append(std::move(element));
}

EvmPlot* wndEvolPlot::CopyPlot(const QString& caption)
{
    if (!hasActivePlot())
        return nullptr;
    Element element = makeElement(nextIndex());
    m_activePlot->commitEdits();
    element.plot->Clone(*m_activePlot);
    const QString standard = element.plot->Caption() + u'(' + placeText(element.index) + u')';
    element.plot->setCaption(caption.isEmpty() ? standard : caption);
    return &append(std::move(element));
}

void wndEvolPlot::RemovePlot(EvmPlot* plot)
{
    const auto element = find(plot);
    if (element == evpVgf.end() || element->index == 0)
        return;
    if (plot == m_activePlot)
        ActivatePlot(std::prev(element)->plot.get());
    Q_EMIT plotAboutToBeRemoved(plot);
    evpVgf.erase(find(plot)); // who has heard of it may have added plots meanwhile
}

void wndEvolPlot::AddSerie(AeMode& mode)
{
    if (hasActivePlot())
        m_activePlot->addSeries(mode, m_newSeriesMarkers);
}

void wndEvolPlot::FitPlot(EvmPlot* plot)
{
    EvmPlotView* const view = plot != nullptr ? viewOf(*plot) : nullptr;
    if (view == nullptr)
        return;
    view->setGeometry(rect());
    if (plot->size() != view->size()) // a hidden view hears of its size only when it is shown
        plot->resize(view->size(), view->devicePixelRatioF());
}

std::vector<EvmPlot*> wndEvolPlot::plots() const
{
    std::vector<EvmPlot*> result;
    for (const Element& element : evpVgf)
        result.push_back(element.plot.get());
    return result;
}

EvmPlotView* wndEvolPlot::viewOf(const EvmPlot& plot)
{
    const auto element = find(&plot);
    return element != evpVgf.end() ? element->view.get() : nullptr;
}

void wndEvolPlot::resizeEvent(QResizeEvent* /*event*/)
{
    FitPlot(m_activePlot);
}

/// Comes here when the view has no menu of its own at that place.
void wndEvolPlot::contextMenuEvent(QContextMenuEvent* event)
{
    event->setAccepted(m_activePlot != nullptr);
    if (m_activePlot != nullptr)
        Q_EMIT plotMenuRequested(event->globalPos());
}

int wndEvolPlot::nextIndex() const
{
    const int index = evpVgf.back().index + 1;
    if (index > std::numeric_limits<std::int16_t>::max())
        throw RunTimeError(ErrorNumber::Overflow, "wndEvolPlot",
                           "plot " + std::to_string(index) + " of evpVgf");
    return index;
}

/// A hidden plot with its view and readout.
wndEvolPlot::Element wndEvolPlot::makeElement(int index)
{
    auto plot = std::make_unique<EvmPlot>();
    plot->setVisible(false);
    auto view = std::make_unique<EvmPlotView>(*plot, this);
    view->hide(); // otherwise it would show together with the window
    new PlotReadout(*plot, *view); // belongs to the view
    connect(view.get(), &EvmPlotView::failed, this, &wndEvolPlot::failed);
    connect(view.get(), &EvmPlotView::commandBegun, this, [this] { m_user.beginCommand(); });
    connect(plot.get(), &EvmPlot::changed, this, &wndEvolPlot::updateTitle);
    return {index, std::move(plot), std::move(view)};
}

EvmPlot& wndEvolPlot::append(Element element)
{
    EvmPlot& plot = *evpVgf.emplace_back(std::move(element)).plot;
    Q_EMIT plotAdded(&plot);
    return plot;
}

std::vector<wndEvolPlot::Element>::iterator wndEvolPlot::find(const EvmPlot* plot)
{
    return std::find_if(evpVgf.begin(), evpVgf.end(),
                        [plot](const Element& element) { return element.plot.get() == plot; });
}

/// Tells the user when there is none.
bool wndEvolPlot::hasActivePlot()
{
    if (m_activePlot == nullptr)
        m_user.showMessage("Please select activate a plot.", "Tarsil", MessageIcon::Exclamation);
    return m_activePlot != nullptr;
}

} // namespace tarsil
