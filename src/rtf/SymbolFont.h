// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Whether the font is "Symbol". Texts hold its symbols as U+F020 to U+F0FF.
bool isSymbolFace(std::string_view family);

/// Converts the symbols of that font to ordinary characters, which any text font can show: Greek
/// letters for Latin ones, and mathematical signs. Other characters stay.
std::u16string ordinarySigns(std::u16string_view text);

} // namespace tarsil
