// SPDX-License-Identifier: Apache-2.0
#include "base/text/AsciiText.h"

#include <algorithm>

namespace tarsil {

bool isBlankText(std::string_view text)
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::string asciiLower(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return asciiLower(c); });
    return lower;
}

bool equalIgnoringAsciiCase(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return asciiLower(x) == asciiLower(y); });
}

} // namespace tarsil
