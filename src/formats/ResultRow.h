// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tarsil {

/// A row of a result table, split at its separator. Stores only the first fields but counts all.
class ResultRow
{
public:
    static constexpr std::size_t kept = 26;

    void split(std::string_view line, char separator);

    std::size_t count() const { return m_count; } ///< number of fields, with empty ones
    std::string_view field(std::size_t index) const
    {
        const std::size_t start = index == 0 ? 0 : m_ends[index - 1] + std::size_t {1};
        return {m_line.data() + start, m_ends[index] - start};
    }

private:
    std::string_view m_line;
    std::array<std::size_t, kept + 1> m_ends {}; ///< end of each field; the last: end of all others
    std::size_t m_count = 0;
};

/// The fields at the same index, counted from 0, in every result table.
namespace resultfield {
constexpr std::size_t modeNumber = 0;
constexpr std::size_t imaginaryPart = 2;
constexpr std::size_t realPart = 3;
constexpr std::size_t speed = 5;
constexpr std::size_t damping = 6;
constexpr std::size_t frequency = 7;
constexpr std::size_t fewest = 8; ///< minimum number of fields
constexpr std::size_t mach = 8; ///< of imported evolutions
constexpr std::size_t sigma = 9; ///< of imported evolutions
constexpr std::size_t firstFactor = 10;
constexpr std::size_t mostWithoutFactors = 11; ///< number of fields

/// The content of a field, for messages.
std::string_view content(std::size_t index);
} // namespace resultfield

/// Faster than a library call for texts of a few characters.
inline bool sameShortText(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i])
            return false;
    }
    return true;
}

} // namespace tarsil
