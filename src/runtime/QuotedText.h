#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Foreign text in quotation marks, fit for a message: cut after sixty bytes, and with a question
/// mark for each control character, which could change a terminal.
std::string quotedText(std::string_view text);

} // namespace tarsil
