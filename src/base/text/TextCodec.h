#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Whether the bytes are well-formed UTF-8 (no overlong forms, surrogates or values past U+10FFFF).
bool isUtf8(std::string_view bytes);

/// Bytes of an 8-bit text file as UTF-8: taken as they are when they are well-formed UTF-8, read as
/// Windows-1252 otherwise (its five unused bytes become the C1 controls of the same value).
std::string decodeText(std::string_view bytes);

/// UTF-8 text as bytes of an 8-bit text file: Windows-1252 when every character has a place there,
/// otherwise the UTF-8 itself.
std::string encodeText(std::string_view utf8);

/// Whether a character has no picture but changes how a terminal shows the others: the controls C0,
/// DEL and C1, line and paragraph separator, and the marks that turn the direction of writing.
bool isControlCharacter(char32_t character);

/// Foreign text fit for one line of a terminal: with a question mark for each control character,
/// line breaks included, in UTF-8 as in an 8-bit text. All other bytes stay, malformed ones too.
std::string printableText(std::string_view text);

/// UTF-8 as UTF-16 and back. A malformed byte and an unpaired surrogate become U+FFFD.
std::u16string utf16FromUtf8(std::string_view utf8);
std::string utf8FromUtf16(std::u16string_view utf16);

} // namespace tarsil
