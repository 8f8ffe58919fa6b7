#pragma once

#include "rtf/RichText.h"

#include <string>

namespace tarsil {

/// How much a source says that a reader can do without.
enum class RtfForm {
    Full, ///< what a native control writes
    Short ///< 14 bytes less, and 5 less for each font
};

/// A text as Rich Text Format: ASCII, compact, lines ended by CR LF. Sizes are rounded to half
/// points, colours lose all but red, green and blue, and control characters are left out. Every
/// line ends as a paragraph, the last one too, so that writing and reading add no line. What the
/// text's `last` says is written where it is seen: in an empty text and in an empty last line.
std::string writeRtf(const RichText& text, RtfForm form = RtfForm::Full);

/// The source of a text that a workspace is to keep: the full form where its stored value keeps the
/// limit, else the short one, which may exceed it too.
std::string rtfToStore(const RichText& text);

} // namespace tarsil
