#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Whether a character may be part of a font's name: a letter, digit or mark of any script, a
/// blank, or one of the signs that names hold (- _ . , ' & ( ) + @ # / !). Quotation marks,
/// brackets, and what else other formats take for mark-up are in no name, neither are characters
/// that nobody sees.
bool isPartOfFontName(char16_t unit);

/// Whether a text from a file or the clipboard can be the name of a font: not empty, and every
/// character may be part of one.
bool isFontName(std::u16string_view name);

} // namespace tarsil
