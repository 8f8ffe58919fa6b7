#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// A UTF-8 text in small letters, for comparing file names without case: letters of the Latin,
/// Greek and Cyrillic alphabets that have one small letter. The length in characters stays.
std::string withoutCase(std::string_view utf8);

} // namespace tarsil
