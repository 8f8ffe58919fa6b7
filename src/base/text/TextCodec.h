// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Whether the bytes are well-formed UTF-8 (no overlong forms, surrogates or values past U+10FFFF).
bool isUtf8(std::string_view bytes);

/// Converts the bytes of an 8-bit text file to UTF-8. Well-formed UTF-8 stays as it is; anything
/// else is read as Windows-1252 (its five unused bytes become the C1 controls of the same value).
std::string decodeText(std::string_view bytes);

/// Converts UTF-8 to the bytes of an 8-bit text file: Windows-1252 when it has every character,
/// otherwise UTF-8.
std::string encodeText(std::string_view utf8);

/// Whether a character is invisible but changes how a terminal shows others: C0, DEL and C1
/// controls, line and paragraph separators, and characters that change the writing direction.
bool isControlCharacter(char32_t character);

/// Makes foreign text fit for one line of a terminal: each control character, line breaks included,
/// becomes a question mark, in UTF-8 and in 8-bit text. All other bytes stay, malformed ones too.
std::string printableText(std::string_view text);

/// Converts between UTF-8 and UTF-16. A malformed byte or unpaired surrogate becomes U+FFFD.
std::u16string utf16FromUtf8(std::string_view utf8);
std::string utf8FromUtf16(std::u16string_view utf16);

} // namespace tarsil
