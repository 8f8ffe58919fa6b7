// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/numbers/ShortNumber.h"

#include <cstddef>
#include <string_view>

/// The columns of an .evm file.
namespace tarsil::evmlayout {

/// A group of columns of a line or field: the index of the first one, and their number.
struct Columns
{
    std::size_t first;
    std::size_t width;
    std::string_view content;

    /// These columns of a line; shorter or empty if the line ends before.
    std::string_view of(std::string_view line) const
    {
        return first < line.size() ? line.substr(first, width) : std::string_view();
    }
};

/// A group of columns for a number, with its usual form.
struct NumberColumns : Columns
{
    shortnumber::Shape usualShape;
    std::string_view pattern; ///< for `formatNumber`
};

constexpr std::size_t countLine = 4; ///< the line with the counts
constexpr std::size_t fieldWidth = 40; ///< a line has two fields of one point each
constexpr std::size_t fieldsPerLine = 2;
constexpr std::size_t lineWidth = fieldsPerLine * fieldWidth;
constexpr std::size_t shortestField = 32; ///< one digit in the last column group

// Line 4 for the reader.
constexpr Columns speedCount {60, 4, "number of speeds"};
constexpr Columns modeCount {64, 8, "number of aeroelastic modes"};

// Line 4 for the writer.
constexpr Columns writtenSpeedCount {55, 4, "number of speeds"};
constexpr Columns writtenModeCount {63, 4, "number of aeroelastic modes"};
constexpr std::string_view countPattern = "####";

// A point field.
constexpr Columns modeNumber {0, 3, "mode number"};
constexpr std::string_view modeNumberPattern = "###";
constexpr NumberColumns reducedFrequency {{3, 7, "reduced frequency"}, {3, false}, "##0.000"};
constexpr NumberColumns speed {{10, 9, "speed"}, {3, false}, "####0.000"};
constexpr NumberColumns damping {{19, 12, "damping"}, {5, true}, "0.00000E+00"};
constexpr NumberColumns frequency {{31, 9, "frequency"}, {3, false}, "####0.000"};

/// The width of a mode's tag after the points.
constexpr std::size_t tagWidth = 4;

} // namespace tarsil::evmlayout
