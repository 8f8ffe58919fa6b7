#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Foreign text in quotation marks, fit for a message: cut after sixty bytes, then as at
/// `printableText`.
std::string quotedText(std::string_view text);

} // namespace tarsil
