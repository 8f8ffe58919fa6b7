#pragma once

#include "solver/SolverRun.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarsil::solver {

/// The file names of the evolutions of a source's runs, without folder: the source's stem, "_s"
/// subcase, "_M" Mach number where there is one, "_a" sigma value, "_r" density ratio where runs
/// differ in it alone, "_c2" for the second pass, "_2" where names clash, and ".ev2".
std::vector<std::string> runNames(const std::vector<SolverRun>& runs, std::string_view stem);

} // namespace tarsil::solver
