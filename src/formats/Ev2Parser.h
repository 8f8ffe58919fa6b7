// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/files/TextStream.h"
#include "base/numbers/Numbers.h"
#include "formats/Ev2Layout.h"
#include "formats/ResultRow.h"
#include "formats/ResultRows.h"
#include "model/Point.h"

#include <bitset>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tarsil {

/// The functions that `Ev2Parser` calls. A function that reports a fault either raises an error or
/// returns; then the parser continues.
template <typename Sink>
concept Ev2Sink = requires(Sink sink, std::string_view text, const ev2layout::KeyValue& entry,
                           std::optional<std::int16_t> number, NumberStatus status,
                           std::size_t count, std::optional<float> speed)
{
    sink.startSearch(); // for a header
    // the header is missing; whether the section was found after all
    {
        sink.findMissingSection(text)
        } -> std::same_as<bool>;
    {
        sink.endsSection(text)
        } -> std::same_as<bool>; // whether a line that is not empty ends the section
    {
        sink.acceptsModelLine(text)
        } -> std::same_as<bool>; // false: the line is ignored
    sink.setText(ev2layout::processingTexts[0], text);
    sink.setText(ev2layout::parameterTexts[0], text);
    sink.setText(ev2layout::provenanceTexts[0], text);
    sink.setMach(float {});
    sink.setCount(ev2layout::modelCounts[0], number);
    sink.addToList(ev2layout::lists[0], text, entry); // its index
    sink.addMissingIndex(entry);
    sink.addWrongValue(status, entry);
    sink.addMissingHeadings();
    sink.startFactors(count, count); // fields of the row, and distance between factors
    sink.endPoint(number, speed); // mode number and speed, if they are numbers
    sink.endRow(text); // also for a row with too few fields
    {
        sink.endRows()
        } -> std::same_as<bool>; // whether rows after them are wanted
    sink.addRowAfterResults();
};

/// Walks through a file with sections and reports to a sink: a reader, which makes an evolution, or
/// a checker, which collects faults. It costs nothing extra for a sink that raises every error.
template <Ev2Sink Sink>
class Ev2Parser
{
public:
    Ev2Parser(TextStream& stream, Sink& sink)
        : m_stream(stream), m_sink(sink), m_rows(sink, ev2layout::separator)
    { }

    void parse();

private:
    bool findSection(std::string_view header);
    bool nextSectionLine(std::string_view& line);
    void parseProcessingLine(const ev2layout::KeyValue& entry);
    void parseModelLine(const ev2layout::KeyValue& entry);
    template <typename Keys>
    bool parseText(const Keys& keys, const ev2layout::KeyValue& entry);
    bool parseNumber(const ev2layout::KeyValue& entry);
    void parseMach(const ev2layout::KeyValue& entry);
    void parseCount(const ev2layout::CountKey& key, const ev2layout::KeyValue& entry);
    void parseListEntry(const ev2layout::ListKey& list, const ev2layout::KeyValue& entry);
    void parseResults();
    bool passHeadings();
    void parseRow(std::string_view line);
    void findRowAfterResults();

    TextStream& m_stream;
    Sink& m_sink;
    ResultRows<Sink> m_rows;
    std::string_view m_headerMet; ///< a header found inside the previous section
    std::bitset<ev2layout::keysOfImports> m_importKeys; ///< import keys found so far
};

template <Ev2Sink Sink>
void Ev2Parser<Sink>::parse()
{
    std::string_view line;
    if (findSection(ev2layout::processingHeader)) {
        while (nextSectionLine(line))
            parseProcessingLine(ev2layout::splitAtFirstEqual(line));
    }
    if (findSection(ev2layout::modelHeader)) {
        while (nextSectionLine(line)) {
            if (m_sink.acceptsModelLine(line))
                parseModelLine(ev2layout::splitAtFirstEqual(line));
        }
    }
    if (findSection(ev2layout::resultHeader))
        parseResults();
}

template <Ev2Sink Sink>
bool Ev2Parser<Sink>::findSection(std::string_view header)
{
    if (!m_headerMet.empty())
        return std::exchange(m_headerMet, {}) == header;
    m_sink.startSearch();
    while (!m_stream.atEndOfStream()) {
        if (m_stream.readLine() == header)
            return true;
    }
    return m_sink.findMissingSection(header);
}

/// Reads the next line of a section. False at its end.
template <Ev2Sink Sink>
bool Ev2Parser<Sink>::nextSectionLine(std::string_view& line)
{
    if (m_stream.atEndOfStream())
        return false;
    line = m_stream.readLine();
    if (line.empty())
        return false;
    if (!m_sink.endsSection(line))
        return true;
    m_headerMet = line;
    return false;
}

