#include "explorer/EvolutionMarks.h"

#include "base/user/RunTimeError.h"
#include "formats/EvolutionChecker.h"
#include "model/EVM.h"

#include <QStringList>

#include <algorithm>
#include <unordered_set>

namespace tarsil {

namespace {

constexpr std::size_t mostLines = 20;

QString joined(const std::vector<Finding>& findings)
{
    const std::size_t shown = findings.size() > mostLines ? mostLines - 1 : findings.size();
    QStringList lines;
    for (std::size_t i = 0; i < shown; ++i)
        lines.append(
            QStringLiteral("line %1: %2")
                .arg(QString::number(findings[i].line), QString::fromStdString(findings[i].text)));
    if (shown < findings.size())
        lines.append(QStringLiteral("and %1 more").arg(findings.size() - shown));
    return lines.join(u'\n');
}

} // namespace

QString findingsText(const EVM& evolution)
{
    try {
        return joined(checkEvolution(evolution.path()));
    } catch (const RunTimeError& error) {
        return QString::fromStdString(error.description());
    }
}

EvolutionMarks::EvolutionMarks(QObject* parent) : QObject(parent)
{
    connect(&m_pause, &QTimer::timeout, this, &EvolutionMarks::checkNext);
}

void EvolutionMarks::add(EVM& evolution)
{
    m_waiting.push_back(&evolution);
    if (!m_pause.isActive())
        m_pause.start(0);
}

void EvolutionMarks::forget(const std::vector<EVM*>& evolutions)
{
    const std::unordered_set<const EVM*> going(evolutions.begin(), evolutions.end());
    std::erase_if(m_waiting, [&going](const EVM* one) { return going.contains(one); });
}

void EvolutionMarks::checkNext()
{
    if (m_waiting.empty()) {
        m_pause.stop();
        return;
    }
    EVM* const evolution = m_waiting.front();
    m_waiting.pop_front();
    const QString findings = findingsText(*evolution);
    if (!findings.isEmpty())
        Q_EMIT found(evolution, findings);
}

} // namespace tarsil
