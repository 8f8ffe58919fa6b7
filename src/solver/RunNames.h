// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "solver/SolverRun.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarsil::solver {

/// The file names of a source's evolutions, without folder: the source's stem, "_s" subcase, "_M"
/// Mach number if printed, "_a" sigma value, "_r" density ratio if runs differ only in it, "_c2"
/// for the second pass, "_2" for equal names, and ".ev2".
std::vector<std::string> runNames(const std::vector<SolverRun>& runs, std::string_view stem);

} // namespace tarsil::solver
