#include "formats/ResultRow.h"

#include "base/files/TextStream.h"
#include "base/text/QuotedText.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"

#include <algorithm>
#include <bit>

namespace tarsil {

namespace {

/// For texts of a few characters, which a loop compares sooner than a library call.
bool sameShortText(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i])
            return false;
    }
    return true;
}

} // namespace

void ResultRow::split(std::string_view line, char separator)
{
    m_line = line;
    std::size_t count = 0;
    const auto endField = [this, &count](std::size_t end) {
        m_ends[std::min(count++, kept)] = end;
    };
    const char* const text = line.data();
    std::size_t i = 0;
    for (; i + sizeof(std::uint64_t) <= line.size(); i += sizeof(std::uint64_t)) {
        auto found = shortnumber::bytesEqual(shortnumber::load<std::uint64_t>(text + i), separator);
        for (; found != 0; found &= found - 1)
            endField(i + static_cast<std::size_t>(std::countr_zero(found)) / 8);
    }
    for (; i < line.size(); ++i) {
        if (text[i] == separator)
            endField(i);
    }
    endField(line.size());
    m_count = count;
}

std::string_view resultfield::content(std::size_t index)
{
    switch (index) {
    case modeNumber:
        return "mode number";
    case imaginaryPart:
        return "eigenvalue, imaginary part";
    case realPart:
        return "eigenvalue, real part";
    case speed:
        return "speed";
    case damping:
        return "damping";
    case frequency:
        return "frequency";
    default:
        return "participation factor";
    }
}

ResultTable::ResultTable(TextStream& stream, EVM& evolution, char separator)
    : m_stream(stream), m_evolution(evolution), m_separator(separator)
{ }

bool ResultTable::readRow()
{
    if (m_stream.atEndOfStream())
        return false;
    const std::string_view line = m_stream.readLine();
    if (line.empty())
        return false;
    m_row.split(line, m_separator);
    if (m_row.count() <= resultfield::frequency)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "EVM",
                           m_stream.place() + ": only " + std::to_string(m_row.count())
                               + " of the fields of a result row: " + quotedText(line));
    const std::int16_t number = readModeNumber();
    if (!m_mode || m_mode->Id != number)
        startMode(number);
    Point& point = m_mode->Points.emplace_back();
    point.Parent = m_mode.get();
    point.im = single(resultfield::imaginaryPart);
    point.re = single(resultfield::realPart);
    point.speed = single(resultfield::speed);
    point.G = single(resultfield::damping);
    point.f = single(resultfield::frequency);
    return true;
}

void ResultTable::readFactors(std::size_t step)
{
    Point& point = m_mode->Points.back();
    for (std::size_t i = 0; i < ParticipationFactors::capacity; ++i) {
        const std::size_t index = resultfield::firstFactor + i * step;
        if (index >= m_row.count())
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "EVM",
                               m_stream.place() + ": no field " + std::to_string(index)
                                   + " (participation factor) among "
                                   + std::to_string(m_row.count()));
        point.mpf.append(single(index));
    }
}

void ResultTable::closeMode()
{
    if (!m_mode)
        return;
    if (m_mode->Points.capacity() > m_mode->Points.size())
        m_mode->Points.shrink_to_fit();
    m_mode->Parent = &m_evolution;
    m_evolution.Modes.push_back(std::move(m_mode));
}

void ResultTable::startMode(std::int16_t number)
{
    constexpr std::size_t shortestRow = 16; // eight fields of one digit and their separators
    closeMode();
    m_mode = std::make_unique<AeMode>();
    m_mode->Id = number;
    const auto declared = static_cast<std::size_t>(std::max<int>(m_evolution.numberOfSpeeds, 1));
    m_mode->Points.reserve(std::min(declared, m_stream.bytesLeft() / shortestRow + 1));
}

/// All rows of a mode carry its number, so equal texts are read once.
std::int16_t ResultTable::readModeNumber()
{
    const std::string_view text = m_row.field(resultfield::modeNumber);
    if (m_mode && sameShortText(text, m_modeNumberText))
        return m_mode->Id;
    std::int16_t number = 0;
    const NumberStatus status = parseInteger16(text, number);
    if (status != NumberStatus::Ok)
        fail(status, resultfield::modeNumber);
    m_modeNumberText = text;
    return number;
}

float ResultTable::single(std::size_t index)
{
    float value = 0;
    const std::string_view text = m_row.field(index);
    shortnumber::Shape& shape = m_shapes[index];
    if (shortnumber::readShaped(text.data(), text.size(), shape, value))
        return value;
    shape = shortnumber::shapeOf(text);
    const NumberStatus status = parseSingle(text, value);
    if (status != NumberStatus::Ok)
        fail(status, index);
    return value;
}

void ResultTable::fail(NumberStatus status, std::size_t index) const
{
    throwNumberError(status, m_row.field(index), "EVM",
                     m_stream.place() + ", field " + std::to_string(index) + " ("
                         + std::string(resultfield::content(index)) + ")");
}

} // namespace tarsil
