// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/files/TextStream.h"
#include "base/numbers/Numbers.h"
#include "base/numbers/ShortNumber.h"
#include "base/text/AsciiText.h"
#include "formats/EvmLayout.h"
#include "model/Point.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

namespace tarsil {

/// Half a line of a file in fixed columns: one point.
struct EvmField
{
    std::string_view line; ///< the whole line
    std::size_t offset = 0; ///< 0 or 40: index of the field in the line
    std::string_view text; ///< up to 40 characters; fewer at the end of the line
};

/// The functions that `EvmParser` calls. A function that reports a fault either raises an error or
/// returns; then the parser continues.
template <typename Sink>
concept EvmSink = requires(Sink sink, const EvmField& field, std::optional<std::int16_t> number,
                           NumberStatus status, std::string_view text)
{
    sink.addMissingCounts(); // the file ends before line 4
    sink.addWrongNumber(status, text, std::string());
    sink.setSpeedCount(std::int16_t {});
    sink.setModeCount(std::int16_t {});
    sink.endCounts(text); // the whole line 4
    {
        sink.wantsPoint()
        } -> std::same_as<bool>;
    {
        sink.onlyBlanksLeft()
        } -> std::same_as<bool>; // in the stream
    {
        sink.accepts(field)
        } -> std::same_as<bool>; // false: the field is ignored
    {
        sink.newPoint(field)
        } -> std::same_as<Point&>;
    sink.endPoint(field, number, bool()); // the mode number, and whether the speed is a number
    {
        sink.endPoints()
        } -> std::same_as<bool>; // whether the next field is wanted
    sink.addFieldAfterPoints(field);
};

/// Walks through a file in fixed columns and reports to a sink: a reader, which makes modes, or a
/// checker, which collects faults. It costs nothing extra for a sink that raises every error.
template <EvmSink Sink>
class EvmParser
{
public:
    EvmParser(TextStream& stream, Sink& sink) : m_stream(stream), m_sink(sink) { }

    void parse();

private:
    bool readCounts();
    std::optional<std::int16_t> count(const evmlayout::Columns& columns);
    bool nextField();
    void readPoint();
    bool readColumnByColumn(Point& point);
    std::optional<std::int16_t> modeNumber();
    bool single(const evmlayout::Columns& columns, float& value);
    void addWrongNumber(NumberStatus status, std::string_view text,
                        const evmlayout::Columns& columns);

