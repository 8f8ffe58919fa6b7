// SPDX-License-Identifier: Apache-2.0
#include "base/numbers/Numbers.h"

#include "base/numbers/ShortNumber.h"
#include "base/text/AsciiText.h"
#include "base/text/QuotedText.h"
#include "base/user/RunTimeError.h"

#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace tarsil {

namespace {

constexpr std::array<double, 23> powersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::int64_t exactPowers = 22;
constexpr std::int64_t exponentLimit = 99999;
constexpr std::uint64_t exactMantissa = std::uint64_t {1} << 53;

/// A scanned number: sign, digits as an integer, and the power of ten that scales it.
struct Decimal
{
    std::uint64_t mantissa = 0;
    std::int64_t exponent = 0;
    bool negative = false;
    bool exact = true; ///< the mantissa holds all digits
};

unsigned digitOf(char c)
{
    return static_cast<unsigned>(static_cast<unsigned char>(c)) - unsigned {'0'};
}

/// Reads an exponent from `p` to `end`; false when the text is none.
bool scanExponent(const char* p, const char* end, Decimal& number)
{
    bool negative = false;
    if (p != end && (*p == '+' || *p == '-'))
        negative = *p++ == '-';
    if (p == end)
        return false;
    std::int64_t exponent = 0;
    for (; p != end; ++p) {
        const unsigned digit = digitOf(*p);
        if (digit > 9)
            return false;
        if (exponent < exponentLimit)
            exponent = exponent * 10 + digit;
    }
    number.exponent += negative ? -exponent : exponent;
    return true;
}

/// Scans a text without surrounding blanks; false when it is not a number.
bool scanDecimal(const char* p, const char* end, Decimal& number)
{
    if (p != end && (*p == '+' || *p == '-'))
        number.negative = *p++ == '-';
    const char* const digits = p;
    std::uint64_t mantissa = 0;
    unsigned digit = 0;
    while (p != end && (digit = digitOf(*p)) <= 9) {
        mantissa = mantissa * 10 + digit;
        ++p;
    }
    auto digitCount = p - digits;
    if (p != end && *p == '.') {
        const char* const decimals = ++p;
        while (p != end && (digit = digitOf(*p)) <= 9) {
            mantissa = mantissa * 10 + digit;
            ++p;
        }
        const auto decimalCount = p - decimals;
        digitCount += decimalCount;
        number.exponent = -decimalCount;
    }
    if (digitCount == 0)
        return false;
    number.mantissa = mantissa;
    number.exact = digitCount <= 19;
    if (p == end)
        return true;
    const char letter = static_cast<char>(*p | 0x20);
    return (letter == 'e' || letter == 'd') && scanExponent(p + 1, end, number);
}

/// The nearest double of a number whose digits and power of ten are both exact doubles.
bool exactDouble(const Decimal& number, double& value)
{
    if (!number.exact || number.mantissa > exactMantissa || number.exponent < -exactPowers
        || number.exponent > exactPowers)
        return false;
    value = static_cast<double>(number.mantissa);
    if (number.exponent < 0)
        value /= powersOfTen[static_cast<std::size_t>(-number.exponent)];
    else
        value *= powersOfTen[static_cast<std::size_t>(number.exponent)];
    return true;
}

/// Whether rounding this double to a single gives the single nearest to the decimal text. False
/// when the double lies exactly between two singles or outside their normal range.
bool roundsOnce(double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    constexpr std::uint64_t dropped = (std::uint64_t {1} << 29) - 1;
    constexpr std::uint64_t halfWay = std::uint64_t {1} << 28;
    return (bits & dropped) != halfWay && (value == 0.0 || (value > 2e-38 && value < 3e38));
}

/// Whether a number outside the range of a type is too large (otherwise it is too small).
bool isLarge(std::string_view text, const Decimal& scanned)
{
    std::int64_t digits = 0;
    for (const char c : text.substr(0, text.find('e'))) {
        if (c != '.' && (c != '0' || digits > 0))
            ++digits;
    }
    return digits + scanned.exponent > 0;
}

/// The slow path, for any number of digits and any exponent: the library's conversion.
template <typename Number>
NumberStatus convertByLibrary(std::string_view text, const Decimal& scanned, Number& value)
{
    std::string copy(text.front() == '+' || text.front() == '-' ? text.substr(1) : text);
    if (const auto letter = copy.find_first_of("eEdD"); letter != std::string::npos) {
        copy[letter] = 'e';
        if (copy[letter + 1] == '+')
            copy.erase(letter + 1, 1);
    }
    Number magnitude = 0;
    const auto result = std::from_chars(copy.data(), copy.data() + copy.size(), magnitude);
    if (result.ec == std::errc::result_out_of_range) {
        if (isLarge(copy, scanned))
            return NumberStatus::Overflow;
        magnitude = 0;
    }
    value = scanned.negative ? -magnitude : magnitude;
    return NumberStatus::Ok;
}

/// Whether `digits` digits are written without an exponent when the decimal point comes after
/// `point` of them (negative: after that many leading zeros). True up to sixteen digits with the
/// zeros, and wherever an exponent would save few characters or none.
bool isPlain(int digits, int point)
{
    constexpr int most = 16;
    constexpr int fewZeros = 4;
    return point > 0 ? point <= most : -point <= fewZeros || 1 - point + digits <= most;
}

template <typename Number>
[[nodiscard]] std::string shortest(Number value)
{
    if (value == 0)
        return "0";
    std::array<char, 64> buffer {};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                       std::chars_format::scientific);
    std::string text(buffer.data(), written.ptr);
    const std::size_t letter = text.find('e');
    if (letter == std::string::npos) // not finite
        return text;
    const std::string sign = text.front() == '-' ? "-" : "";
    std::string digits = text.substr(sign.size(), letter - sign.size());
    std::erase(digits, '.');
    int point = 0;
    const std::size_t exponent = letter + (text[letter + 1] == '+' ? 2 : 1);
    std::from_chars(text.data() + exponent, text.data() + text.size(), point);
    ++point;
    const int count = static_cast<int>(digits.size());
    if (!isPlain(count, point))
        return text;
    if (point <= 0)
        return sign + "0." + std::string(static_cast<std::size_t>(-point), '0') + digits;
    if (point >= count)
        return sign + digits + std::string(static_cast<std::size_t>(point - count), '0');
    return sign + digits.insert(static_cast<std::size_t>(point), 1, '.');
}