/// In this section a second "=" ends the value, except for import keys, whose values may be paths.
template <Ev2Sink Sink>
void Ev2Parser<Sink>::parseProcessingLine(const ev2layout::KeyValue& entry)
{
    const auto [key, rest] = entry;
    if (!parseText(ev2layout::provenanceTexts, entry)) {
        parseText(ev2layout::processingTexts, {key, rest.substr(0, rest.find('='))});
        return;
    }
    for (std::size_t i = 0; i < m_importKeys.size(); ++i) {
        if (ev2layout::provenanceTexts[i].name == key)
            m_importKeys.set(i);
    }
}

template <Ev2Sink Sink>
void Ev2Parser<Sink>::parseModelLine(const ev2layout::KeyValue& entry)
{
    if (parseText(ev2layout::modelTexts, entry) || parseText(ev2layout::parameterTexts, entry)
        || parseNumber(entry))
        return;
    for (const ev2layout::ListKey& list : ev2layout::lists) {
        if (entry.key.find(list.name) != std::string_view::npos)
            parseListEntry(list, entry);
    }
}

/// Whether the entry has one of these keys.
template <Ev2Sink Sink>
template <typename Keys>
bool Ev2Parser<Sink>::parseText(const Keys& keys, const ev2layout::KeyValue& entry)
{
    for (const auto& key : keys) {
        if (key.name == entry.key) {
            m_sink.setText(key, entry.value);
            return true;
        }
    }
    return false;
}

/// Whether the entry has a key with a numeric value.
template <Ev2Sink Sink>
bool Ev2Parser<Sink>::parseNumber(const ev2layout::KeyValue& entry)
{
    if (entry.key == ev2layout::machKey) {
        parseMach(entry);
        return true;
    }
    for (const ev2layout::CountKey& key : ev2layout::modelCounts) {
        if (key.name == entry.key) {
            parseCount(key, entry);
            return true;
        }
    }
    return false;
}

template <Ev2Sink Sink>
void Ev2Parser<Sink>::parseMach(const ev2layout::KeyValue& entry)
{
    float mach = 0;
    const NumberStatus status = parseSingle(entry.value, mach);
    if (status == NumberStatus::Ok)
        m_sink.setMach(mach);
    else
        m_sink.addWrongValue(status, entry);
}

template <Ev2Sink Sink>
void Ev2Parser<Sink>::parseCount(const ev2layout::CountKey& key, const ev2layout::KeyValue& entry)
{
    std::int16_t count = 0;
    const NumberStatus status = parseInteger16(entry.value, count);
    if (status != NumberStatus::Ok)
        m_sink.addWrongValue(status, entry);
    m_sink.setCount(key, status == NumberStatus::Ok ? std::optional(count) : std::nullopt);
}

template <Ev2Sink Sink>
void Ev2Parser<Sink>::parseListEntry(const ev2layout::ListKey& list,
                                     const ev2layout::KeyValue& entry)
{
    if (const auto index = ev2layout::entryIndex(entry.key))
        m_sink.addToList(list, *index, entry);
    else
        m_sink.addMissingIndex(entry);
}

template <Ev2Sink Sink>
void Ev2Parser<Sink>::parseResults()
{
    if (!passHeadings())
        return;
    std::string_view line;
    while (nextSectionLine(line)) {
        parseRow(line);
        m_sink.endRow(line);
    }
    if (m_sink.endRows())
        findRowAfterResults();
}

template <Ev2Sink Sink>
bool Ev2Parser<Sink>::passHeadings()
{
    for (std::size_t i = 0; i < ev2layout::headingLines; ++i) {
        if (m_stream.atEndOfStream()) {
            m_sink.addMissingHeadings();
            return false;
        }
        m_stream.readLine();
    }
    return true;
}

template <Ev2Sink Sink>
void Ev2Parser<Sink>::parseRow(std::string_view line)
{
    if (!m_rows.read(line))
        return;
    if (m_importKeys.all())
        m_rows.readConditions();
    const std::size_t step = ev2layout::factorStep(m_rows.fieldCount());
    m_sink.startFactors(m_rows.fieldCount(), step);
    for (std::size_t i = 0; step > 0 && i < ParticipationFactors::capacity; ++i)
        m_rows.readFactor(resultfield::firstFactor + i * step);
    m_sink.endPoint(m_rows.modeNumber(), m_rows.speed());
}

/// Reports the first row after the end of the results.
template <Ev2Sink Sink>
void Ev2Parser<Sink>::findRowAfterResults()
{
    ResultRow row;
    while (!m_stream.atEndOfStream()) {
        row.split(m_stream.readLine(), ev2layout::separator);
        if (row.count() >= resultfield::fewest) {
            m_sink.addRowAfterResults();
            return;
        }
    }
}

} // namespace tarsil
