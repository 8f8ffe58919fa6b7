// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "rtf/RichText.h"

#include <string_view>

namespace tarsil {

/// What a source contains.
enum class RtfScope {
    Document, ///< a whole text: the last paragraph ends without a line break
    Selection ///< a part of a text: a final line break belongs to it
};

/// Reads Rich Text Format as written by text controls since 1995 and by word processors. Never
/// fails: a truncated source gives the part before the cut, and one that does not begin with a
/// brace is plain text. Time and memory are linear in the number of bytes. `fallback` supplies
/// fonts and sizes that the source does not name, and the whole look of a plain text.
RichText readRtf(std::string_view bytes, const TextFormat& fallback,
                 RtfScope scope = RtfScope::Document);

/// Whether a text is meant as Rich Text Format: it begins with a brace and the format's word, after
/// blanks, line ends or a byte order mark. `readRtf` is less strict: it parses any text that begins
/// with a brace.
bool looksLikeRtf(std::string_view text);

/// Whether a Rich Text Format source ends before its outermost group is closed. False for other
/// text.
bool isCutRtf(std::string_view text);

} // namespace tarsil
