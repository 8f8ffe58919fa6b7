// SPDX-License-Identifier: Apache-2.0
#include "document/PlotList.h"

#include "base/user/RunTimeError.h"
#include "vgfplot/EvmPlot.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>
#include <utility>

namespace tarsil {

namespace {

constexpr const char* plotWindowModule = "wndEvolPlot"; // the window whose array of plots this was

/// The index as shown in captions, counted from 1.
QString numberText(int index)
{
    return QString::number(index + 1);
}

} // namespace

PlotList::PlotList()
{
    m_plots.push_back(makeElement(0));
}

PlotList::~PlotList() = default;

std::vector<EvmPlot*> PlotList::all() const
{
    std::vector<EvmPlot*> plots;
    plots.reserve(m_plots.size());
    for (const Element& element : m_plots)
        plots.push_back(element.plot.get());
    return plots;
}

EvmPlot& PlotList::first() const
{
    return *m_plots.front().plot;
}

bool PlotList::contains(const EvmPlot* plot) const
{
    return std::any_of(m_plots.begin(), m_plots.end(),
                       [plot](const Element& element) { return element.plot.get() == plot; });
}

void PlotList::activate(EvmPlot* plot)
{
    if (plot != nullptr && !contains(plot))
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, plotWindowModule,
                           "the plot \"" + plot->properties().Caption().toStdString()
                               + "\" is not in this list");
    if (plot == m_active)
        return;
    EvmPlot* const before = std::exchange(m_active, plot);
    if (before != nullptr)
        before->setVisible(false);
    if (plot != nullptr)
        plot->setVisible(true);
    Q_EMIT activeChanged(before, plot);
}

EvmPlot& PlotList::add(const QString& caption)
{
    Element element = makeElement(nextIndex());
    element.plot->setAxes(m_newPlotAxes);
    const QString standard = QStringLiteral("Plot") + numberText(element.index);
    return append(std::move(element), caption.isEmpty() ? standard : caption);
}

EvmPlot& PlotList::copyActive(const QString& caption)
{
    if (m_active == nullptr)
        throw RunTimeError(ErrorNumber::ObjectVariableNotSet, plotWindowModule,
                           "no plot is active");
    Element element = makeElement(nextIndex());
    m_active->commitEdits();
    element.plot->Clone(*m_active);
    const QString standard =
        m_active->properties().Caption() + u'(' + numberText(element.index) + u')';
    return append(std::move(element), caption.isEmpty() ? standard : caption);
}

void PlotList::remove(EvmPlot& plot)
{
    const auto element = find(&plot);
    if (element == m_plots.end() || element->index == 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, plotWindowModule,
                           "the plot \"" + plot.properties().Caption().toStdString()
                               + "\" cannot be removed");
    if (&plot == m_active)
        activate(std::prev(element)->plot.get());
    Q_EMIT aboutToBeRemoved(&plot);
    m_plots.erase(find(&plot)); // a slot may have added plots
}

void PlotList::putBack(const Element& element)
{
    if (contains(element.plot.get()))
        return;
    const auto isBefore = [](int index, const Element& other) { return index < other.index; };
    m_plots.insert(std::upper_bound(m_plots.begin(), m_plots.end(), element.index, isBefore),
                   element);
    Q_EMIT added(element.plot.get());
}

bool PlotList::rename(EvmPlot& plot, const QString& caption)
{
    if (isTaken(caption, plot))
        return false;
    if (!caption.trimmed().isEmpty())
        plot.properties().setCaption(caption);
    return true;
}

/// Clears the rows first, without drawing: the caller may delete their evolutions next.
void PlotList::startNew()
{
    for (const Element& element : m_plots)
        element.plot->rows().clear();
    while (m_plots.size() > 1)
        remove(*m_plots.back().plot);
    EvmPlot fresh;
    fresh.properties().setCaption(QStringLiteral("Plot1"));
    fresh.setAxes(m_newPlotAxes);
    first().Clone(fresh);
    first().references().setReferenceSpeeds({});
    first().references().setDampingLines({});
    activate(&first());
}

std::vector<PlotList::Element>::iterator PlotList::find(const EvmPlot* plot)
{
    return std::find_if(m_plots.begin(), m_plots.end(),
                        [plot](const Element& element) { return element.plot.get() == plot; });
}

int PlotList::nextIndex() const
{
    const int index = m_plots.back().index + 1;
    if (index > std::numeric_limits<std::int16_t>::max())
        throw RunTimeError(ErrorNumber::Overflow, plotWindowModule,
                           "plot " + std::to_string(index) + " of evpVgf");
    return index;
}

/// A hidden plot.
PlotList::Element PlotList::makeElement(int index) const
{
    auto plot = std::make_shared<EvmPlot>();
    plot->setVisible(false);
    return {index, std::move(plot)};
}

EvmPlot& PlotList::append(Element element, const QString& caption)
{
    element.plot->properties().setCaption(uniqueCaption(caption, *element.plot));
    EvmPlot& plot = *m_plots.emplace_back(std::move(element)).plot;
    Q_EMIT added(&plot);
    return plot;
}

/// Whether a plot other than `plot` has this caption.
bool PlotList::isTaken(const QString& caption, const EvmPlot& plot) const
{
    return std::any_of(m_plots.begin(), m_plots.end(), [&](const Element& element) {
        return element.plot.get() != &plot && element.plot->properties().Caption() == caption;
    });
}

/// The caption, with the first number from 2 on that makes it unique.
QString PlotList::uniqueCaption(const QString& caption, const EvmPlot& plot) const
{
    QString unique = caption;
    for (int number = 2; isTaken(unique, plot); ++number)
        unique = QStringLiteral("%1(%2)").arg(caption, QString::number(number));
    return unique;
}

} // namespace tarsil
