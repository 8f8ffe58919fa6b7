#include "base/files/FileLines.h"
#include "base/files/TextStream.h"
#include "formats/EvmFormat.h"
#include "formats/EvmLayout.h"
#include "formats/FindingList.h"
#include "formats/FindingTexts.h"
#include "formats/ModeWatch.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarsil {

namespace {

using evmlayout::Columns;

constexpr std::size_t countLine = 4;
constexpr std::array<const Columns*, 4> decimalColumns = {
    &evmlayout::reducedFrequency, &evmlayout::speed, &evmlayout::damping, &evmlayout::frequency};

constexpr std::string_view blanks = " \t\r\n";

std::size_t lengthWithoutBlankTail(std::string_view text)
{
    return text.find_last_not_of(blanks) + 1; // 0 when there is nothing but blanks
}

/// Whether these columns can be meant as a point: most numbers of one have a decimal point, or
/// the stars of a number that did not fit. Tags do not look so.
bool looksLikePoint(std::string_view field)
{
    const auto numbers = std::count_if(
        decimalColumns.begin(), decimalColumns.end(), [field](const Columns* columns) {
            return columns->of(field).find_first_of(".*") != std::string_view::npos;
        });
    return numbers >= 3;
}

class EvmChecker
{
public:
    EvmChecker(TextStream& stream, FindingList& findings)
        : m_stream(stream), m_findings(findings),
          m_modes(findings, ModeWatch::ModeEnds::WhenAllSpeedsAreThere),
          m_blankTail(stream.rest().size() - lengthWithoutBlankTail(stream.rest()))
    { }

    void check();

private:
    bool readCountLine();
    std::optional<int> count(const Columns& columns);
    void explainShiftedCounts();
    bool allModesRead() const;
    bool onlyBlanksLeft() const { return m_stream.rest().size() <= m_blankTail; }
    bool takeHalf();
    void checkPoint();
    void checkLineEnd();
    void complainNoPoint();
    std::optional<float> single(const Columns& columns);
    std::optional<std::int16_t> modeNumber();
    void complain(NumberStatus status, std::string_view text, const Columns& columns);
    void compareModeCount();

