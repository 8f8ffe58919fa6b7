#pragma once

#include "rtf/RichText.h"

#include <string_view>

namespace tarsil {

/// What a source stands for.
enum class RtfScope {
    Document, ///< the whole text: its last paragraph ends without a break
    Selection ///< a piece of a text: a final break belongs to it
};

/// Reads Rich Text Format as all writers of it have written it: every native control since 1995 and
/// word processors. Any bytes will do and none is an error: a source that is cut keeps what was
/// whole, and one that does not begin with a brace is plain text. Time and memory are in proportion
/// to the bytes. Where the source names no font or size the `fallback`'s are taken; a plain text
/// looks like it altogether.
RichText readRtf(std::string_view bytes, const TextFormat& fallback,
                 RtfScope scope = RtfScope::Document);

/// Whether a text means to be Rich Text Format: it begins with a brace and the word of the format,
/// after blanks, line ends or a byte order mark. (`readRtf` takes any text that begins with a
/// brace.)
bool looksLikeRtf(std::string_view text);

/// Whether a source in Rich Text Format ends before its outermost group does. Other text never
/// does.
bool isCutRtf(std::string_view text);

} // namespace tarsil
