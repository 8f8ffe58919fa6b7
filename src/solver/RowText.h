// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "solver/SummaryTable.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tarsil::solver {

/// The kinds of lines between the headings of a table and its end.
enum class RowKind {
    Row, ///< numbers, all usable
    Blank,
    Unusable, ///< numbers and stars; speed, damping or frequency is missing
    SystemNote, ///< "UNSTABL-SYSTEM" or "STABLE-SYSTEM-" instead of numbers
    NoRow ///< anything else: the table has ended
};

constexpr std::size_t numbersOfRow = 7;
constexpr std::size_t numbersOfRowWithDensity = 9;

/// Parses a number as solvers print it: decimal text, also without the E of a three-digit exponent
/// ("1.4247944-120"). False for anything else.
bool parsePrintedNumber(std::string_view text, double& value);

/// Parses a line as a row of `count` numbers separated by blanks after a blank column 1. `reason`
/// is the fault of a line that is `Unusable` or `NoRow`.
RowKind parseRow(std::string_view line, std::size_t count, SummaryRow& row, std::string& reason);

} // namespace tarsil::solver
