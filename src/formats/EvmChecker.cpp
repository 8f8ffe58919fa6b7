// SPDX-License-Identifier: Apache-2.0
#include "base/files/TextStream.h"
#include "base/text/AsciiText.h"
#include "formats/CheckingSink.h"
#include "formats/EvmFormat.h"
#include "formats/EvmLayout.h"
#include "formats/EvmParser.h"
#include "formats/FindingList.h"
#include "formats/FindingTexts.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace tarsil {

namespace {

using evmlayout::Columns;

constexpr std::array<const Columns*, 4> decimalColumns = {
    &evmlayout::reducedFrequency, &evmlayout::speed, &evmlayout::damping, &evmlayout::frequency};

std::size_t lengthWithoutBlankTail(std::string_view text)
{
    return text.find_last_not_of(" \t\r\n") + 1; // 0 when there are only blanks
}

/// Whether a field may be a point: most of its numbers have a decimal point, or the stars of a
/// number that did not fit. Tags do not look like that.
bool looksLikePoint(std::string_view field)
{
    const auto numbers = std::count_if(
        decimalColumns.begin(), decimalColumns.end(), [field](const Columns* columns) {
            return columns->of(field).find_first_of(".*") != std::string_view::npos;
        });
    return numbers >= 3;
}

bool isCount(std::string_view text)
{
    std::int16_t number = 0;
    return parseInteger16(text, number) == NumberStatus::Ok;
}

class EvmCheckingSink : public CheckingSink
{
public:
    EvmCheckingSink(TextStream& stream, FindingList& findings)
        : CheckingSink(stream, findings, ModeWatch::ModeEnds::WhenAllSpeedsAreThere),
          m_blankTail(stream.rest().size() - lengthWithoutBlankTail(stream.rest()))
    { }

    void addMissingCounts() { add("the file ends before line 4, which has the counts"); }

    void setSpeedCount(std::int16_t count)
    {
        m_declaredSpeeds = usable(count, evmlayout::speedCount);
    }
    void setModeCount(std::int16_t count) { m_declaredModes = usable(count, evmlayout::modeCount); }
    void endCounts(std::string_view line);

    bool wantsPoint() const { return !m_isOver && !allModesRead(); }
    bool onlyBlanksLeft() const { return m_stream.rest().size() <= m_blankTail; }
    bool accepts(const EvmField& field);
    Point& newPoint(const EvmField& /*field*/) { return m_point; }
    void endPoint(const EvmField& field, std::optional<std::int16_t> modeNumber, bool hasSpeed);

    bool endPoints();
    void addFieldAfterPoints(const EvmField& field);

private:
    std::optional<int> usable(std::int16_t count, const Columns& columns);
    bool allModesRead() const;
    void complainNoPoint(const EvmField& field);
    void checkLineEnd(const EvmField& field);
    std::string declaredText() const;

    std::size_t m_blankTail; ///< trailing blank bytes
    std::optional<int> m_declaredSpeeds;
    std::optional<int> m_declaredModes;
    bool m_isOver = false; ///< the rest is not understood
    bool m_isRightAligned =
        false; ///< whether the last number of a point ended at the end of its columns
    Point m_point; ///< the point being read
};

/// A declared count; empty when it is unusable.
std::optional<int> EvmCheckingSink::usable(std::int16_t count, const Columns& columns)
{
    if (count > 0)
        return count;
    add("the " + std::string(columns.content) + " is declared as " + std::to_string(count));
    return std::nullopt;
}

void EvmCheckingSink::endCounts(std::string_view line)
{
    if (m_declaredSpeeds && m_declaredModes) {
        m_modes.declareSpeeds(*m_declaredSpeeds);
        return;
    }
    m_declaredModes.reset(); // one count alone does not tell where the points end
    if (isCount(evmlayout::writtenSpeedCount.of(line))
        && isCount(evmlayout::writtenModeCount.of(line)))
        add("the counts stand in columns 56-59 and 64-67, as in an exported file; they are read "
            "from columns 61-64 and 65-72");
}

bool EvmCheckingSink::allModesRead() const
{
    return m_declaredModes && std::cmp_greater_equal(m_modes.modeCount(), *m_declaredModes);
}

/// Without the counts the points end at the first field that does not look like one.
bool EvmCheckingSink::accepts(const EvmField& field)
{
    if (looksLikePoint(field.text))
        return true;
    if (m_declaredModes)
        complainNoPoint(field);
    else
        m_isOver = true;
    return false;
}

/// The last field of the file may be blank.
void EvmCheckingSink::complainNoPoint(const EvmField& field)
{
    const bool isBlank = isBlankText(field.text);
    if (isBlank && onlyBlanksLeft())
        return;
    add("columns " + std::to_string(field.offset + 1) + "-"
        + std::to_string(field.offset + evmlayout::fieldWidth)
        + (isBlank ? ": blank, though more points follow"
                   : ": no point, though more modes are declared: " + quotedTrimmed(field.text)));
}

void EvmCheckingSink::endPoint(const EvmField& field, std::optional<std::int16_t> modeNumber,
                               bool hasSpeed)
{
    m_modes.addPoint(m_stream.lineNumber(), modeNumber,
                     hasSpeed ? std::optional(m_point.speed) : std::nullopt);
    checkLineEnd(field);
}

/// A line that ends before the last column of a point may be truncated within its last number.
/// Left-aligned numbers may end anywhere, except at the end of the file.
void EvmCheckingSink::checkLineEnd(const EvmField& field)
{
    const std::string_view last = evmlayout::frequency.of(field.text);
    const bool endsInside = field.text.size() < evmlayout::fieldWidth
        && !isBlankText(field.text.substr(field.text.size() - 1));
    const std::string column = std::to_string(field.line.size());
    if (endsInside && isCutOff(m_stream, field.line))
        add("the file ends in column " + column
            + " of this line without an end of line: its last number may be cut");
    else if (endsInside && m_isRightAligned)
        add("the line ends in column " + column + ", but the points before it in column "
            + std::to_string(field.offset + evmlayout::fieldWidth)
            + ": its last number may be cut");
    if (last.size() == evmlayout::frequency.width && isBlankText(last.substr(0, 1))
        && !isBlankText(last.substr(last.size() - 1)))
        m_isRightAligned = true;
}

std::string EvmCheckingSink::declaredText() const
{
    return std::to_string(*m_declaredModes) + " aeroelastic modes";
}

/// Compares the number of modes with the count in line 4.
bool EvmCheckingSink::endPoints()
{
    m_modes.finish();
    const bool isShort =
        m_declaredModes && std::cmp_less(m_modes.wholeModeCount(), *m_declaredModes);
    if (isShort)
        m_findings.addSummary(evmlayout::countLine,
                              declaredText() + " are declared, but only "
                                  + std::to_string(m_modes.wholeModeCount())
                                  + " in the file have the declared number of points");
    return m_declaredModes && !isShort;
}

/// The tags of an exported file follow its points and are not points.
void EvmCheckingSink::addFieldAfterPoints(const EvmField& field)
{
    if (looksLikePoint(field.text))
        m_findings.addSummary(m_stream.lineNumber(),
                              "more points follow than the " + declaredText()
                                  + " declared in line 4; they are not read");
}

} // namespace

void checkEvm(TextStream& stream, FindingList& findings)
{
    EvmCheckingSink sink(stream, findings);
    EvmParser(stream, sink).parse();
}

} // namespace tarsil
