#pragma once

#include "formats/FindingList.h"

#include <string_view>
#include <vector>

namespace tarsil {

/// Everything doubtful in the file of the name given, in the order of its lines: counts that
/// disagree with the rows, a mode cut short, speeds that do not increase, equal speeds, a repeated
/// mode number, rows of different widths, factors that do not count, a file that ends within a
/// number, a field count that carries no factors, a text in a number field, a section that is
/// missing. At most `mostFindings` are listed, then one that says so. Errors: those of opening a
/// file; error 5 for a name that selects no format.
std::vector<Finding> checkEvolution(std::string_view path);

/// The same for text in memory; `fileName` selects the format (`formatOf`).
std::vector<Finding> checkEvolutionText(std::string_view text, std::string_view fileName);

} // namespace tarsil
