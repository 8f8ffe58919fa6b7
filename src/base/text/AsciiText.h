#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Whether a character is a space or a tab.
constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// The text without the spaces and tabs at its ends.
constexpr std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Whether a text has nothing but spaces, tabs and line ends.
bool isBlankText(std::string_view text);

/// The small letter of a capital of ASCII; any other character as it is.
constexpr char asciiLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// A text with its capitals of ASCII as small letters. For file names see `withoutCase`.
std::string asciiLower(std::string_view text);

/// Whether two texts are equal but for the case of the letters of ASCII.
bool equalIgnoringAsciiCase(std::string_view a, std::string_view b);

} // namespace tarsil
