// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarsil {

// The stored value of a rich text in a workspace: the source with NUL for each CR LF. Readers cut a
// value at its maximum length.

/// The maximum length of a value in bytes.
constexpr std::size_t mostStoredBytes = 1023;

/// Converts a stored value to its source.
std::string rtfFromStoredValue(std::string_view value);

/// Converts a source to its stored value. A NUL in the source, which means a blank, becomes a
/// blank.
std::string storedValueFromRtf(std::string_view rtf);

} // namespace tarsil
