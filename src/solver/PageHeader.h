// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "solver/SummaryTable.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarsil::solver {

/// The title of a flutter summary, with two blanks.
constexpr std::string_view summaryTitle = "FLUTTER  SUMMARY";

/// The number of lines above a title that belong to its page header.
constexpr std::size_t linesAboveTitle = 5;

/// The last lines before a title, oldest first; empty if the file has fewer.
using LinesAbove = std::array<std::string_view, linesAboveTitle>;

/// Whether a line ends in the title.
bool isSummaryTitle(std::string_view line);

/// Fills subcase, banner, title, subtitle and label of a table from the lines above its title.
void readPageHeader(const LinesAbove& lines, SummaryTable& table);

/// Parses the line "POINT = 1 MACH NUMBER = ... METHOD = PK" below a title: POINT and method, and
/// Mach number, sigma value and density ratio if printed. False, with nothing changed, for a line
/// without a POINT number and a method.
bool readPointLine(std::string_view line, SummaryTable& table);

} // namespace tarsil::solver
