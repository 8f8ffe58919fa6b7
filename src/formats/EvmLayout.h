#pragma once

#include "base/numbers/ShortNumber.h"

#include <cstddef>
#include <string_view>

namespace tarsil::evmlayout {

/// A group of columns of the fixed-column layout: first column (counted from 0) and width.
struct Columns
{
    std::size_t first;
    std::size_t width;
    std::string_view content;

    /// These columns of a line; shorter, or empty, where the line ends before.
    std::string_view of(std::string_view line) const
    {
        return first < line.size() ? line.substr(first, width) : std::string_view();
    }
};

/// A group of columns for a decimal number, with the form in which it is usually written.
struct NumberColumns : Columns
{
    shortnumber::Shape usualShape;
};

constexpr std::size_t headerLines = 4;
constexpr std::size_t fieldWidth = 40;
constexpr std::size_t shortestField = 32; ///< one digit in the last column group

// Line 4 as the reader takes it.
constexpr Columns speedCount {60, 4, "number of speeds"};
constexpr Columns modeCount {64, 8, "number of aeroelastic modes"};

// Line 4 as the writer fills it.
constexpr Columns writtenSpeedCount {55, 4, "number of speeds"};
constexpr Columns writtenModeCount {63, 4, "number of aeroelastic modes"};

// A 40-column point field.
constexpr Columns modeNumber {0, 3, "mode number"};
constexpr NumberColumns reducedFrequency {{3, 7, "reduced frequency"}, {3, false}};
constexpr NumberColumns speed {{10, 9, "speed"}, {3, false}};
constexpr NumberColumns damping {{19, 12, "damping"}, {5, true}};
constexpr NumberColumns frequency {{31, 9, "frequency"}, {3, false}};

} // namespace tarsil::evmlayout
