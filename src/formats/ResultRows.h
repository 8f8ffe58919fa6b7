// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/numbers/Numbers.h"
#include "base/numbers/ShortNumber.h"
#include "formats/ResultRow.h"
#include "model/Point.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarsil {

/// Reads the rows of a result table and reports to a sink with these functions:
///
///     Point& newPoint(std::optional<std::int16_t> modeNumber);
///     void addWrongNumber(NumberStatus status, std::string_view text, const std::string& where);
///     void addShortRow(std::size_t fields, std::string_view line);
///
/// A function that reports a fault either raises an error or returns; then reading continues.
template <typename Sink>
class ResultRows
{
public:
    ResultRows(Sink& sink, char separator) : m_sink(sink), m_separator(separator) { }

    /// Reads a row without its participation factors. False when it has too few fields.
    bool read(std::string_view line);

    /// Reads Mach number and density of the row just read, if it has them.
    void readConditions();

    /// Reads a participation factor of the row just read; its field must exist.
    void readFactor(std::size_t index);

    std::size_t fieldCount() const { return m_row.count(); }
    std::optional<std::int16_t> modeNumber() const { return m_modeNumber; }
    std::optional<float> speed() const
    {
        if (!m_hasSpeed)
            return std::nullopt;
        return m_point->speed;
    }

private:
    std::optional<std::int16_t> readModeNumber();
    bool single(std::size_t index, float& value);
    void singleIfPresent(std::size_t index, float& value);
    void addWrongNumber(NumberStatus status, std::size_t index);

    Sink& m_sink;
    char m_separator;
    ResultRow m_row;
    Point* m_point = nullptr; ///< of the row just read
    std::optional<std::int16_t> m_modeNumber; ///< of the row just read; empty: not a number
    bool m_hasSpeed = false; ///< whether the speed of the row just read is a number
    std::string m_modeNumberText; ///< the field that `m_modeNumber` was read from
    /// The form of each field in earlier rows, which makes reading it faster.
    std::array<shortnumber::Shape, ResultRow::kept> m_shapes {};
};

template <typename Sink>
bool ResultRows<Sink>::read(std::string_view line)
{
    m_row.split(line, m_separator);
    if (m_row.count() < resultfield::fewest) {
        m_sink.addShortRow(m_row.count(), line);
        return false;
    }
    m_modeNumber = readModeNumber();
    Point& point = m_sink.newPoint(m_modeNumber);
    m_point = &point;
    single(resultfield::imaginaryPart, point.im);
    single(resultfield::realPart, point.re);
    m_hasSpeed = single(resultfield::speed, point.speed);
    single(resultfield::damping, point.G);
    single(resultfield::frequency, point.f);
    return true;
}

template <typename Sink>
void ResultRows<Sink>::readConditions()
{
    singleIfPresent(resultfield::mach, m_point->mach);
    singleIfPresent(resultfield::sigma, m_point->sigma);
}

template <typename Sink>
void ResultRows<Sink>::readFactor(std::size_t index)
{
    float factor = 0;
    if (single(index, factor))
        m_point->mpf.append(factor);
}

/// All rows of a mode have the same number, so equal texts are parsed only once.
template <typename Sink>
std::optional<std::int16_t> ResultRows<Sink>::readModeNumber()
{
    const std::string_view text = m_row.field(resultfield::modeNumber);
    if (m_modeNumber && sameShortText(text, m_modeNumberText))
        return m_modeNumber;
    std::int16_t number = 0;
    const NumberStatus status = parseInteger16(text, number);
    if (status != NumberStatus::Ok) {
        addWrongNumber(status, resultfield::modeNumber);
        return std::nullopt;
    }
    m_modeNumberText = text;
    return number;
}

/// Whether the field contains a number.
template <typename Sink>
bool ResultRows<Sink>::single(std::size_t index, float& value)
{
    const std::string_view text = m_row.field(index);
    shortnumber::Shape& shape = m_shapes[index];
    if (shortnumber::readShaped(text.data(), text.size(), shape, value))
        return true;
    shape = shortnumber::shapeOf(text);
    const NumberStatus status = parseSingle(text, value);
    if (status != NumberStatus::Ok)
        addWrongNumber(status, index);
    return status == NumberStatus::Ok;
}

template <typename Sink>
void ResultRows<Sink>::singleIfPresent(std::size_t index, float& value)
{
    if (index < m_row.count() && !m_row.field(index).empty())
        single(index, value);
}

template <typename Sink>
void ResultRows<Sink>::addWrongNumber(NumberStatus status, std::size_t index)
{
    m_sink.addWrongNumber(status, m_row.field(index),
                          "field " + std::to_string(index) + " ("
                              + std::string(resultfield::content(index)) + ")");
}

} // namespace tarsil
