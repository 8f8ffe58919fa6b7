#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// A file within an archive.
struct ArchivePart
{
    std::string name; ///< with "/" between folders
    std::string bytes;
};

/// The bytes of a zip archive with these parts, compressed. It is made in memory, so that no file
/// can fail on the way; the date of each part is 1980-01-01, so that equal parts give equal bytes.
/// Errors: std::bad_alloc; 5 for what the compressing library refuses, with `source` and its words.
std::string zipArchive(const std::vector<ArchivePart>& parts, std::string_view source);

} // namespace tarsil
