#include "model/CheckerParts.h"

#include "base/files/TextStream.h"
#include "base/text/QuotedText.h"

#include <algorithm>

namespace tarsil {

namespace {

std::string pointsText(int points)
{
    return std::to_string(points) + (points == 1 ? " point" : " points");
}

} // namespace

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

std::string numberComplaint(NumberStatus status, std::string_view text)
{
    if (status == NumberStatus::Overflow)
        return quotedTrimmed(text) + " is too large";
    if (isBlank(text))
        return "is blank, where a number should stand";
    if (text.find('*') != std::string_view::npos)
        return quotedTrimmed(text)
            + " is not a number: the value did not fit when the file was written";
    return quotedTrimmed(text) + " is not a number";
}

std::string quotedTrimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return quotedText(text.substr(0, text.find_last_not_of(" \t") + 1));
}

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

bool isCutOff(const TextStream& stream, std::string_view line)
{
    return stream.atEndOfStream() && line.data() + line.size() == stream.rest().data();
}

ModeWatch::ModeWatch(FindingList& findings, ModeEnds ends) : m_findings(findings), m_ends(ends) { }

void ModeWatch::addPoint(std::size_t line, std::optional<std::int16_t> number,
                         std::optional<float> speed)
{
    const bool changes = number && m_number && *number != *m_number;
    if (m_points == 0 || changes)
        startMode();
    if (number && !m_number)
        learnNumber(line, *number);
    m_line = line;
    ++m_points;
    if (speed)
        checkSpeed(line, *speed);
    if (m_ends == ModeEnds::WhenAllSpeedsAreThere && isFull())
        finish();
}

void ModeWatch::finish()
{
    if (m_points == 0)
        return;
    if (m_number)
        m_lastLineOfMode[*m_number] = m_line;
    ++m_modes;
    if (!m_declaredSpeeds || isFull())
        ++m_wholeModes;
    if (m_declaredSpeeds && m_points != *m_declaredSpeeds)
        m_findings.add(m_line,
                       modeText()
                           + (m_points < *m_declaredSpeeds ? " is cut short: it has " : " has ")
                           + pointsText(m_points) + ", but " + std::to_string(*m_declaredSpeeds)
                           + " speeds are declared");
    m_points = 0;
}

/// Whether the current mode has at least the declared number of points.
bool ModeWatch::isFull() const
{
    return m_declaredSpeeds && m_points >= *m_declaredSpeeds;
}

void ModeWatch::startMode()
{
    finish();
    m_number.reset();
    m_speed.reset();
}

void ModeWatch::learnNumber(std::size_t line, std::int16_t number)
{
    m_number = number;
    if (const auto earlier = m_lastLineOfMode.find(number); earlier != m_lastLineOfMode.end())
        m_findings.add(line,
                       "mode number " + std::to_string(number) + " comes again: there is a mode "
                           + std::to_string(number) + " that ends in line "
                           + std::to_string(earlier->second));
}

std::string ModeWatch::modeText() const
{
    return m_number ? "mode " + std::to_string(*m_number) : "the mode without a number";
}

void ModeWatch::checkSpeed(std::size_t line, float speed)
{
    const std::string where = modeText() + ", point " + std::to_string(m_points);
    if (m_speed && speed == *m_speed)
        m_findings.add(line,
                       where + ": the speed is the same as at the point before, "
                           + shortestText(speed) + " KEAS");
    else if (m_speed && speed < *m_speed)
        m_findings.add(line,
                       where + ": the speed falls from " + shortestText(*m_speed) + " to "
                           + shortestText(speed) + " KEAS");
    m_speed = speed;
}

} // namespace tarsil
