#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil::batch {

// How the command "info" lays out text for people. Control characters, which could change a
// terminal, are shown as question marks.

/// Prints a name and its text on one line, the texts below each other; nothing for an empty text.
/// Further lines of a text ("\n") are written below its first.
void printLine(std::ostream& out, std::string_view name, const std::string& text);

// Widths of columns, in characters.
constexpr std::size_t narrowColumn = 10;
constexpr std::size_t wideColumn = 15;

/// The text with blanks before it, so that it is at least as wide.
std::string rightAligned(const std::string& text, std::size_t width);

/// Prints the cells of one row of a table, each at the right of its column.
void printRow(std::ostream& out, std::size_t width, const std::vector<std::string>& cells);

} // namespace tarsil::batch
