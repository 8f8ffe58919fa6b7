// SPDX-License-Identifier: Apache-2.0
#include "document/Document.h"

#include "document/DateText.h"
#include "formats/EvolutionLoader.h"
#include "vgfplot/EvmPlot.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace tarsil {

Document::Document() : m_texts(textsOfNewWorkspace())
{
    connect(&m_evolutions, &EvolutionList::pointsChanged, this, &Document::redrawPlotsOf);
    markSaved();
    m_history.clear();
}

Document::~Document() = default;

WorkspaceTexts Document::textsOfNewWorkspace()
{
    return {QStringLiteral("Untitled (Untitled.tsw)"), QStringLiteral("   "),
            dateText(QDateTime::currentDateTime()), QString()};
}

std::vector<EVM*> Document::load(const std::vector<std::string>& paths, UserInterface& user)
{
    LoadedEvolutions loaded = mdlMain::loadEvolutions(m_evolutions.all(), paths, user);
    std::vector<EVM*> added;
    for (const auto& evolution : loaded.added)
        added.push_back(evolution.get());
    m_evolutions.add(std::move(loaded.added));
    return added;
}

void Document::redrawPlotsOf(const EVM* evolution)
{
    const auto isOfEvolution = [evolution](const PlotRow& row) {
        return row.evolution == evolution;
    };
    for (EvmPlot* const plot : m_plots.all()) {
        const PlotRows::Rows& rows = plot->rows().all();
        if (std::any_of(rows.begin(), rows.end(), isOfEvolution))
            plot->modesChanged();
    }
}

void Document::remove(const std::vector<EVM*>& evolutions)
{
    m_evolutions.remove(evolutions);
    for (EvmPlot* const plot : m_plots.all())
        plot->rows().removeRowsOf(evolutions);
}

void Document::setAirplane(AirplaneInfo airplane)
{
    m_airplane = std::move(airplane);
    Q_EMIT airplaneChanged();
}

void Document::setTexts(const WorkspaceTexts& texts)
{
    if (texts == m_texts)
        return;
    m_texts = texts;
    Q_EMIT textsChanged();
}

void Document::setDescription(const QString& description)
{
    WorkspaceTexts texts = m_texts;
    texts.description = description;
    setTexts(texts);
}

void Document::startNew()
{
    m_plots.startNew();
    m_evolutions.clear();
    setTexts(textsOfNewWorkspace());
    m_path.clear();
    m_isPartial = false;
    markSaved();
    m_history.clear();
    Q_EMIT startedNew();
}

} // namespace tarsil
