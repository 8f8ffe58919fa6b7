// SPDX-License-Identifier: Apache-2.0
#include "base/numbers/Numbers.h"
#include "base/numbers/ShortNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

// A million random fields are read bit for bit as by std::from_chars.

namespace tarsil {

namespace {

constexpr int rounds = 200000;

class RandomFields
{
public:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(m_engine); }

    std::string digits(int count)
    {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += static_cast<char>('0' + upTo(9));
        return text;
    }

    std::string sign() { return upTo(1) == 0 ? "" : "-"; }

    /// As in files: 0.123, 273.646, -4.96966E-05.
    std::string fileField()
    {
        std::string plain = sign() + digits(1 + upTo(4)) + "." + digits(upTo(6));
        if (upTo(1) == 0)
            return plain;
        return sign() + digits(1) + "." + digits(5 + upTo(2)) + exponent("E", 2);
    }

    std::string longMantissa()
    {
        const std::string whole = digits(upTo(30));
        return sign() + whole + "." + digits(whole.empty() ? 1 + upTo(40) : upTo(40))
            + (upTo(1) == 0 ? "" : exponent("e", 1 + upTo(1)));
    }

    std::string hugeExponent() { return sign() + digits(1 + upTo(9)) + exponent("E", 1 + upTo(3)); }

    /// Denormal, or around the smallest and the largest normal single.
    std::string edgeOfRange()
    {
        const int power = upTo(1) == 0 ? -36 - upTo(12) : 36 + upTo(3);
        return sign() + digits(1) + "." + digits(upTo(12)) + "E" + std::to_string(power);
    }

    /// Exactly half-way between two singles, or one unit of the last digit away.
    std::string halfWay()
    {
        const auto mantissa =
            (std::uint64_t {1} << 23U) + static_cast<std::uint64_t>(upTo((1 << 23) - 1));
        std::uint64_t twice = 2 * mantissa + 1;
        int halvings = upTo(10);
        // The digits of twice / 2^halvings: twice * 5^halvings with the point shifted by the
        // halvings.
        std::uint64_t decimal = twice;
        for (int i = 0; i < halvings; ++i)
            decimal *= 5;
        decimal += static_cast<std::uint64_t>(upTo(2)) - 1;
        return sign() + std::to_string(decimal) + "E" + std::to_string(-halvings);
    }

private:
    std::string exponent(const char* letter, int count)
    {
        const int kind = upTo(2);
        return letter + std::string(kind == 0 ? "" : kind == 1 ? "+" : "-") + digits(count);
    }

