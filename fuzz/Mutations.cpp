// SPDX-License-Identifier: Apache-2.0
#include "Mutations.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tarsil::fuzz {

namespace {

constexpr std::size_t mostChanges = 8;
constexpr std::size_t mostBytes = 1 << 16; ///< longer inputs are slow and find nothing more
constexpr std::size_t mostOfPart = 200;

constexpr std::array<std::string_view, 14> awkwardTexts = {
    "0",     "-1",  "1e308", "-1e-308", "9999999999999999999", "32768", "-32769", "nan", "inf", "",
    "*****", "1,5", "\r\n",  "\"{}\\"};

bool isOfNumber(char character)
{
    return (character >= '0' && character <= '9') || character == '.' || character == '-';
}

} // namespace

/// Returns 0 for a count of 0.
std::size_t Mutations::below(std::size_t count)
{
    return count < 2 ? 0 : std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
}

Mutations::Part Mutations::partOf(const std::string& text)
{
    const std::size_t start = below(text.size() + 1);
    return {start, below(std::min(text.size() - start, mostOfPart) + 1)};
}

std::string Mutations::next()
{
    std::string text = anySeed();
    for (std::size_t left = 1 + below(mostChanges); left > 0; --left)
        change(text);
    text.resize(std::min(text.size(), mostBytes));
    return text;
}

void Mutations::change(std::string& text)
{
    const Part part = partOf(text);
    switch (below(7)) {
    case 0:
        return changeByte(text);
    case 1:
        text.erase(part.start, part.length);
        break;
    case 2:
        text.insert(below(text.size() + 1), text.substr(part.start, part.length));
        break;
    case 3: {
        const std::string& other = anySeed();
        const Part taken = partOf(other);
        text.replace(part.start, part.length, other, taken.start, taken.length);
        break;
    }
    case 4:
        text.resize(part.start); // like a truncated file
        break;
    case 5:
        text.insert(part.start, awkwardTexts[below(awkwardTexts.size())]);
        break;
    default:
        replaceNumber(text);
    }
}

void Mutations::changeByte(std::string& text)
{
    if (text.empty())
        return;
    char& byte = text[below(text.size())];
    const bool isBit = below(2) == 0;
    byte = isBit ? static_cast<char>(byte ^ (1 << below(8))) : static_cast<char>(below(256));
}

void Mutations::replaceNumber(std::string& text)
{
    const auto from = text.begin() + static_cast<std::ptrdiff_t>(below(text.size() + 1));
    const auto start = std::find_if(from, text.end(), isOfNumber);
    const auto end = std::find_if_not(start, text.end(), isOfNumber);
    text.replace(start, end, awkwardTexts[below(awkwardTexts.size())]);
}

} // namespace tarsil::fuzz
