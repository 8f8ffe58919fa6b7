#pragma once

#include "solver/SolverRun.h"

#include <string>
#include <vector>

namespace tarsil {

class EVM;

} // namespace tarsil

namespace tarsil::solver {

/// The text of an evolution file with sections, in the encoding of such files: the texts of
/// `header`, with a blank for each line break in them, and the counts, rows and common Mach number
/// of `modes`. A row is "id|point|Im|Re|k|KEAS|g|f|Mach|sigma|": values with nine significant
/// digits, from which every single reads back equal; a value that was not printed is left empty.
/// Error 6 "Overflow" for more modes or points, or a higher mode number, than such a file can count
/// (32767).
std::string ev2Text(const EVM& header, const std::vector<ImportedMode>& modes);

} // namespace tarsil::solver
