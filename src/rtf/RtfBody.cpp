// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfBody.h"

#include "base/text/CodePages.h"
#include "rtf/RtfFormat.h"
#include "rtf/RtfTables.h"

#include <algorithm>
#include <cmath>

namespace tarsil {

namespace {

constexpr char16_t noBreakSpace = 0x00A0;
constexpr char16_t lineSeparator = 0x2028;
constexpr char16_t paragraphSeparator = 0x2029;

constexpr char16_t firstSymbol = symbolStart + 0x20;
constexpr char16_t lastSymbol = symbolStart + 0xFF;

/// Rounds half up. At least 1, also for a negative size.
int halfPointsOf(double points)
{
    const double halfPoints = std::floor(2 * points + 0.5);
    return halfPoints >= 1 ? static_cast<int>(std::min<double>(halfPoints, largestHalfPoints)) : 1;
}

} // namespace

void RtfBody::append(const TextRun& run)
{
    const bool isSymbol = isSymbolFamily(run.format.family);
    bool changed = false;
    for (const char16_t unit : run.text) {
        if (isLeftOutOfRtf(unit))
            continue;
        if (!changed)
            change(run.format);
        changed = true;
        appendUnit(unit, isSymbol);
    }
}

void RtfBody::end(const TextFormat& last)
{
    if (m_atLineStart)
        change(last);
}

bool RtfBody::isSymbolFamily(std::string_view family)
{
    return family == "Symbol" || family == "Wingdings" || family == "Wingdings 2"
        || family == "Wingdings 3";
}

void RtfBody::change(const TextFormat& format)
{
    constexpr ColorValue redGreenBlue = 0xFFFFFF;
    const int color = format.color ? m_colors.numberOf(*format.color & redGreenBlue) + 1 : 0;
    changeNumber(m_current.color, color, "\\cf");
    changeSwitch(m_current.underline, format.underline, "\\ul", "\\ulnone");
    changeSwitch(m_current.bold, format.bold, "\\b", "\\b0");
    changeSwitch(m_current.italic, format.italic, "\\i", "\\i0");
    changeSwitch(m_current.strikeOut, format.strikeOut, "\\strike", "\\strike0");
    changeNumber(m_current.font, m_families.numberOf(format.family), "\\f");
    changeNumber(m_current.halfPoints, halfPointsOf(format.points), "\\fs");
}

void RtfBody::appendUnit(char16_t unit, bool isSymbol)
{
    m_atLineStart = unit == u'\n' || unit == paragraphSeparator || unit == lineSeparator;
    if (unit == lineSeparator)
        m_output.word("\\line");
    else if (m_atLineStart)
        m_output.symbol("\\par\r\n");
    else if (unit == u'\t')
        m_output.word("\\tab");
    else if (unit == noBreakSpace)
        m_output.symbol("\\~");
    else if (isSymbol && unit >= firstSymbol && unit <= lastSymbol)
        m_output.byte(static_cast<unsigned char>(unit - symbolStart));
    else if (const auto byte = windows1252Byte(unit); byte && !isSymbol)
        m_output.byte(*byte);
    else
        m_output.unicode(unit);
}

void RtfBody::changeSwitch(bool& current, bool wanted, std::string_view on, std::string_view off)
{
    if (current != wanted)
        m_output.word(wanted ? on : off);
    current = wanted;
}

void RtfBody::changeNumber(int& current, int wanted, const char* word)
{
    if (current != wanted)
        m_output.word(word + std::to_string(wanted));
    current = wanted;
}

} // namespace tarsil