    std::mt19937_64 m_engine {20240917}; // fixed, so that failures are reproducible
};

/// The value of the field by from_chars; a number too small for a single is 0.
float expectedSingle(std::string field, bool& overflows)
{
    const bool negative = field.starts_with('-');
    if (const auto plus = field.find('+'); plus != std::string::npos)
        field.erase(plus, 1);
    float value = 0;
    const auto result = std::from_chars(field.data(), field.data() + field.size(), value);
    overflows = false;
    if (result.ec == std::errc::result_out_of_range) {
        double wide = 0;
        const auto second = std::from_chars(field.data(), field.data() + field.size(), wide);
        // Outside the range of doubles too: the exponent determines which end.
        overflows = second.ec == std::errc() ? std::abs(wide) > 1.0
                                             : field.find_first_of("eE") != std::string::npos
                && field.find('-', 1) == std::string::npos;
        value = negative ? -0.0F : 0.0F;
    }
    return value;
}

void compare(const std::string& field, const std::string& asWritten)
{
    bool overflows = false;
    const float expected = expectedSingle(field, overflows);
    float value = 0;
    const NumberStatus status = parseSingle(asWritten, value);
    ASSERT_EQ(status, overflows ? NumberStatus::Overflow : NumberStatus::Ok) << asWritten;
    if (overflows)
        return;
    ASSERT_EQ(std::bit_cast<std::uint32_t>(value), std::bit_cast<std::uint32_t>(expected))
        << '"' << asWritten << "\" gives " << value << ", not " << expected;
}

template <typename Make>
void compareMany(Make make)
{
    RandomFields random;
    for (int i = 0; i < rounds && !::testing::Test::HasFatalFailure(); ++i) {
        const std::string field = make(random);
        std::string written = field;
        // As in Fortran files: D in the exponent, blanks around.
        if (const auto letter = written.find_first_of("eE");
            letter != std::string::npos && random.upTo(3) == 0)
            written[letter] = random.upTo(1) == 0 ? 'D' : 'd';
        written.insert(0, static_cast<std::size_t>(random.upTo(3)), ' ');
        written.append(static_cast<std::size_t>(random.upTo(1)), ' ');
        compare(field, written);
    }
}

TEST(RandomNumbers, readsFieldsOfFilesAsTheStandardLibrary)
{
    compareMany([](RandomFields& random) { return random.fileField(); });
}

TEST(RandomNumbers, readsLongMantissasAsTheStandardLibrary)
{
    compareMany([](RandomFields& random) { return random.longMantissa(); });
}

TEST(RandomNumbers, readsHugeExponentsAsTheStandardLibrary)
{
    compareMany([](RandomFields& random) { return random.hugeExponent(); });
}

TEST(RandomNumbers, readsTheEdgesOfTheRangeAsTheStandardLibrary)
{
    compareMany([](RandomFields& random) { return random.edgeOfRange(); });
}

TEST(RandomNumbers, readsHalfWayCasesAsTheStandardLibrary)
{
    compareMany([](RandomFields& random) { return random.halfWay(); });
}

/// The form of a number that from_chars accepts; empty for other texts.
std::string plainForm(std::string text)
{
    text.erase(0, text.find_first_not_of(' '));
    const auto letter = text.find_first_of("EeDd");
    const std::string mantissa = text.substr(0, letter);
    const std::string exponent = letter == std::string::npos ? "" : text.substr(letter + 1);
    const auto number = mantissa.find_first_not_of('-');
    const bool bad = number > 1 // also npos
        || mantissa.find_first_not_of("0123456789.", number) != std::string::npos
        || mantissa.find_first_of("0123456789") == std::string::npos
        || std::count(mantissa.begin(), mantissa.end(), '.') > 1
        || (letter != std::string::npos
            && (exponent.size() != 3 || exponent.find_first_of("+-") != 0
                || exponent.find_first_not_of("0123456789", 1) != std::string::npos));
    return bad ? "" : mantissa + (exponent.empty() ? "" : "e" + exponent);
}

std::string anyCharacters(RandomFields& random)
{
    // Likely characters occur several times; others are neighbours of digits and signs in ASCII.
    constexpr std::string_view characters = "    ---...00012345678999EEeDd++:/,*P\xB5";
    std::string text(static_cast<std::size_t>(random.upTo(16)), ' ');
    for (char& c : text)
        c = characters[static_cast<std::size_t>(
            random.upTo(static_cast<int>(characters.size()) - 1))];
    return text;
}

TEST(RandomNumbers, theQuickWayAcceptsNothingThatIsNoNumber)
{
    RandomFields random;
    int taken = 0;
    for (int i = 0; i < 5 * rounds; ++i) {
        std::string text = anyCharacters(random);
        if (random.upTo(1) == 0) // a likely form, often with text after it
            text = std::string(static_cast<std::size_t>(random.upTo(3)), ' ') + random.fileField()
                + text.substr(0, static_cast<std::size_t>(random.upTo(2)));
        float value = 0;
        const shortnumber::Shape shape {1 + random.upTo(6), random.upTo(1) == 0};
        if (!shortnumber::readShaped(text.data(), text.size(), shape, value)
            && !shortnumber::read(text, value))
            continue;
        ++taken;
        bool overflows = false;
        const std::string plain = plainForm(text);
        ASSERT_FALSE(plain.empty()) << '"' << text << '"';
        ASSERT_EQ(std::bit_cast<std::uint32_t>(value),
                  std::bit_cast<std::uint32_t>(expectedSingle(plain, overflows)))
            << '"' << text << '"';
    }
    EXPECT_GT(taken, rounds / 2);
}

TEST(RandomNumbers, everySingleComesBackFromItsShortestText)
{
    std::mt19937 engine(7);
    for (int i = 0; i < rounds; ++i) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(engine()));
        if (value != value || value - value != 0)
            continue; // not a number, or infinite
        float back = 0;
        ASSERT_EQ(parseSingle(shortestText(value), back), NumberStatus::Ok);
        ASSERT_EQ(back, value);
    }
}

} // namespace

} // namespace tarsil
