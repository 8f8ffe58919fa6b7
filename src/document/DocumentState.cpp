// SPDX-License-Identifier: Apache-2.0
#include "document/DocumentState.h"

#include "document/Document.h"
#include "vgfplot/EvmPlot.h"

#include <algorithm>
#include <cstddef>

namespace tarsil {

namespace {

bool isSame(const DocumentState::Plot& a, const DocumentState::Plot& b)
{
    return a.plot == b.plot && a.index == b.index && a.rows == b.rows
        && (a.state == b.state || *a.state == *b.state);
}

std::vector<DocumentState::Evolution> evolutionsOf(const Document& document)
{
    std::vector<DocumentState::Evolution> evolutions;
    evolutions.reserve(document.evolutions().all().size());
    for (const auto& evolution : document.evolutions().all())
        evolutions.push_back({evolution, evolution->Param.editable()});
    return evolutions;
}

/// What `before` knows of a plot; null when it is new.
std::shared_ptr<const DocumentState::Plot> findPlot(const DocumentState& before,
                                                    const EvmPlot* plot)
{
    const auto known = std::find_if(before.plots.begin(), before.plots.end(),
                                    [plot](const auto& one) { return one->plot.get() == plot; });
    return known == before.plots.end() ? nullptr : *known;
}

std::shared_ptr<const DocumentState::Plot> plotOf(const PlotList::Element& element,
                                                  const DocumentState& before)
{
    auto known = findPlot(before, element.plot.get());
    const DocumentState::Plot nothing;
    const DocumentState::Plot& like = known != nullptr ? *known : nothing;
    DocumentState::Plot plot {element.index,
                              element.plot,
                              {element.plot->rows().all(), like.rows},
                              std::make_shared<const PlotState>(stateOf(*element.plot))};
    if (known != nullptr && isSame(plot, *known))
        return known;
    if (known != nullptr && *plot.state == *known->state)
        plot.state = known->state;
    return std::make_shared<const DocumentState::Plot>(std::move(plot));
}

void restorePlot(const DocumentState::Plot& plot)
{
    plot.plot->rows().restore(plot.rows.values());
    restore(*plot.plot, *plot.state);
}

/// Takes out the plots that the state lacks.
void removeOthers(PlotList& plots, const DocumentState& state)
{
    for (EvmPlot* const plot : plots.all()) {
        if (findPlot(state, plot) == nullptr)
            plots.remove(*plot);
    }
}

} // namespace

bool DocumentState::isSameAs(const DocumentState& other) const
{
    return evolutions == other.evolutions && reference == other.reference
        && description == other.description
        && std::equal(plots.begin(), plots.end(), other.plots.begin(), other.plots.end(),
                      [](const auto& a, const auto& b) { return a == b || isSame(*a, *b); });
}

DocumentState stateOf(const Document& document, const DocumentState& before)
{
    DocumentState state;
    state.evolutions = {evolutionsOf(document), before.evolutions};
    state.reference = document.evolutions().reference();
    state.description = document.texts().description;
    for (const PlotList::Element& element : document.plots().elements())
        state.plots.push_back(plotOf(element, before));
    state.active = document.plots().active();
    return state;
}

/// Rows need their evolutions: those come before the rows do, and leave after them.
void restore(Document& document, const DocumentState& state)
{
    EvolutionList& evolutions = document.evolutions();
    const std::vector<DocumentState::Evolution> wanted = state.evolutions.values();
    OwnedEvolutions owners;
    for (const DocumentState::Evolution& one : wanted)
        owners.push_back(one.evolution);
    evolutions.putBack(owners);
    for (const auto& plot : state.plots) {
        document.plots().putBack({plot->index, plot->plot});
        restorePlot(*plot);
    }
    document.plots().activate(state.active);
    removeOthers(document.plots(), state);
    evolutions.removeOthers(owners);
    for (const DocumentState::Evolution& one : wanted)
        evolutions.setParameters(*one.evolution, one.parameters);
    evolutions.setReference(state.reference);
    document.setDescription(state.description);
}

} // namespace tarsil
