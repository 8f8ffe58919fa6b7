// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/TestFiles.h"

#include <cstddef>
#include <filesystem>
#include <iterator>

namespace tarsil::test {

/// The number of files in a folder.
inline std::ptrdiff_t filesIn(const TemporaryFolder& folder)
{
    const std::filesystem::directory_iterator files(folder.path());
    return std::distance(begin(files), end(files));
}

} // namespace tarsil::test