    TextStream& m_stream;
    FindingList& m_findings;
    ModeWatch m_modes;
    std::size_t m_blankTail; ///< bytes after the last one that is no blank
    std::string_view m_line;
    std::string_view m_half; ///< the half of the line that is looked at
    std::size_t m_offset = 0; ///< 0 or 40: where it begins
    bool m_hasLine = false;
    bool m_isRightAligned = false; ///< a point had its last number at the end of its columns
    std::optional<int> m_declaredModes;
};

void EvmChecker::check()
{
    if (!readCountLine())
        return;
    while (!allModesRead() && takeHalf()) {
        if (looksLikePoint(m_half))
            checkPoint();
        else if (m_declaredModes)
            complainNoPoint();
        else // without the counts nothing but their look tells where the points end
            break;
    }
    m_modes.finish();
    if (m_declaredModes)
        compareModeCount();
}

bool EvmChecker::readCountLine()
{
    while (m_stream.lineNumber() < countLine) {
        if (m_stream.atEndOfStream()) {
            m_findings.add(m_stream.lineNumber(),
                           "the file ends before line 4, which holds the counts");
            return false;
        }
        m_line = m_stream.readLine();
    }
    const std::optional<int> speeds = count(evmlayout::speedCount);
    m_declaredModes = count(evmlayout::modeCount);
    if (speeds && m_declaredModes) {
        m_modes.declareSpeeds(*speeds);
    } else {
        m_declaredModes.reset(); // one count alone does not tell where the points end
        explainShiftedCounts();
    }
    return true;
}

/// A count; none when it cannot be used.
std::optional<int> EvmChecker::count(const Columns& columns)
{
    const std::string_view text = columns.of(m_line);
    std::int16_t number = 0;
    const NumberStatus status = parseInteger16(text, number);
    if (status != NumberStatus::Ok) {
        complain(status, text, columns);
        return std::nullopt;
    }
    if (number > 0)
        return number;
    m_findings.add(countLine,
                   "the " + std::string(columns.content) + " is declared as "
                       + std::to_string(number));
    return std::nullopt;
}

void EvmChecker::explainShiftedCounts()
{
    std::int16_t number = 0;
    const auto isCount = [&number](std::string_view text) {
        return parseInteger16(text, number) == NumberStatus::Ok;
    };
    if (isCount(evmlayout::writtenSpeedCount.of(m_line))
        && isCount(evmlayout::writtenModeCount.of(m_line)))
        m_findings.add(countLine,
                       "the counts stand in columns 56-59 and 64-67, as in an exported file; they "
                       "are read from columns 61-64 and 65-72");
}

bool EvmChecker::allModesRead() const
{
    return m_declaredModes && std::cmp_greater_equal(m_modes.modeCount(), *m_declaredModes);
}

/// Goes on to the next half of a line; false when only blanks are left in the file.
bool EvmChecker::takeHalf()
{
    if (m_hasLine && m_offset == 0) {
        m_offset = evmlayout::fieldWidth;
    } else {
        if (onlyBlanksLeft())
            return false;
        m_line = m_stream.readLine();
        m_hasLine = true;
        m_offset = 0;
    }
    m_half = m_offset < m_line.size() ? m_line.substr(m_offset, evmlayout::fieldWidth)
                                      : std::string_view();
    return true;
}

void EvmChecker::checkPoint()
{
    const std::optional<std::int16_t> number = modeNumber();
    single(evmlayout::reducedFrequency);
    const std::optional<float> speed = single(evmlayout::speed);
    single(evmlayout::damping);
    single(evmlayout::frequency);
    m_modes.addPoint(m_stream.lineNumber(), number, speed);
    checkLineEnd();
}

/// A line that ends before the last column of a point may have lost the end of its last number.
/// Numbers at the left of their columns end where they like, unless the file ends with them.
void EvmChecker::checkLineEnd()
{
    const std::string_view last = evmlayout::frequency.of(m_half);
    const bool endsInside =
        m_half.size() < evmlayout::fieldWidth && !isBlankText(m_half.substr(m_half.size() - 1));
    const std::string column = std::to_string(m_line.size());
    if (endsInside && isCutOff(m_stream, m_line))
        m_findings.add(m_stream.lineNumber(),
                       "the file ends in column " + column
                           + " of this line without an end of line: its last number may be cut");
    else if (endsInside && m_isRightAligned)
        m_findings.add(m_stream.lineNumber(),
                       "the line ends in column " + column + ", but the points before it in column "
                           + std::to_string(m_offset + evmlayout::fieldWidth)
                           + ": its last number may be cut");
    if (last.size() == evmlayout::frequency.width && isBlankText(last.substr(0, 1))
        && !isBlankText(last.substr(last.size() - 1)))
        m_isRightAligned = true;
}

/// The last half of the file may be blank.
void EvmChecker::complainNoPoint()
{
    const bool blank = isBlankText(m_half);
    if (blank && onlyBlanksLeft())
        return;
    m_findings.add(
        m_stream.lineNumber(),
        "columns " + std::to_string(m_offset + 1) + "-"
            + std::to_string(m_offset + evmlayout::fieldWidth)
            + (blank ? ": blank, though more points follow"
                     : ": no point, though more modes are declared: " + quotedTrimmed(m_half)));
}

std::optional<float> EvmChecker::single(const Columns& columns)
{
    float value = 0;
    const std::string_view text = columns.of(m_half);
    const NumberStatus status = parseSingle(text, value);
    if (status == NumberStatus::Ok)
        return value;
    complain(status, text, columns);
    return std::nullopt;
}

std::optional<std::int16_t> EvmChecker::modeNumber()
{
    std::int16_t value = 0;
    const std::string_view text = evmlayout::modeNumber.of(m_half);
    const NumberStatus status = parseInteger16(text, value);
    if (status == NumberStatus::Ok)
        return value;
    complain(status, text, evmlayout::modeNumber);
    return std::nullopt;
}

void EvmChecker::complain(NumberStatus status, std::string_view text, const Columns& columns)
{
    const std::size_t first = m_offset + columns.first + 1;
    m_findings.add(m_stream.lineNumber(),
                   "columns " + std::to_string(first) + "-"
                       + std::to_string(first + columns.width - 1) + " ("
                       + std::string(columns.content) + "): " + numberComplaint(status, text));
}

/// Compares the modes found with the count of line 4. The tags of an exported file, which follow
/// the points, are none.
void EvmChecker::compareModeCount()
{
    const std::string declared = std::to_string(*m_declaredModes) + " aeroelastic modes";
    if (std::cmp_less(m_modes.wholeModeCount(), *m_declaredModes))
        m_findings.addSummary(countLine,
                              declared + " are declared, but only "
                                  + std::to_string(m_modes.wholeModeCount())
                                  + " in the file have the declared number of points");
    else if (takeHalf() && looksLikePoint(m_half))
        m_findings.addSummary(m_stream.lineNumber(),
                              "more points follow than the " + declared
                                  + " declared in line 4; they are not read");
}

} // namespace

void checkEvm(TextStream& stream, FindingList& findings)
{
    EvmChecker(stream, findings).check();
}

} // namespace tarsil
