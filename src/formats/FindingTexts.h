#pragma once

#include "base/numbers/Numbers.h"

#include <string>
#include <string_view>

namespace tarsil {

class TextStream;

/// What is wrong with a number text whose status is not Ok: "is blank", "is not a number", ...
std::string numberComplaint(NumberStatus status, std::string_view text);

/// `quotedText` without the blanks around the text.
std::string quotedTrimmed(std::string_view text);

/// Whether the stream, which holds the whole text, has ended with this line without an end of line
/// after it. `line` is the line last read.
bool isCutOff(const TextStream& stream, std::string_view line);

} // namespace tarsil