    TextStream& m_stream;
    Sink& m_sink;
    EvmField m_field;
    bool m_hasLine = false;
    std::int16_t m_modeNumber = 0;
    std::string
        m_modeNumberText; ///< the columns that `m_modeNumber` was read from; empty: none yet
};

namespace evmparser {

/// A template, so that code is generated for the width of the columns.
template <const evmlayout::NumberColumns& columns>
bool readColumns(std::string_view field, float& value)
{
    return shortnumber::readShaped(field.data() + columns.first, columns.width, columns.usualShape,
                                   value);
}

/// The file has the damping with the opposite sign.
inline float dampingOf(float written)
{
    return written * -1.0F;
}

/// Reads the four numbers of a complete field whose numbers have their usual form. False otherwise;
/// each number is then read separately.
inline bool readUsualForm(std::string_view field, Point& point)
{
    float damping = 0;
    const bool isUsual = field.size() == evmlayout::fieldWidth
        && readColumns<evmlayout::reducedFrequency>(field, point.kfreq)
        && readColumns<evmlayout::speed>(field, point.speed)
        && readColumns<evmlayout::damping>(field, damping)
        && readColumns<evmlayout::frequency>(field, point.f);
    point.G = dampingOf(damping);
    return isUsual;
}

inline bool sameModeNumber(std::string_view text, std::string_view other)
{
    constexpr std::size_t width = evmlayout::modeNumber.width;
    return text.size() == width && other.size() == width
        && std::memcmp(text.data(), other.data(), width) == 0;
}

/// Whether the last column of the damping is not blank: the fastest test for a field that is not
/// blank.
inline bool hasDamping(std::string_view field)
{
    constexpr std::size_t last = evmlayout::damping.first + evmlayout::damping.width - 1;
    return field.size() > last && field[last] > ' ';
}

} // namespace evmparser

template <EvmSink Sink>
void EvmParser<Sink>::parse()
{
    if (!readCounts())
        return;
    while (m_sink.wantsPoint() && nextField()) {
        if (m_sink.accepts(m_field))
            readPoint();
    }
    if (m_sink.endPoints() && nextField())
        m_sink.addFieldAfterPoints(m_field);
}

template <EvmSink Sink>
bool EvmParser<Sink>::readCounts()
{
    while (m_stream.lineNumber() < evmlayout::countLine) {
        if (m_stream.atEndOfStream()) {
            m_sink.addMissingCounts();
            return false;
        }
        m_field.line = m_stream.readLine();
    }
    if (const auto speeds = count(evmlayout::speedCount))
        m_sink.setSpeedCount(*speeds);
    if (const auto modes = count(evmlayout::modeCount))
        m_sink.setModeCount(*modes);
    m_sink.endCounts(m_field.line);
    return true;
}

template <EvmSink Sink>
std::optional<std::int16_t> EvmParser<Sink>::count(const evmlayout::Columns& columns)
{
    const std::string_view text = columns.of(m_field.line);
    std::int16_t number = 0;
    const NumberStatus status = parseInteger16(text, number);
    if (status == NumberStatus::Ok)
        return number;
    addWrongNumber(status, text, columns);
    return std::nullopt;
}

/// Moves to the next field. False when only blanks are left in the file.
template <EvmSink Sink>
bool EvmParser<Sink>::nextField()
{
    if (m_hasLine && m_field.offset == 0) {
        m_field.offset = evmlayout::fieldWidth;
    } else {
        m_field.offset = 0;
        m_hasLine = !m_stream.atEndOfStream();
        if (!m_hasLine)
            return false;
        m_field.line = m_stream.readLine();
    }
    const std::string_view rest =
        m_field.line.substr(std::min(m_field.offset, m_field.line.size()));
    m_field.text = rest.substr(0, evmlayout::fieldWidth);
    return evmparser::hasDamping(m_field.text) || !isBlankText(rest) || !m_sink.onlyBlanksLeft();
}

template <EvmSink Sink>
void EvmParser<Sink>::readPoint()
{
    const std::optional<std::int16_t> number = modeNumber();
    Point& point = m_sink.newPoint(m_field);
    const bool hasSpeed =
        evmparser::readUsualForm(m_field.text, point) || readColumnByColumn(point);
    m_sink.endPoint(m_field, number, hasSpeed);
}

/// Reads the columns in order. Returns whether the speed is a number.
template <EvmSink Sink>
bool EvmParser<Sink>::readColumnByColumn(Point& point)
{
    single(evmlayout::reducedFrequency, point.kfreq);
    const bool hasSpeed = single(evmlayout::speed, point.speed);
    float damping = 0;
    single(evmlayout::damping, damping);
    point.G = evmparser::dampingOf(damping);
    single(evmlayout::frequency, point.f);
    return hasSpeed;
}

/// All points of a mode have the same number, so equal columns are parsed only once.
template <EvmSink Sink>
std::optional<std::int16_t> EvmParser<Sink>::modeNumber()
{
    const std::string_view text = evmlayout::modeNumber.of(m_field.text);
    if (evmparser::sameModeNumber(text, m_modeNumberText))
        return m_modeNumber;
    std::int16_t number = 0;
    const NumberStatus status = parseInteger16(text, number);
    if (status != NumberStatus::Ok) {
        addWrongNumber(status, text, evmlayout::modeNumber);
        return std::nullopt;
    }
    m_modeNumber = number;
    m_modeNumberText = text;
    return number;
}

/// Whether the columns contain a number.
template <EvmSink Sink>
bool EvmParser<Sink>::single(const evmlayout::Columns& columns, float& value)
{
    const std::string_view text = columns.of(m_field.text);
    const NumberStatus status = parseSingle(text, value);
    if (status != NumberStatus::Ok)
        addWrongNumber(status, text, columns);
    return status == NumberStatus::Ok;
}

template <EvmSink Sink>
void EvmParser<Sink>::addWrongNumber(NumberStatus status, std::string_view text,
                                     const evmlayout::Columns& columns)
{
    const std::size_t first = m_field.offset + columns.first + 1;
    m_sink.addWrongNumber(status, text,
                          "columns " + std::to_string(first) + "-"
                              + std::to_string(first + columns.width - 1) + " ("
                              + std::string(columns.content) + ")");
}

} // namespace tarsil
