#pragma once

#include "solver/SummaryTable.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tarsil::solver {

/// What a line between the headings of a table and its end is.
enum class RowKind {
    Row, ///< numbers, all usable
    Blank,
    Unusable, ///< numbers and stars, without a speed, damping or frequency
    SystemNote, ///< "UNSTABL-SYSTEM" or "STABLE-SYSTEM-" in the place of numbers
    NoRow ///< anything else: the table has ended
};

constexpr std::size_t numbersOfRow = 7;
constexpr std::size_t numbersOfRowWithDensity = 9;

/// A number as solvers print it: decimal text, or with the E of a three-digit exponent left out
/// ("1.4247944-120"). False for anything else.
bool parsePrintedNumber(std::string_view text, double& value);

/// Reads a line as a row of `count` blank-separated numbers after a blank column 1. `reason` says
/// what is wrong with a line that is `Unusable` or `NoRow`.
RowKind parseRow(std::string_view line, std::size_t count, SummaryRow& row, std::string& reason);

} // namespace tarsil::solver
