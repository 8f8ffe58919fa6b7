// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfRuns.h"

#include "base/text/Utf16.h"

#include <utility>

namespace tarsil {

namespace {

bool endsLine(char16_t unit)
{
    return unit == u'\n' || unit == u'\r' || unit == 0x2028 || unit == 0x2029;
}

} // namespace

void RtfRuns::append(char16_t unit, const RtfFormat& format)
{
    if (unit == u'\0')
        return;
    const bool low = isLowSurrogate(unit);
    if (low && !m_text.empty() && isHighSurrogate(m_text.back())) {
        m_text += unit;
        return;
    }
    replaceHalfAtTheEnd();
    if (m_spans.empty() || m_spans.back().format != format)
        m_spans.push_back({m_text.size(), format});
    m_text += endsLine(unit) ? u'\n' : low ? replacementCharacter : unit;
}

std::optional<RtfFormat> RtfRuns::dropFinalBreak()
{
    if (m_text.empty() || m_text.back() != u'\n')
        return std::nullopt;
    m_text.pop_back();
    const RtfFormat format = m_spans.back().format;
    if (m_spans.back().start == m_text.size())
        m_spans.pop_back();
    return format;
}

std::vector<TextRun> RtfRuns::resolved(const std::function<TextFormat(const RtfFormat&)>& resolve)
{
    replaceHalfAtTheEnd();
    std::vector<TextRun> runs;
    for (std::size_t i = 0; i < m_spans.size(); ++i) {
        const std::size_t start = m_spans[i].start;
        const std::size_t end = i + 1 < m_spans.size() ? m_spans[i + 1].start : m_text.size();
        TextFormat format = resolve(m_spans[i].format);
        if (runs.empty() || runs.back().format != format)
            runs.push_back({{}, std::move(format)});
        runs.back().text.append(m_text, start, end - start);
    }
    return runs;
}

void RtfRuns::replaceHalfAtTheEnd()
{
    if (!m_text.empty() && isHighSurrogate(m_text.back()))
        m_text.back() = replacementCharacter;
}

} // namespace tarsil
