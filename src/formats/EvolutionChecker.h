// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "formats/FindingList.h"

#include <string_view>
#include <vector>

namespace tarsil {

/// The findings in a file, by line: counts that disagree with the rows, a truncated mode, speeds
/// that do not increase or are equal, a repeated mode number, rows of different widths, factors
/// that are ignored, a file that ends within a number, a number of fields without factors, text in
/// a number field, a missing section. At most `mostFindings` are listed, then one about the rest.
/// Errors: those of opening a file; 5 for a name of unknown format.
std::vector<Finding> checkEvolution(std::string_view path);

/// The same for text in memory; `fileName` selects the format (`formatOf`).
std::vector<Finding> checkEvolutionText(std::string_view text, std::string_view fileName);

} // namespace tarsil
