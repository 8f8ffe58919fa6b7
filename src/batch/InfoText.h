// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil::batch {

// Text layout of the command "info". Control characters, which could change a terminal, are printed
// as question marks.

/// Prints a name and a text on one line, with texts aligned; nothing for an empty text. Further
/// lines of the text ("\n") are aligned with the first.
void printLine(std::ostream& out, std::string_view name, const std::string& text);

// Widths of columns, in characters.
constexpr std::size_t narrowColumn = 10;
constexpr std::size_t wideColumn = 15;

/// Pads a text with blanks on the left to at least `width`.
std::string rightAligned(const std::string& text, std::size_t width);

/// Prints a row of a table, with right-aligned cells.
void printRow(std::ostream& out, std::size_t width, const std::vector<std::string>& cells);

} // namespace tarsil::batch
