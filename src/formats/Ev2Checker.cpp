// SPDX-License-Identifier: Apache-2.0
#include "base/files/TextStream.h"
#include "base/text/AsciiText.h"
#include "formats/CheckingSink.h"
#include "formats/Ev2Format.h"
#include "formats/Ev2Layout.h"
#include "formats/Ev2Parser.h"
#include "formats/FieldCountWatch.h"
#include "formats/FindingList.h"
#include "formats/FindingTexts.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace tarsil {

namespace {

using ev2layout::KeyValue;

class Ev2CheckingSink : public CheckingSink
{
public:
    Ev2CheckingSink(TextStream& stream, FindingList& findings)
        : CheckingSink(stream, findings, ModeWatch::ModeEnds::WhenTheNumberChanges),
          m_searchStart(stream), m_fieldCounts(findings)
    { }

    void startSearch() { m_searchStart = m_stream; }
    bool findMissingSection(std::string_view header);
    bool endsSection(std::string_view line);
    bool acceptsModelLine(std::string_view line);

    template <typename Key>
    void setText(const Key& /*key*/, std::string_view /*value*/) const
    { }
    void setMach(float /*mach*/) const { }
    void setCount(const ev2layout::CountKey& key, std::optional<std::int16_t> count);
    void addToList(const ev2layout::ListKey& key, std::string_view index, const KeyValue& entry);

    void addMissingIndex(const KeyValue& entry);
    void addWrongValue(NumberStatus status, const KeyValue& entry);
    void addMissingHeadings() { add("the file ends within the four heading lines of the results"); }

    Point& newPoint(std::optional<std::int16_t> modeNumber);
    void addShortRow(std::size_t fields, std::string_view line);
    void startFactors(std::size_t fields, std::size_t step);
    void endPoint(std::optional<std::int16_t> modeNumber, std::optional<float> speed);
    void endRow(std::string_view line);
    bool endRows();
    void addRowAfterResults();

private:
    bool findSimilarHeader(std::string_view header);

    TextStream m_searchStart; ///< where the search for a header began
    FieldCountWatch m_fieldCounts;
    Point m_point; ///< of the row being read
    std::map<std::string_view, std::set<std::string_view>> m_indexes; ///< of each list
    std::optional<int> m_declaredModes;
    std::size_t m_declaredModesLine = 0;
};

/// Accepts a header with a slightly different spelling, so that the rest is checked too. If there
/// is none, the search for the next header starts at the same line.
bool Ev2CheckingSink::findMissingSection(std::string_view header)
{
    const std::size_t lastLine = std::max<std::size_t>(m_stream.lineNumber(), 1);
    m_stream = m_searchStart;
    if (findSimilarHeader(header)) {
        add("the section header must be exactly \"" + std::string(header)
            + "\": the section is not found");
        return true;
    }
    m_findings.add(lastLine,
                   "the section \"" + std::string(header) + "\" is missing"
                       + (m_stream.lineNumber() == 0
                              ? ""
                              : " after line " + std::to_string(m_stream.lineNumber())));
    return false;
}

/// Moves to the line after a similar header. False, without moving, when there is none.
bool Ev2CheckingSink::findSimilarHeader(std::string_view header)
{
    TextStream ahead = m_stream;
    while (!ahead.atEndOfStream()) {
        const std::string_view line = ahead.readLine();
        if (line.find('[') != std::string_view::npos
            && equalIgnoringAsciiCase(trimmed(line), header)) {
            m_stream = ahead;
            return true;
        }
    }
    return false;
}

bool Ev2CheckingSink::endsSection(std::string_view line)
{
    constexpr auto& headers = ev2layout::headers;
    if (!line.starts_with('[') || std::find(headers.begin(), headers.end(), line) == headers.end())
        return false;
    add("an empty line is missing before \"" + std::string(line) + "\": the section is not found");
    return true;
}

bool Ev2CheckingSink::acceptsModelLine(std::string_view line)
{
    const bool hasEqual = line.find('=') != std::string_view::npos;
    if (!hasEqual)
        add("there is no \"=\" between a key and its value: " + quotedTrimmed(line));
    return hasEqual;
}

void Ev2CheckingSink::setCount(const ev2layout::CountKey& key, std::optional<std::int16_t> count)
{
    if (key.member == &EVM::na) {
        m_declaredModes = count;
        m_declaredModesLine = m_stream.lineNumber();
    } else if (key.member == &EVM::numberOfSpeeds && count) {
        m_modes.declareSpeeds(*count);
    }
}

void Ev2CheckingSink::addToList(const ev2layout::ListKey& key, std::string_view index,
                                const KeyValue& entry)
{
    if (!m_indexes[key.name].insert(index).second)
        add("the key " + quotedTrimmed(entry.key) + " comes twice");
}

void Ev2CheckingSink::addMissingIndex(const KeyValue& entry)
{
    add("the key " + quotedTrimmed(entry.key) + " has no index in parentheses");
}

void Ev2CheckingSink::addWrongValue(NumberStatus status, const KeyValue& entry)
{
    add(std::string(entry.key) + ": the value " + numberComplaint(status, entry.value));
}

Point& Ev2CheckingSink::newPoint(std::optional<std::int16_t> /*modeNumber*/)
{
    m_point = Point();
    return m_point;
}

void Ev2CheckingSink::addShortRow(std::size_t fields, std::string_view line)
{
    add("a result row has at least 8 fields, this one only " + std::to_string(fields) + ": "
        + quotedTrimmed(line));
}

void Ev2CheckingSink::startFactors(std::size_t fields, std::size_t /*step*/)
{
    m_fieldCounts.addRow(m_stream.lineNumber(), fields);
}

void Ev2CheckingSink::endPoint(std::optional<std::int16_t> modeNumber, std::optional<float> speed)
{
    m_modes.addPoint(m_stream.lineNumber(), modeNumber, speed);
}

/// If the file ends in this row, its last field may be truncated.
void Ev2CheckingSink::endRow(std::string_view line)
{
    const std::size_t bar = line.rfind(ev2layout::separator);
    const std::string_view last = line.substr(bar + 1); // the whole line without a "|"
    if (isCutOff(m_stream, line) && !isBlankText(last))
        add("the file ends in this row without an end of line: its last field, "
            + quotedTrimmed(last) + ", may be cut");
}

bool Ev2CheckingSink::endRows()
{
    m_modes.finish();
    m_fieldCounts.finish();
    if (m_declaredModes && std::cmp_not_equal(m_modes.modeCount(), *m_declaredModes))
        m_findings.addSummary(m_declaredModesLine,
                              std::to_string(*m_declaredModes)
                                  + " aeroelastic modes are declared, but the results hold "
                                  + std::to_string(m_modes.modeCount()));
    return true;
}

void Ev2CheckingSink::addRowAfterResults()
{
    add("this row is after the empty line that ends the results, and is not read");
}

} // namespace

void checkEv2(TextStream& stream, FindingList& findings)
{
    Ev2CheckingSink sink(stream, findings);
    Ev2Parser(stream, sink).parse();
}

} // namespace tarsil
