// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Whether a character may occur in a font name: a letter, digit or combining mark of any script, a
/// blank, or one of - _ . , ' & ( ) + @ # / !. Quotation marks, brackets, other mark-up characters
/// and invisible characters may not.
bool isPartOfFontName(char16_t unit);

/// Whether a text from a file or the clipboard can be a font name: not empty, and only characters
/// that may occur in one.
bool isFontName(std::u16string_view name);

} // namespace tarsil
