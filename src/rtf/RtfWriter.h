// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "rtf/RichText.h"

#include <string>

namespace tarsil {

/// How much of the optional content is written.
enum class RtfForm {
    Full, ///< as a native text control writes it
    Short ///< 14 bytes shorter, plus 5 for each font
};

/// Writes a text as Rich Text Format in ASCII, with lines ended by CR LF. Sizes are rounded to half
/// points, colours reduced to red, green and blue, control characters dropped. Every line ends as a
/// paragraph, also the last, so that writing and reading add no line. `text.last` is written only
/// where it is visible: in an empty text or an empty last line.
std::string writeRtf(const RichText& text, RtfForm form = RtfForm::Full);

/// The source of a text for a workspace: the full form if its stored value fits the limit,
/// otherwise the short form, which may exceed the limit too.
std::string rtfToStore(const RichText& text);

} // namespace tarsil
