#include "base/files/FileLines.h"
#include "base/files/TextStream.h"
#include "formats/Ev2Format.h"
#include "formats/Ev2Layout.h"
#include "formats/FieldCountWatch.h"
#include "formats/FindingList.h"
#include "formats/FindingTexts.h"
#include "formats/ModeWatch.h"
#include "formats/ResultRow.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace tarsil {

namespace {

using ev2layout::KeyValue;

constexpr std::array headers = {ev2layout::processingHeader, ev2layout::modelHeader,
                                ev2layout::resultHeader};

/// The text in capitals and without surrounding blanks: what remains when a header is spelled
/// carelessly.
std::string plainForm(std::string_view text)
{
    std::string plain(text);
    plain.erase(0, plain.find_first_not_of(" \t"));
    plain.erase(plain.find_last_not_of(" \t") + 1);
    std::transform(plain.begin(), plain.end(), plain.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return plain;
}

bool isAnyHeader(std::string_view line)
{
    return line.starts_with('[')
        && std::find(headers.begin(), headers.end(), line) != headers.end();
}

class Ev2Checker
{
public:
    Ev2Checker(TextStream& stream, FindingList& findings)
        : m_stream(stream), m_findings(findings),
          m_modes(findings, ModeWatch::ModeEnds::WhenTheNumberChanges), m_fieldCounts(findings)
    { }

    void check();

private:
    bool findHeader(std::string_view header);
    bool readSectionLine(std::string_view& line);
    void checkModelLine(const KeyValue& entry);
    std::optional<std::int16_t> modelCount(const KeyValue& entry);
    void checkListKey(std::string_view key, std::set<std::string_view>& known);
    void checkResults();
    void checkRow(std::string_view line);
    void checkFactors();
    std::optional<float> single(std::size_t index);
    std::optional<std::int16_t> modeNumber();
    void complain(NumberStatus status, std::size_t index);
    void checkLineEnd(std::string_view line);
    void compareModeCount();
    void add(std::string text) { m_findings.add(m_stream.lineNumber(), std::move(text)); }

    TextStream& m_stream;
    FindingList& m_findings;
    ModeWatch m_modes;
    FieldCountWatch m_fieldCounts;
    ResultRow m_row;
    std::string_view m_pending; ///< a header met inside the section before it
    std::set<std::string_view> m_modifications;
    std::set<std::string_view> m_legends;
    std::optional<int> m_declaredModes;
    std::size_t m_declaredModesLine = 0;
};

void Ev2Checker::check()
{
    std::string_view line;
    if (findHeader(ev2layout::processingHeader)) {
        while (readSectionLine(line)) { }
    }
    if (findHeader(ev2layout::modelHeader)) {
        while (readSectionLine(line)) {
            if (line.find('=') == std::string_view::npos)
                add("no \"=\" stands between a key and its value: " + quotedTrimmed(line));
            else
                checkModelLine(ev2layout::splitAtFirstEqual(line));
        }
    }
    if (findHeader(ev2layout::resultHeader))
        checkResults();
}

/// Goes to the line after a header. One that is spelled a little differently is taken after all, so
/// that the rest is checked too.
bool Ev2Checker::findHeader(std::string_view header)
{
    if (!m_pending.empty())
        return std::exchange(m_pending, {}) == header;
    TextStream ahead = m_stream;
    std::optional<TextStream> similar;
    while (!ahead.atEndOfStream()) {
        const std::string_view line = ahead.readLine();
        if (line == header) {
            m_stream = ahead;
            return true;
        }
        if (!similar && line.find('[') != std::string_view::npos && plainForm(line) == header)
            similar = ahead;
    }
    if (similar) {
        m_stream = *similar;
        add("the section header must be exactly \"" + std::string(header)
            + "\": the section is not found");
        return true;
    }
    m_findings.add(std::max<std::size_t>(ahead.lineNumber(), 1),
                   "the section \"" + std::string(header) + "\" is missing"
                       + (m_stream.lineNumber() == 0
                              ? ""
                              : " after line " + std::to_string(m_stream.lineNumber())));
    return false;
}

/// The next line of a section; false at the empty line, or the end of the file, that closes it.
bool Ev2Checker::readSectionLine(std::string_view& line)
{
    if (m_stream.atEndOfStream())
        return false;
    line = m_stream.readLine();
    if (isAnyHeader(line)) {
        add("an empty line is missing before \"" + std::string(line)
            + "\": the section is not found");
        m_pending = line;
        return false;
    }
    return !line.empty();
}

void Ev2Checker::checkModelLine(const KeyValue& entry)
{
    if (entry.key == "Mach_number") {
        float mach = 0;
        if (const NumberStatus status = parseSingle(entry.value, mach); status != NumberStatus::Ok)
            add("Mach_number: the value " + numberComplaint(status, entry.value));
    } else if (entry.key == "Struct_modes") {
        modelCount(entry);
    } else if (entry.key == "Aeroel_modes") {
        m_declaredModes = modelCount(entry);
        m_declaredModesLine = m_stream.lineNumber();
    } else if (entry.key == "No_of_speeds") {
        if (const auto speeds = modelCount(entry))
            m_modes.declareSpeeds(*speeds);
    } else {
        if (entry.key.find("Modif") != std::string_view::npos)
            checkListKey(entry.key, m_modifications);
        if (entry.key.find("Legend") != std::string_view::npos)
            checkListKey(entry.key, m_legends);
    }
}

std::optional<std::int16_t> Ev2Checker::modelCount(const KeyValue& entry)
{
    std::int16_t number = 0;
    const NumberStatus status = parseInteger16(entry.value, number);
    if (status == NumberStatus::Ok)
        return number;
    add(std::string(entry.key) + ": the value " + numberComplaint(status, entry.value));
    return std::nullopt;
}

void Ev2Checker::checkListKey(std::string_view key, std::set<std::string_view>& known)
{
    const std::optional<std::string_view> index = ev2layout::entryKey(key);
    if (!index)
        add("the key " + quotedTrimmed(key) + " has no index in parentheses");
    else if (!known.insert(*index).second)
        add("the key " + quotedTrimmed(key) + " comes twice");
}

void Ev2Checker::checkResults()
{
    for (std::size_t i = 0; i < ev2layout::headingLines; ++i) {
        if (m_stream.atEndOfStream()) {
            add("the file ends within the four heading lines of the results");
            return;
        }
        m_stream.readLine();
    }
    std::string_view line;
    while (readSectionLine(line)) {
        checkRow(line);
        checkLineEnd(line);
    }
    m_modes.finish();
    m_fieldCounts.finish();
    compareModeCount();
    while (!m_stream.atEndOfStream()) {
        m_row.split(m_stream.readLine(), '|');
        if (m_row.count() > resultfield::frequency) {
            add("this row stands after the empty line that ends the results, and is not read");
            return;
        }
    }
}

void Ev2Checker::checkRow(std::string_view line)
{
    m_row.split(line, '|');
    if (m_row.count() <= resultfield::frequency) {
        add("a result row has at least 8 fields, this one only " + std::to_string(m_row.count())
            + ": " + quotedTrimmed(line));
        return;
    }
    const std::optional<std::int16_t> number = modeNumber();
    single(resultfield::imaginaryPart);
    single(resultfield::realPart);
    const std::optional<float> speed = single(resultfield::speed);
    single(resultfield::damping);
    single(resultfield::frequency);
    checkFactors();
    m_modes.addPoint(m_stream.lineNumber(), number, speed);
}

void Ev2Checker::checkFactors()
{
    m_fieldCounts.addRow(m_stream.lineNumber(), m_row.count());
    const std::size_t step = ev2layout::factorStep(m_row.count());
    for (std::size_t i = 0; step > 0 && i < ParticipationFactors::capacity; ++i)
        single(resultfield::firstFactor + i * step);
}

std::optional<float> Ev2Checker::single(std::size_t index)
{
    float value = 0;
    const NumberStatus status = parseSingle(m_row.field(index), value);
    if (status == NumberStatus::Ok)
        return value;
    complain(status, index);
    return std::nullopt;
}

std::optional<std::int16_t> Ev2Checker::modeNumber()
{
    std::int16_t value = 0;
    const NumberStatus status = parseInteger16(m_row.field(resultfield::modeNumber), value);
    if (status == NumberStatus::Ok)
        return value;
    complain(status, resultfield::modeNumber);
    return std::nullopt;
}

void Ev2Checker::complain(NumberStatus status, std::size_t index)
{
    add("field " + std::to_string(index) + " (" + std::string(resultfield::content(index))
        + "): " + numberComplaint(status, m_row.field(index)));
}

/// A row in which the file ends may have lost the end of its last field, too.
void Ev2Checker::checkLineEnd(std::string_view line)
{
    const std::string_view last = line.substr(line.rfind('|') + 1); // all of it without a "|"
    if (isCutOff(m_stream, line) && !isBlankText(last))
        add("the file ends in this row without an end of line: its last field, "
            + quotedTrimmed(last) + ", may be cut");
}

void Ev2Checker::compareModeCount()
{
    if (m_declaredModes && std::cmp_not_equal(m_modes.modeCount(), *m_declaredModes))
        m_findings.addSummary(m_declaredModesLine,
                              std::to_string(*m_declaredModes)
                                  + " aeroelastic modes are declared, but the results hold "
                                  + std::to_string(m_modes.modeCount()));
}

} // namespace

void checkEv2(TextStream& stream, FindingList& findings)
{
    Ev2Checker(stream, findings).check();
}

} // namespace tarsil
