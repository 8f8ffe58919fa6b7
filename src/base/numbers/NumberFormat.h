// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Formats a number by a pattern, with a decimal point in every locale. In the pattern "0" is a
/// digit that is always written, "#" a digit that is written only when needed, "." the decimal
/// point; "E+00" after the digits requests scientific form with a signed exponent of at least two
/// digits. Examples: "0.00#", "##0.000", "0.00000E+00". Rounds to nearest; a tie in the shortest
/// decimal text of the value rounds away from zero. A value that rounds to zero has no sign; "####"
/// of 0 is empty. Error 5 for any other pattern.
std::string formatNumber(float value, std::string_view pattern);
std::string formatNumber(double value, std::string_view pattern);

} // namespace tarsil
