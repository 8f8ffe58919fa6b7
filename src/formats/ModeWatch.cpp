// SPDX-License-Identifier: Apache-2.0
#include "formats/ModeWatch.h"

#include "base/numbers/Numbers.h"
#include "formats/FindingList.h"

#include <string>

namespace tarsil {

namespace {

std::string pointsText(int points)
{
    return std::to_string(points) + (points == 1 ? " point" : " points");
}

} // namespace

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
