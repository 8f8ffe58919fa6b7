// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "GeneratedFiles.h"

#include "model/Point.h"

#include <string>
#include <vector>

namespace tarsil::benchmarks {

// Two readers for comparison. Both produce the same points as the program's readers. Neither checks
// for errors: the file must be well-formed.

using ReferenceModes = std::vector<std::vector<Point>>;

/// What a good programmer writes without profiling: the file mapped into memory, lines and fields
/// as views, numbers by std::from_chars.
ReferenceModes readWithFromChars(const std::string& path, Layout layout);

/// What most programs do: std::getline, substr, std::stof.
ReferenceModes readWithStof(const std::string& path, Layout layout);

} // namespace tarsil::benchmarks
