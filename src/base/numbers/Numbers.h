// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarsil {

/// The result of converting a text to a number.
enum class NumberStatus {
    Ok,
    NotANumber, ///< empty, or not exactly one decimal number with optional blanks around it
    Overflow ///< a number outside the range of the type
};

// Text to number, independent of the locale. Accepted: blanks around, a sign, decimals after a
// point, an exponent with E, e, D or d. The result is the nearest value of the type (correctly
// rounded from the decimal text); a number too small for it becomes 0.

NumberStatus parseSingle(std::string_view text, float& value);
NumberStatus parseDouble(std::string_view text, double& value);

/// Reads a decimal number and rounds it to nearest, ties to even.
NumberStatus parseInteger16(std::string_view text, std::int16_t& value);

/// The same conversions with exceptions: error 13 "Type mismatch" or 6 "Overflow". The description
/// contains `where` and the text. `source` is the source of the error.
float toSingle(std::string_view text, std::string_view source, std::string_view where);
double toDouble(std::string_view text, std::string_view source, std::string_view where);
std::int16_t toInteger16(std::string_view text, std::string_view source, std::string_view where);

/// Raises the error of a status other than Ok. The description contains `where` and the text.
[[noreturn]] void throwNumberError(NumberStatus status, std::string_view text,
                                   std::string_view source, std::string_view where);

/// A number rounded to a 16-bit integer, ties to even; error 6 "Overflow" outside its range.
std::int16_t roundToInteger16(double value, std::string_view source, std::string_view where);

/// The shortest digits that read back as the same value. No exponent up to sixteen digits.
std::string shortestText(float value);
std::string shortestText(double value);

/// The value of the shortest decimal text of a single, as a double: 352.1f gives 352.1, not
/// 352.10000610351562.
double decimalValue(float value);

} // namespace tarsil
