// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// The fast path for numbers of at most sixteen characters and eight digits, the usual form in
/// result files: [blanks][-]digits[.digits][E±dd]. It processes all characters at once in two
/// machine words, so that the time does not depend on the position of the point or the first digit.
/// Any other form is left to `parseSingle`. The values are the same.
namespace tarsil::shortnumber {

/// Up to sixteen characters, right-aligned: the last is the top byte of `high`, blanks come first.
struct Characters
{
    std::uint64_t low;
    std::uint64_t high;
};

constexpr std::uint64_t everyByte(char c)
{
    return static_cast<unsigned char>(c) * std::uint64_t {0x0101010101010101};
}

constexpr std::uint64_t blanks = everyByte(' ');

template <typename Word>
Word load(const char* p)
{
    Word word;
    std::memcpy(&word, p, sizeof word);
    return word;
}

/// The lowest `bytes` bytes of a word; `bytes` is 0 to 7.
constexpr std::uint64_t lowest(std::uint64_t word, std::size_t bytes)
{
    return word & ((std::uint64_t {1} << (8 * bytes)) - 1);
}

inline Characters characters(const char* p, std::size_t size)
{
    if (size > 8) {
        const std::size_t missing = 16 - size;
        return {(load<std::uint64_t>(p) << (8 * missing)) | lowest(blanks, missing),
                load<std::uint64_t>(p + size - 8)};
    }
    if (size >= 4) { // two overlapping halves
        const std::size_t missing = 8 - size;
        const std::uint64_t first = load<std::uint32_t>(p);
        const std::uint64_t last = load<std::uint32_t>(p + size - 4);
        return {blanks, (first << (8 * missing)) | (last << 32) | lowest(blanks, missing)};
    }
    Characters result {blanks, blanks};
    for (std::size_t i = 0; i < size; ++i)
        result.high = (result.high >> 8) | (std::uint64_t {static_cast<unsigned char>(p[i])} << 56);
    return result;
}

/// Sets the top bit of every byte of `word` that equals `c`.
constexpr std::uint64_t bytesEqual(std::uint64_t word, char c)
{
    constexpr std::uint64_t lowBits = everyByte('\x7F');
    const std::uint64_t different = word ^ everyByte(c);
    return ~(((different & lowBits) + lowBits) | different | lowBits);
}

/// Sets bit 4 of every byte that is not a digit. Of all characters of a number only digits have
/// that bit set.
constexpr std::uint64_t notDigits(std::uint64_t word)
{
    return ~word & everyByte('\x10');
}

/// The value of eight digits given as bytes 0 to 9, the first in the lowest byte.
constexpr std::uint32_t eightDigits(std::uint64_t digits)
{
    constexpr std::uint64_t pairs = 0x000000FF000000FF;
    digits = digits * 10 + (digits >> 8);
    return static_cast<std::uint32_t>(
        ((digits & pairs) * 0x000F424000000064 + ((digits >> 16) & pairs) * 0x0000271000000001)
        >> 32);
}

constexpr int largestPower = 22;
constexpr unsigned largestExponent = 15; ///< seven decimals more give the largest power

/// 10^-22 to 10^22, each the nearest double.
constexpr std::array<double, 2 * largestPower + 1> powersOfTen = {
    1e-22, 1e-21, 1e-20, 1e-19, 1e-18, 1e-17, 1e-16, 1e-15, 1e-14, 1e-13, 1e-12, 1e-11,
    1e-10, 1e-9,  1e-8,  1e-7,  1e-6,  1e-5,  1e-4,  1e-3,  1e-2,  1e-1,  1e0,   1e1,
    1e2,   1e3,   1e4,   1e5,   1e6,   1e7,   1e8,   1e9,   1e10,  1e11,  1e12,  1e13,
    1e14,  1e15,  1e16,  1e17,  1e18,  1e19,  1e20,  1e21,  1e22};

/// Removes an exponent of the form E±dd from the end, if there is one. False for another form.
inline bool takeExponent(Characters& text, int& exponent)
{
    const auto end = static_cast<std::uint32_t>(text.high >> 32);
    constexpr std::uint32_t letter = 0xDE; // E, e, D and d differ in the other bits
    if ((end & letter) != ('D' & letter))
        return true;
    const std::uint32_t sign = ((end >> 8) & 0xFF) - '+'; // 0 or 2
    const std::uint32_t tens = ((end >> 16) & 0xFF) - '0';
    const std::uint32_t units = (end >> 24) - '0';
    const std::uint32_t size = tens * 10 + units;
    if ((sign & ~2U) != 0 || tens > 9 || units > 9 || size > largestExponent)
        return false;
    exponent = static_cast<int>(size) * (1 - static_cast<int>(sign));
    text.high = (text.high << 32) | (text.low >> 32);
    text.low = (text.low << 32) | (blanks >> 32);
    return true;
}

/// Removes the character that is followed by `after` others; `after` is at most seven.
inline void removeCharacter(Characters& text, int after)
{
    const std::uint64_t upToIt = ~std::uint64_t {0} >> (8 * after);
    const std::uint64_t moved = (text.high << 8) | (text.low >> 56);
    text.high ^= (text.high ^ moved) & upToIt;
    text.low = (text.low << 8) | ' ';
}

/// Removes a decimal point followed by at most seven digits, and returns their number.
inline int takePoint(Characters& text)
{
    const std::uint64_t others = notDigits(text.high);
    if (others == 0)
        return 0;
    const int decimals = std::countl_zero(others) / 8;
    if ((text.high << (8 * decimals)) >> 56 != '.')
        return 0;
    removeCharacter(text, decimals);
    return decimals;
}

/// The single nearest to `digits` times a power of ten, computed by one multiplication. False when
/// the result is not certainly the nearest. The product of an exact integer and a rounded power is
/// less than two units in the last place off, so both round to the same single unless the product
/// lies within two units of the midpoint between two singles. It is never outside the range of a
/// single.
inline bool scale(std::uint32_t digits, int exponent, std::uint32_t signBit, float& value)
{
    constexpr std::uint64_t dropped = (std::uint64_t {1} << 29) - 1;
    constexpr std::uint64_t middle = std::uint64_t {1} << 28;
    constexpr std::uint64_t doubt = 2;
    const int power = exponent + largestPower;
    const double product = static_cast<double>(static_cast<std::int32_t>(digits))
        * powersOfTen[static_cast<std::size_t>(power)];
    value =
        std::bit_cast<float>(std::bit_cast<std::uint32_t>(static_cast<float>(product)) | signBit);
    return ((std::bit_cast<std::uint64_t>(product) - middle + doubt) & dropped) > 2 * doubt;
}

/// Reads what remains without exponent and point: [blanks][-]digits. At most eight digits, of which
/// the last `decimals` came after the point.
[[gnu::always_inline]] inline bool readDigits(const Characters& text, int decimals, int exponent,
                                              float& value)
{
    const std::uint64_t others = notDigits(text.high);
    std::uint64_t digits = text.high ^ everyByte('0');
    // The characters before the digits, XOR blanks; the last one in the top byte.
    std::uint64_t before = text.low ^ blanks;
    if (others != 0) {
        const int digitBits = std::countl_zero(others) & ~7;
        // The point must be before or among the digits, not before a sign or a blank.
        if (digitBits == 0 || digitBits < 8 * decimals || before != 0)
            return false;
        digits &= ~(~std::uint64_t {0} >> digitBits);
        before = (text.high ^ blanks) << digitBits;
    }
    // No branch on the sign: in a damping curve it is unpredictable.
    constexpr std::uint64_t minus = std::uint64_t {' ' ^ '-'} << 56;
    const std::uint64_t isNegative = (before >> 59) & 1;
    const std::uint64_t wrongSign = before ^ (minus & (0 - isNegative));
    const std::uint64_t tooLarge = ((digits + everyByte('\x76')) | digits) & everyByte('\x80');
    if ((wrongSign | tooLarge) != 0)
        return false;
    return scale(eightDigits(digits), exponent - decimals,
                 static_cast<std::uint32_t>(isNegative << 31), value);
}

constexpr bool isPossible(std::size_t size)
{
    return std::endian::native == std::endian::little && size <= 16;
}

/// Reads a number of the form described above with at most eight digits. False for any other text;
/// `value` is then undefined.
[[gnu::always_inline]] inline bool read(const char* p, std::size_t size, float& value)
{
    if (!isPossible(size))
        return false;
    Characters text = characters(p, size);
    int exponent = 0;
    if (!takeExponent(text, exponent))
        return false;
    const int decimals = takePoint(text);
    return readDigits(text, decimals, exponent, value);
}

[[gnu::always_inline]] inline bool read(std::string_view text, float& value)
{
    return read(text.data(), text.size(), value);
}

/// The usual form of the numbers of one column.
struct Shape
{
    int decimals = 3; ///< one to seven
    bool hasExponent = false;
};

/// Reads a number of a given shape. Faster than `read` when the shape is known at compile time,
/// because nothing is searched. False for any other shape too.
[[gnu::always_inline]] inline bool readShaped(const char* p, std::size_t size, Shape shape,
                                              float& value)
{
    if (!isPossible(size))
        return false;
    Characters text = characters(p, size);
    int exponent = 0;
    if (shape.hasExponent && !takeExponent(text, exponent))
        return false;
    if (((text.high >> (8 * (7 - shape.decimals))) & 0xFF) != '.')
        return false;
    removeCharacter(text, shape.decimals);
    return readDigits(text, shape.decimals, exponent, value);
}

/// The shape of a number text.
constexpr Shape shapeOf(std::string_view text)
{
    const std::size_t letter = text.find_first_of("EeDd");
    const std::string_view mantissa = text.substr(0, letter);
    const std::size_t point = mantissa.find('.');
    const std::size_t after = point < mantissa.size() ? mantissa.size() - point - 1 : 0;
    const std::size_t decimals = after < 1 ? 1 : after > 7 ? 7 : after;
    return {static_cast<int>(decimals), letter < text.size()};
}

} // namespace tarsil::shortnumber
