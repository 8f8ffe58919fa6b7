#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarsil {

/// What became of a text that should have been a number.
enum class NumberStatus {
    Ok,
    NotANumber, ///< empty, or anything but one decimal number with blanks around it
    Overflow ///< a number, but outside the range of the wanted type
};

// Text to number, whatever the locale: blanks around, a sign, decimals with a point, an exponent
// with E, e, D or d; nothing else on either side. The value is the nearest one of the wanted type
// (correctly rounded from the decimal text); a number too small for it is 0.

NumberStatus parseSingle(std::string_view text, float& value);
NumberStatus parseDouble(std::string_view text, double& value);

/// Through the number, rounded to nearest with ties to even.
NumberStatus parseInteger16(std::string_view text, std::int16_t& value);

/// The same conversions for callers with one text: a failure is raised as error 13 "Type mismatch"
/// or 6 "Overflow" whose description holds `where` and the text. `source` names who asks.
float toSingle(std::string_view text, std::string_view source, std::string_view where);
double toDouble(std::string_view text, std::string_view source, std::string_view where);

/// Raises the error of a status other than Ok, with `where` and the text in the description.
[[noreturn]] void throwNumberError(NumberStatus status, std::string_view text,
                                   std::string_view source, std::string_view where);

/// A number rounded to a 16-bit integer, ties to even; error 6 "Overflow" outside its range.
std::int16_t roundToInteger16(double value, std::string_view source, std::string_view where);

/// The shortest digits that read back the same value; no exponent up to sixteen of them.
std::string shortestText(float value);
std::string shortestText(double value);

/// The value of the shortest decimal text of a single: what a person reads in the single, as a
/// double (352.1f gives 352.1 and not 352.10000610351562).
double decimalValue(float value);

} // namespace tarsil
