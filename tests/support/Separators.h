// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>

namespace tarsil::test {

/// A text with "/" replaced by the separator of the system, as messages show paths.
inline std::string systemSeparators(std::string text)
{
    constexpr auto separator = static_cast<char>(std::filesystem::path::preferred_separator);
    std::replace(text.begin(), text.end(), '/', separator);
    return text;
}

} // namespace tarsil::test
