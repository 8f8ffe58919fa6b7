#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// A number written by a pattern, with a decimal point whatever the locale. In the pattern "0" is a
/// digit that always stands, "#" one that stands only where it is needed, "." the decimal point,
/// and "E+00" after the digits asks for scientific form with a signed exponent of at least two
/// digits: "0.00#", "##0.000", "0.00000E+00". A value exactly half-way between two texts, judged by
/// the shortest decimal text of the value, is rounded away from zero; a value that rounds to zero
/// has no sign; "####" of 0 is empty. Error 5 for a pattern with anything else in it.
std::string formatNumber(float value, std::string_view pattern);
std::string formatNumber(double value, std::string_view pattern);

} // namespace tarsil
