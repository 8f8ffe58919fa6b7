#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarsil {

// How a rich text stands in a workspace: as one value, in which a NUL stands for every CR LF of the
// source. A value that is longer than its limit loses its end when it is read.

/// The longest value, in bytes.
constexpr std::size_t mostStoredBytes = 1023;

/// The source of a value.
std::string rtfFromStoredValue(std::string_view value);

/// The value of a source. A NUL of the source itself, which is a blank there, becomes one here.
std::string storedValueFromRtf(std::string_view rtf);

} // namespace tarsil