/// The number in a text; raises the error of a status other than Ok.
template <typename Number>
Number converted(NumberStatus (*parse)(std::string_view, Number&), std::string_view text,
                 std::string_view source, std::string_view where)
{
    Number value = 0;
    const NumberStatus status = parse(text, value);
    if (status != NumberStatus::Ok)
        throwNumberError(status, text, source, where);
    return value;
}

} // namespace

NumberStatus parseSingle(std::string_view text, float& value)
{
    if (shortnumber::read(text, value))
        return NumberStatus::Ok;
    const std::string_view bare = trimmed(text);
    Decimal number;
    if (!scanDecimal(bare.data(), bare.data() + bare.size(), number))
        return NumberStatus::NotANumber;
    double nearest = 0;
    if (exactDouble(number, nearest) && roundsOnce(nearest)) {
        const auto single = static_cast<float>(nearest);
        value = number.negative ? -single : single;
        return NumberStatus::Ok;
    }
    return convertByLibrary(bare, number, value);
}

NumberStatus parseDouble(std::string_view text, double& value)
{
    const std::string_view bare = trimmed(text);
    Decimal number;
    if (!scanDecimal(bare.data(), bare.data() + bare.size(), number))
        return NumberStatus::NotANumber;
    double nearest = 0;
    if (exactDouble(number, nearest)) {
        value = number.negative ? -nearest : nearest;
        return NumberStatus::Ok;
    }
    return convertByLibrary(bare, number, value);
}

NumberStatus parseInteger16(std::string_view text, std::int16_t& value)
{
    double number = 0;
    const NumberStatus status = parseDouble(text, number);
    if (status != NumberStatus::Ok)
        return status;
    const double rounded = std::nearbyint(number);
    if (rounded < std::numeric_limits<std::int16_t>::min()
        || rounded > std::numeric_limits<std::int16_t>::max())
        return NumberStatus::Overflow;
    value = static_cast<std::int16_t>(rounded);
    return NumberStatus::Ok;
}

void throwNumberError(NumberStatus status, std::string_view text, std::string_view source,
                      std::string_view where)
{
    std::string details(where);
    details.append(where.empty() ? "" : ": ").append(quotedText(text));
    const ErrorNumber number =
        status == NumberStatus::Overflow ? ErrorNumber::Overflow : ErrorNumber::TypeMismatch;
    throw RunTimeError(number, std::string(source), details);
}

float toSingle(std::string_view text, std::string_view source, std::string_view where)
{
    return converted(parseSingle, text, source, where);
}

double toDouble(std::string_view text, std::string_view source, std::string_view where)
{
    return converted(parseDouble, text, source, where);
}

std::int16_t toInteger16(std::string_view text, std::string_view source, std::string_view where)
{
    return converted(parseInteger16, text, source, where);
}

std::int16_t roundToInteger16(double value, std::string_view source, std::string_view where)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<std::int16_t>::min()
          && rounded <= std::numeric_limits<std::int16_t>::max()))
        throwNumberError(NumberStatus::Overflow, shortestText(value), source, where);
    return static_cast<std::int16_t>(rounded);
}

std::string shortestText(float value)
{
    return shortest(value);
}

std::string shortestText(double value)
{
    return shortest(value);
}

double decimalValue(float value)
{
    double decimal = 0;
    const std::string text = shortestText(value);
    std::from_chars(text.data(), text.data() + text.size(), decimal);
    return decimal;
}

} // namespace tarsil
