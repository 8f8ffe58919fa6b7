#pragma once

#include "base/numbers/Numbers.h"
#include "base/numbers/ShortNumber.h"
#include "model/Point.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace tarsil {

class AeMode;
class EVM;
class TextStream;

/// One row of a result table, cut at its separator. Only the first fields are kept, but all are
/// counted.
class ResultRow
{
public:
    static constexpr std::size_t kept = 26;

    void split(std::string_view line, char separator);

    std::size_t count() const { return m_count; } ///< fields of the row, empty ones included
    std::string_view field(std::size_t index) const
    {
        const std::size_t start = index == 0 ? 0 : m_ends[index - 1] + std::size_t {1};
        return {m_line.data() + start, m_ends[index] - start};
    }

private:
    std::string_view m_line;
    std::array<std::size_t, kept + 1> m_ends {}; ///< where each field ends; the last: all others
    std::size_t m_count = 0;
};

/// The fields that every result table has in the same places, counted from 0.
namespace resultfield {
constexpr std::size_t modeNumber = 0;
constexpr std::size_t imaginaryPart = 2;
constexpr std::size_t realPart = 3;
constexpr std::size_t speed = 5;
constexpr std::size_t damping = 6;
constexpr std::size_t frequency = 7;
constexpr std::size_t firstFactor = 10;

/// What a field holds, for messages.
std::string_view content(std::size_t index);
} // namespace resultfield

/// Turns the rows of a result table into modes and points: a row of another mode number closes the
/// mode before it.
class ResultTable
{
public:
    ResultTable(TextStream& stream, EVM& evolution, char separator);

    /// Reads the stream's next line as a row; false when it is empty or the stream has ended.
    bool readRow();

    /// Reads the participation factors of the row just read from every `step`-th field.
    void readFactors(std::size_t step);

    std::size_t fieldCount() const { return m_row.count(); }

    /// Appends the mode being built, if there is one.
    void closeMode();

private:
    void startMode(std::int16_t number);
    float single(std::size_t index);
    std::int16_t readModeNumber();
    [[noreturn]] void fail(NumberStatus status, std::size_t index) const;

    TextStream& m_stream;
    EVM& m_evolution;
    char m_separator;
    ResultRow m_row;
    std::unique_ptr<AeMode> m_mode;
    std::string m_modeNumberText;
    /// The shape of each field in the rows before: knowing it, the number needs no searching.
    std::array<shortnumber::Shape, ResultRow::kept> m_shapes {};
};

} // namespace tarsil
