#include "base/files/FileLines.h"
#include "base/files/TextStream.h"
#include "base/numbers/Numbers.h"
#include "base/numbers/ShortNumber.h"
#include "formats/EvmFormat.h"
#include "formats/EvmLayout.h"
#include "model/EVM.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace tarsil {

namespace {

using evmlayout::Columns;

/// Reads one file: keeps the current line and which half of it comes next.
class EvmReader
{
public:
    EvmReader(TextStream& stream, EVM& evolution) : m_stream(stream), m_evolution(evolution) { }

    void read();

private:
    void readCounts();
    bool takeField(std::string_view& field);
    void readPoint(std::string_view field, Point& point);
    void readModeNumber(std::string_view field);
    float single(std::string_view field, const Columns& columns);
    [[noreturn]] void fail(NumberStatus status, std::string_view text,
                           const Columns& columns) const;
    std::size_t expectedPoints() const;

    TextStream& m_stream;
    EVM& m_evolution;
    std::string_view m_line;
    std::size_t m_offset = 0; ///< 0 or 40: where the next field begins
    bool m_hasLine = false;
    std::int16_t m_modeNumber = 0;
    std::string m_modeNumberText; ///< the columns that gave it
};

/// For columns known when this is compiled, so that reading them is made for their width.
template <const evmlayout::NumberColumns& columns>
bool readColumns(std::string_view field, float& value)
{
    return shortnumber::readShaped(field.data() + columns.first, columns.width, columns.usualShape,
                                   value);
}

/// Reads the four numbers of a field that has all its columns, and numbers of the usual form in
/// them; false when it is otherwise, so that each has to be looked at.
bool readUsualForm(std::string_view field, Point& point)
{
    float damping = 0;
    const bool isUsual = field.size() == evmlayout::fieldWidth
        && readColumns<evmlayout::reducedFrequency>(field, point.kfreq)
        && readColumns<evmlayout::speed>(field, point.speed)
        && readColumns<evmlayout::damping>(field, damping)
        && readColumns<evmlayout::frequency>(field, point.f);
    point.G = damping * -1.0F;
    return isUsual;
}

bool sameModeNumber(std::string_view text, std::string_view other)
{
    constexpr std::size_t width = evmlayout::modeNumber.width;
    return text.size() == width && other.size() == width
        && std::memcmp(text.data(), other.data(), width) == 0;
}

/// Whether something stands in the last column of the damping: the quickest way to see that a
/// field is not blank.
bool hasDamping(std::string_view field)
{
    constexpr std::size_t last = evmlayout::damping.first + evmlayout::damping.width - 1;
    return field.size() > last && field[last] > ' ';
}

void EvmReader::read()
{
    for (std::size_t i = 0; i < evmlayout::headerLines; ++i)
        m_line = m_stream.readLine();
    readCounts();
    std::string_view field;
    std::unique_ptr<AeMode> mode;
    while (std::cmp_less(m_evolution.Modes.size(), m_evolution.na) && takeField(field)) {
        if (!mode) {
            mode = std::make_unique<AeMode>();
            mode->Points.reserve(expectedPoints());
        }
        Point& point = mode->Points.emplace_back();
        readPoint(field, point);
        point.Parent = mode.get();
        if (std::cmp_less(mode->Points.size(), m_evolution.numberOfSpeeds))
            continue;
        mode->Id = m_modeNumber;
        mode->Parent = &m_evolution;
        m_evolution.Modes.push_back(std::exchange(mode, nullptr));
    }
}

void EvmReader::readCounts()
{
    for (const auto& [columns, count] :
         {std::pair(&evmlayout::speedCount, &m_evolution.numberOfSpeeds),
          std::pair(&evmlayout::modeCount, &m_evolution.na)}) {
        const std::string_view text = columns->of(m_line);
        const NumberStatus status = parseInteger16(text, *count);
        if (status != NumberStatus::Ok)
            fail(status, text, *columns);
    }
}

/// The next 40-column field; false when only blanks are left in the file.
bool EvmReader::takeField(std::string_view& field)
{
    if (m_hasLine && m_offset == 0) {
        m_offset = evmlayout::fieldWidth;
    } else {
        m_offset = 0;
        m_hasLine = !m_stream.atEndOfStream();
        if (!m_hasLine)
            return false;
        m_line = m_stream.readLine();
    }
    field = m_offset < m_line.size() ? m_line.substr(m_offset, evmlayout::fieldWidth)
                                     : std::string_view();
    return hasDamping(field) || !isBlankText(m_line.substr(std::min(m_offset, m_line.size())))
        || !m_stream.onlyBlanksLeft();
}

void EvmReader::readPoint(std::string_view field, Point& point)
{
    readModeNumber(field);
    if (readUsualForm(field, point))
        return;
    point.kfreq = single(field, evmlayout::reducedFrequency);
    point.speed = single(field, evmlayout::speed);
    // The file holds the damping with the opposite sign.
    point.G = single(field, evmlayout::damping) * -1.0F;
    point.f = single(field, evmlayout::frequency);
}

/// All points of a mode carry its number, so equal columns are read once.
void EvmReader::readModeNumber(std::string_view field)
{
    const std::string_view text = evmlayout::modeNumber.of(field);
    if (sameModeNumber(text, m_modeNumberText))
        return;
    const NumberStatus status = parseInteger16(text, m_modeNumber);
    if (status != NumberStatus::Ok)
        fail(status, text, evmlayout::modeNumber);
    m_modeNumberText = text;
}

float EvmReader::single(std::string_view field, const Columns& columns)
{
    float value = 0;
    const std::string_view text = columns.of(field);
    const NumberStatus status = parseSingle(text, value);
    if (status != NumberStatus::Ok)
        fail(status, text, columns);
    return value;
}

void EvmReader::fail(NumberStatus status, std::string_view text, const Columns& columns) const
{
    const std::size_t first = m_offset + columns.first + 1;
    throwNumberError(status, text, "EVM",
                     m_stream.place() + ", columns " + std::to_string(first) + "-"
                         + std::to_string(first + columns.width - 1) + " ("
                         + std::string(columns.content) + ")");
}

/// How many points the next mode can have: never more than the rest of the file can hold.
std::size_t EvmReader::expectedPoints() const
{
    const auto declared = static_cast<std::size_t>(std::max<int>(m_evolution.numberOfSpeeds, 1));
    const std::size_t bytesLeft = m_line.size() + m_stream.bytesLeft();
    return std::min(declared, bytesLeft / evmlayout::shortestField + 1);
}

} // namespace

void readEvm(TextStream& stream, EVM& evolution)
{
    evolution.isNewFormat = false;
    evolution.hasParticipationFactors = false;
    EvmReader(stream, evolution).read();
}

} // namespace tarsil
