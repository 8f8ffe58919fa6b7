// SPDX-License-Identifier: Apache-2.0
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

/// Whether a text consists of spaces, tabs and line ends only.
bool isBlankText(std::string_view text);

/// Converts an ASCII capital to a small letter; returns any other character unchanged.
constexpr char asciiLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Converts ASCII capitals to small letters. For file names use `withoutCase`.
std::string asciiLower(std::string_view text);

/// Whether two texts are equal when the case of ASCII letters is ignored.
bool equalIgnoringAsciiCase(std::string_view a, std::string_view b);

} // namespace tarsil
