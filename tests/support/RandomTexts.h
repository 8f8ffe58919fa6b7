// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <type_traits>

namespace tarsil::test {

/// Random numbers and texts from a seed, the same on every machine: the sequence of the engine is
/// fixed by the standard, and no library distribution is used. The texts consist of what readers of
/// workspaces could stumble over, and of letters of three encodings.
class RandomTexts
{
public:
    /// For half of the seeds all texts can be written as Windows-1252.
    explicit RandomTexts(unsigned seed) : m_engine(seed)
    {
        m_pieceCount = below(2) == 0 ? pieces.size() : pieces.size() - unicodeOnly;
    }

    std::size_t below(std::size_t limit) { return m_engine() % limit; }
    std::uint32_t bits() { return static_cast<std::uint32_t>(m_engine()); }

    /// Small and large numbers with equal probability.
    template <typename Integer>
    Integer integer()
    {
        return std::bit_cast<Integer>(
            static_cast<std::make_unsigned_t<Integer>>(m_engine() >> below(32)));
    }

    /// Any finite number.
    float single()
    {
        for (;;) {
            const auto value = std::bit_cast<float>(bits());
            if (std::isfinite(value))
                return value;
        }
    }

    const std::string& piece() { return pieces.at(below(m_pieceCount)); }

    /// A text of one line with fewer than `limit` pieces; may be empty.
    std::string line(std::size_t limit = 30)
    {
        std::string text;
        for (std::size_t left = below(limit); left > 0; --left)
            text += piece();
        return text;
    }

private:
    static constexpr std::size_t unicodeOnly =
        3; ///< number of pieces at the end that only Unicode has
    static inline const std::array<std::string, 22> pieces = {
        "a", "B", "7",  " ", "\t",     "=", "[", "]", ";", "\"", "'",
        "|", ",", "\\", "ü", "\u0081", "Ã", "¼", "–", "α", "漢", "𝛼"};

    std::mt19937 m_engine;
    std::size_t m_pieceCount = 0;
};

} // namespace tarsil::test
