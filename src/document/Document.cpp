#include "document/Document.h"

#include "document/DateText.h"
#include "formats/EvolutionLoader.h"
#include "vgfplot/EvmPlot.h"

#include <QDateTime>

#include <utility>

namespace tarsil {

namespace {

WorkspaceTexts textsOfNewWorkspace()
{
    return {QStringLiteral("Untitled (Untitled.tsw)"), QStringLiteral("   "),
            dateText(QDateTime::currentDateTime()), QString()};
}

} // namespace

Document::Document() : m_texts(textsOfNewWorkspace())
{
    connect(&m_evolutions, &EvolutionList::aboutToBeRemoved, this, [this] { m_history.clear(); });
    connect(&m_plots, &PlotList::aboutToBeRemoved, this, [this] { m_history.clear(); });
    markSaved();
}

Document::~Document() = default;

std::vector<EVM*> Document::load(const std::vector<std::string>& paths, UserInterface& user)
{
    LoadedEvolutions loaded = mdlMain::loadEvolutions(m_evolutions.all(), paths, user);
    std::vector<EVM*> added;
    for (const auto& evolution : loaded.added)
        added.push_back(evolution.get());
    m_evolutions.add(std::move(loaded.added));
    return added;
}

TakenEvolution Document::takeOut(EVM& evolution)
{
    TakenEvolution taken = m_evolutions.takeOut(evolution);
    for (EvmPlot* const plot : m_plots.all())
        plot->rows().removeRowsOf(evolution);
    return taken;
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
    m_history.clear();
    setTexts(textsOfNewWorkspace());
    m_path.clear();
    m_isPartial = false;
    markSaved();
    Q_EMIT startedNew();
}

} // namespace tarsil
