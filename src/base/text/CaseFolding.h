// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Converts a UTF-8 text to small letters, for comparing file names without case. Covers letters of
/// the Latin, Greek and Cyrillic alphabets with a single small letter. The number of characters
/// does not change.
std::string withoutCase(std::string_view utf8);

} // namespace tarsil
