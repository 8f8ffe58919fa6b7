// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfTokens.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tarsil {

namespace {

using namespace std::string_view_literals;

/// The bytes that end plain text. NUL is a blank and a token of its own; line ends are ignored.
constexpr std::string_view special = "{}\\\r\n\0"sv;

/// More digits do not change the saturated value.
constexpr std::size_t mostDigits = 10;

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::optional<int> hexDigit(char c)
{
    if (isDigit(c))
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return std::nullopt;
}

int numberOf(std::string_view digits, bool negative)
{
    std::int64_t value = 0;
    for (const char digit : digits.substr(0, mostDigits))
        value = 10 * value + (digit - '0');
    const std::int64_t largest = std::numeric_limits<int>::max();
    const std::int64_t clamped = digits.size() > mostDigits ? largest : std::min(value, largest);
    return static_cast<int>(negative ? -clamped : clamped);
}

} // namespace

RtfToken RtfTokens::next()
{
    while (!isEnd(m_position) && (m_source[m_position] == '\r' || m_source[m_position] == '\n'))
        ++m_position;
    if (isEnd(m_position))
        return {};
    switch (m_source[m_position]) {
    case '{':
        return take(RtfTokenKind::GroupStart, 1);
    case '}':
        return take(RtfTokenKind::GroupEnd, 1);
    case '\\':
        return escape();
    default:
        return plainText();
    }
}

void RtfTokens::skip(std::size_t count)
{
    m_position += std::min(count, m_source.size() - m_position);
}

RtfToken RtfTokens::take(RtfTokenKind kind, std::size_t length)
{
    m_position += length;
    return {.kind = kind};
}

RtfToken RtfTokens::plainText()
{
    if (m_source[m_position] == '\0') {
        ++m_position;
        return {.kind = RtfTokenKind::Text, .text = " "};
    }
    const std::size_t start = m_position;
    m_position = std::min(m_source.find_first_of(special, start), m_source.size());
    return {.kind = RtfTokenKind::Text, .text = m_source.substr(start, m_position - start)};
}

RtfToken RtfTokens::escape()
{
    if (isEnd(m_position + 1))
        return cutAtTheEnd();
    const char c = m_source[m_position + 1];
    if (isLetter(c))
        return word();
    return c == '\'' ? codedByte() : symbol();
}

RtfToken RtfTokens::word()
{
    const std::size_t start = m_position + 1;
    const std::size_t nameEnd = endOfLetters(start);
    // A minus sign that is not followed by a digit is text.
    const bool negative =
        !isEnd(nameEnd + 1) && m_source[nameEnd] == '-' && isDigit(m_source[nameEnd + 1]);
    const std::size_t firstDigit = negative ? nameEnd + 1 : nameEnd;
    const std::size_t end = endOfDigits(firstDigit);
    // At the end of a truncated source the word may be incomplete.
    if (isEnd(end) || (isEnd(end + 1) && end == nameEnd && m_source[end] == '-'))
        return cutAtTheEnd();
    RtfToken token {.kind = RtfTokenKind::Word, .text = m_source.substr(start, nameEnd - start)};
    if (end > firstDigit)
        token.number = numberOf(m_source.substr(firstDigit, end - firstDigit), negative);
    m_position = m_source[end] == ' ' ? end + 1 : end;
    return token;
}

RtfToken RtfTokens::codedByte()
{
    const std::size_t first = m_position + 2;
    if (isEnd(first))
        return cutAtTheEnd();
    const std::optional<int> high = hexDigit(m_source[first]);
    if (!high)
        return symbol();
    if (isEnd(first + 1))
        return cutAtTheEnd();
    const std::optional<int> low = hexDigit(m_source[first + 1]);
    if (!low)
        return symbol();
    m_position = first + 2;
    return {.kind = RtfTokenKind::CodedByte, .byte = static_cast<char>(16 * *high + *low)};
}

RtfToken RtfTokens::symbol()
{
    const char byte = m_source[m_position + 1];
    m_position += 2;
    return {.kind = RtfTokenKind::Symbol, .byte = byte};
}

RtfToken RtfTokens::cutAtTheEnd()
{
    m_position = m_source.size();
    return {};
}

std::size_t RtfTokens::endOfLetters(std::size_t position) const
{
    while (!isEnd(position) && isLetter(m_source[position]))
        ++position;
    return position;
}

std::size_t RtfTokens::endOfDigits(std::size_t position) const
{
    while (!isEnd(position) && isDigit(m_source[position]))
        ++position;
    return position;
}

} // namespace tarsil
