// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// A file in an archive.
struct ArchivePart
{
    std::string name; ///< with "/" between folders
    std::string bytes;
    bool isCompressed = true;
};

/// The bytes of a zip archive with these parts. It is made in memory, so that only the final write
/// can fail. The date of every part is 1980-01-01, so that equal parts give equal bytes. Reports
/// progress while it compresses; `progress` must not throw. Empty after a stop. Errors:
/// std::bad_alloc; 5 for a failure of the zip library, with `source` and its message.
std::optional<std::string> zipArchive(const std::vector<ArchivePart>& parts,
                                      std::string_view source, const Progress& progress = {});

} // namespace tarsil
