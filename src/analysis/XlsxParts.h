#pragma once

#include "analysis/ZipArchive.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class Sheet;

/// The parts that a workbook (Office Open XML, ECMA-376) with these sheets is made of. Raises error
/// 5, whose description holds `path`, for a sheet or text beyond what a spreadsheet can hold.
std::vector<ArchivePart> xlsxParts(std::span<const Sheet* const> sheets, std::string_view path);

/// A text as an item of the workbook's strings. What looks like a spreadsheet's escape of a
/// character ("_x0041_") is cut into two runs after its first "_": that is no escape to those that
/// know it, and the same text to those that do not. A character that XML cannot hold becomes
/// U+FFFD.
std::string xlsxText(std::string_view utf8);

} // namespace tarsil
