// SPDX-License-Identifier: Apache-2.0
#include "explorer/EvolutionWarnings.h"

#include "base/text/ShortList.h"
#include "base/user/RunTimeError.h"
#include "formats/EvolutionChecker.h"
#include "model/EVM.h"

#include <string>
#include <unordered_set>

namespace tarsil {

namespace {

/// At most `mostFileLines` lines, including the last one with the number of the others.
QString joined(const std::vector<Finding>& findings)
{
    std::vector<std::string> lines;
    lines.reserve(findings.size());
    for (const Finding& finding : findings)
        lines.push_back("line " + std::to_string(finding.line) + ": " + finding.text);
    const bool areAllShown = lines.size() <= mostFileLines;
    return QString::fromStdString(
        shortList(lines, areAllShown ? mostFileLines : mostFileLines - 1));
}

} // namespace

QString warningsOf(const EVM& evolution)
{
    try {
        return joined(checkEvolution(evolution.path()));
    } catch (const RunTimeError& error) {
        return QString::fromStdString(error.description());
    }
}

EvolutionWarnings::EvolutionWarnings(QObject* parent) : QObject(parent)
{
    connect(&m_pause, &QTimer::timeout, this, &EvolutionWarnings::checkNext);
}

void EvolutionWarnings::add(EVM& evolution)
{
    m_waiting.push_back(&evolution);
    if (!m_pause.isActive())
        m_pause.start(0);
}

void EvolutionWarnings::forget(const std::vector<EVM*>& evolutions)
{
    const std::unordered_set<const EVM*> going(evolutions.begin(), evolutions.end());
    std::erase_if(m_waiting, [&going](const EVM* one) { return going.contains(one); });
}

void EvolutionWarnings::checkNext()
{
    if (m_waiting.empty()) {
        m_pause.stop();
        return;
    }
    EVM* const evolution = m_waiting.front();
    m_waiting.pop_front();
    const QString warnings = warningsOf(*evolution);
    if (!warnings.isEmpty())
        Q_EMIT found(evolution, warnings);
}

} // namespace tarsil
