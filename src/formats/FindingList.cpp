// SPDX-License-Identifier: Apache-2.0
#include "formats/FindingList.h"

#include <algorithm>
#include <utility>

namespace tarsil {

void FindingList::add(std::size_t line, std::string text)
{
    ++m_count;
    if (m_findings.size() < mostFindings)
        m_findings.push_back({line, std::move(text)});
}

void FindingList::addSummary(std::size_t line, std::string text)
{
    ++m_count;
    m_summaries.push_back({line, std::move(text)});
}

std::vector<Finding> FindingList::take()
{
    if (m_findings.size() + m_summaries.size() > mostFindings)
        m_findings.resize(mostFindings - std::min(m_summaries.size(), mostFindings));
    m_findings.insert(m_findings.end(), m_summaries.begin(), m_summaries.end());
    std::stable_sort(m_findings.begin(), m_findings.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    if (m_count > m_findings.size())
        m_findings.push_back({m_findings.back().line,
                              "and " + std::to_string(m_count - m_findings.size())
                                  + " more findings, which are not listed"});
    return std::move(m_findings);
}

} // namespace tarsil
