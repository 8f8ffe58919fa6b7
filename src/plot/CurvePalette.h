// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace tarsil {

struct Series;

/// How new curves are told apart.
enum class CurvePalette {
    Standard, ///< by the seven colours of `BaseColors`
    ColorBlind, ///< by seven colours that people who see no red or green can tell apart
    LineStyles ///< by the style of their lines, which are black, for print without colours
};

/// The names of the palettes, in the order of their values: on the command line and in the options
/// file.
inline constexpr std::array<std::string_view, 3> paletteNames = {"standard", "colour-blind",
                                                                 "line-styles"};

constexpr std::string_view nameOf(CurvePalette palette)
{
    return paletteNames[static_cast<std::size_t>(palette)];
}

/// The palette of a name; empty for an unknown name.
std::optional<CurvePalette> paletteNamed(std::string_view name);

/// Gives a series the look of the row with this index, counted from 0: its colour, and with
/// `LineStyles` the style of its line. Colours and styles are used in order and then from the start
/// again. A series without a line stays without; everything else stays too.
void applyPalette(Series& series, CurvePalette palette, std::size_t row);

} // namespace tarsil
