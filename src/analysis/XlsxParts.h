// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/ZipArchive.h"
#include "base/user/Progress.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class Sheet;

/// The parts of a workbook (Office Open XML, ECMA-376) with these sheets. Error 5 for a sheet or
/// text beyond the limits of spreadsheets; its description contains `path`. Reports progress after
/// each column and each row. Empty after a stop.
std::optional<std::vector<ArchivePart>> xlsxParts(std::span<const Sheet* const> sheets,
                                                  std::string_view path, const Progress& progress);

/// A text as an entry of the workbook's string table. A text that looks like an escaped character
/// ("_x0041_") is split into two runs after the first "_": readers that know the escape then show
/// the text as it is, and so do all others. A character that XML cannot hold becomes U+FFFD.
std::string xlsxText(std::string_view utf8);

} // namespace tarsil
