// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/numbers/Numbers.h"

#include <string>
#include <string_view>

namespace tarsil {

class TextStream;

/// The fault of a number text with a status other than Ok: "is blank", "is not a number", ...
std::string numberComplaint(NumberStatus status, std::string_view text);

/// `quotedText` without the blanks around the text.
std::string quotedTrimmed(std::string_view text);

/// Whether the stream, which contains the whole text, ends with this line and without a line end.
/// `line` is the line last read.
bool isCutOff(const TextStream& stream, std::string_view line);

} // namespace tarsil
