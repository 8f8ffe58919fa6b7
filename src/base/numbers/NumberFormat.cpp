// SPDX-License-Identifier: Apache-2.0
#include "base/numbers/NumberFormat.h"

#include "base/user/RunTimeError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace tarsil {

namespace {

struct Pattern
{
    int integerDigits = 0; ///< "0" before the point
    int fixedDecimals = 0; ///< "0" after the point
    int optionalDecimals = 0; ///< "#" after the point
    bool point = false;
    int exponentDigits = 0; ///< 0: no scientific form
};

/// The digits of a number: value = 0.d1d2d3... * 10^pointPosition.
struct Digits
{
    std::string digits;
    int pointPosition = 0;
    bool negative = false;
};

[[noreturn]] void refuse(std::string_view pattern)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "NumberFormat",
                       "number pattern \"" + std::string(pattern) + "\"");
}

Pattern readPattern(std::string_view text)
{
    Pattern pattern;
    std::string_view mantissa = text;
    if (const auto letter = text.find("E+"); letter != std::string_view::npos) {
        const std::string_view exponent = text.substr(letter + 2);
        if (exponent.empty() || exponent.find_first_not_of('0') != std::string_view::npos)
            refuse(text);
        pattern.exponentDigits = static_cast<int>(exponent.size());
        mantissa = text.substr(0, letter);
    }
    for (const char c : mantissa) {
        if (c == '.' && !pattern.point)
            pattern.point = true;
        else if (c == '0')
            ++(pattern.point ? pattern.fixedDecimals : pattern.integerDigits);
        else if (c == '#')
            pattern.optionalDecimals += pattern.point ? 1 : 0;
        else
            refuse(text);
    }
    return pattern;
}

template <typename Number>
Digits decompose(Number value)
{
    Digits result;
    result.negative = value < 0;
    std::array<char, 48> buffer {};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                       std::fabs(value), std::chars_format::scientific);
    const std::string_view text(buffer.data(),
                                static_cast<std::size_t>(written.ptr - buffer.data()));
    const auto letter = text.find('e');
    for (const char c : text.substr(0, letter)) {
        if (c != '.')
            result.digits += c;
    }
    const char* exponent = text.data() + letter + 1;
    std::from_chars(*exponent == '+' ? exponent + 1 : exponent, written.ptr, result.pointPosition);
    ++result.pointPosition;
    if (value == 0)
        result.digits.clear();
    return result;
}

/// Keeps the first `count` digits (none when negative), rounding half away from zero.
void keepDigits(Digits& number, int count)
{
    if (count >= static_cast<int>(number.digits.size()))
        return;
    const bool up = count >= 0 && number.digits[static_cast<std::size_t>(count)] >= '5';
    number.digits.resize(static_cast<std::size_t>(std::max(count, 0)));
    if (!up)
        return;
    auto digit = number.digits.rbegin();
    while (digit != number.digits.rend() && *digit == '9')
        *digit++ = '0';
    if (digit != number.digits.rend()) {
        ++*digit;
    } else {
        number.digits.insert(number.digits.begin(), '1');
        ++number.pointPosition;
    }
}

/// The digit at a decimal position: 1 is the first after the point, 0 the units.
char digitAt(const Digits& number, int position)
{
    const int index = number.pointPosition + position - 1;
    const bool inside = index >= 0 && index < static_cast<int>(number.digits.size());
    return inside ? number.digits[static_cast<std::size_t>(index)] : '0';
}

bool isZero(const Digits& number)
{
    return number.digits.find_first_not_of('0') == std::string::npos;
}

std::string plainText(const Digits& number, const Pattern& pattern)
{
    std::string text = number.negative && !isZero(number) ? "-" : "";
    const int whole = isZero(number) ? 0 : std::max(number.pointPosition, 0);
    for (int position = 1 - std::max(whole, pattern.integerDigits); position <= 0; ++position)
        text += digitAt(number, position);
    if (pattern.point)
        text += '.';
    int decimals = pattern.fixedDecimals + pattern.optionalDecimals;
    while (decimals > pattern.fixedDecimals && digitAt(number, decimals) == '0')
        --decimals;
    for (int position = 1; position <= decimals; ++position)
        text += digitAt(number, position);
    return text;
}

std::string exponentText(int exponent, int digits)
{
    const std::string number = std::to_string(std::abs(exponent));
    std::string text = exponent < 0 ? "E-" : "E+";
    text.append(static_cast<std::size_t>(std::max(digits - static_cast<int>(number.size()), 0)),
                '0');
    return text + number;
}

template <typename Number>
std::string format(Number value, std::string_view text)
{
    if (!std::isfinite(value))
        throw RunTimeError(ErrorNumber::Overflow, "NumberFormat",
                           "a value beyond the range of numbers in the pattern \""
                               + std::string(text) + "\"");
    const Pattern pattern = readPattern(text);
    Digits number = decompose(value);
    const int decimals = pattern.fixedDecimals + pattern.optionalDecimals;
    if (pattern.exponentDigits == 0) {
        keepDigits(number, number.pointPosition + decimals);
        return plainText(number, pattern);
    }
    const int whole = std::max(pattern.integerDigits, 1);
    keepDigits(number, whole + decimals);
    const int exponent = isZero(number) ? 0 : number.pointPosition - whole;
    number.pointPosition -= exponent;
    return plainText(number, pattern) + exponentText(exponent, pattern.exponentDigits);
}

} // namespace

std::string formatNumber(float value, std::string_view pattern)
{
    return format(value, pattern);
}

std::string formatNumber(double value, std::string_view pattern)
{
    return format(value, pattern);
}

} // namespace tarsil
