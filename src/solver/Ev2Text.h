// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "solver/SolverRun.h"

#include <string>
#include <vector>

namespace tarsil {

class EVM;

} // namespace tarsil

namespace tarsil::solver {

/// The text of an evolution file with sections in its encoding: the texts of `header`, with a blank
/// for each line break, and the counts, rows and common Mach number of `modes`. A row is
/// "id|point|Im|Re|k|KEAS|g|f|Mach|sigma|" with nine significant digits, from which every single
/// reads back equal; a value that was not printed is empty. Error 6 "Overflow" for more modes or
/// points, or a larger mode number, than the file can count (32767).
std::string ev2Text(const EVM& header, const std::vector<ImportedMode>& modes);

} // namespace tarsil::solver
