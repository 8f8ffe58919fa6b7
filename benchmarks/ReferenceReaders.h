#pragma once

#include "GeneratedFiles.h"

#include "model/Point.h"

#include <string>
#include <vector>

namespace tarsil::benchmarks {

// Two readers to measure against. Both make the same points as the program's readers, and neither
// looks for errors. The file is meant to be well formed.

using ReferenceModes = std::vector<std::vector<Point>>;

/// What a good programmer writes without a profile: the file mapped into memory, lines and fields
/// cut as views, numbers by std::from_chars.
ReferenceModes readWithFromChars(const std::string& path, Layout layout);

/// What most programs do: std::getline, substr, std::stof.
ReferenceModes readWithStof(const std::string& path, Layout layout);

} // namespace tarsil::benchmarks
