// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"
#include "solver/SolverRun.h"
#include "solver/UnitEvidence.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil::solver {

/// The texts that the user gives for the evolutions.
struct ImportTexts
{
    std::string programVersion; ///< the name and version of this program
    std::string airplane; ///< empty: the title of the analysis
    std::string massConfiguration;
};

/// A printed solver output: its analyses, the names of their evolutions, and the evidence about its
/// units.
struct SolverOutput
{
    std::string path;
    SummaryFile file;
    std::vector<SolverRun> runs;
    std::vector<std::string> names; ///< of the evolution files, one for each run
    UnitEvidence evidence;
};

/// Reads a solver output, which has no runs without a flutter summary. Reports progress like
/// `readSummaries`; after a stop, `file.isStopped` is set and there are no runs. Errors: those of
/// reading a file.
SolverOutput readSolverOutput(std::string_view path, const Progress& progress = {});

/// Whether the rows or headings of a run contain a density. Without one, its speeds can only be
/// imported as equivalent airspeeds.
bool carriesDensity(const SolverRun& run);

/// Whether the rows of a run contain densities (PKNL), not its heading a ratio.
bool printsDensities(const SolverRun& run);

/// Why nothing can be imported from an output, as a sentence with its path. Empty when the output
/// has an analysis.
std::optional<std::string> refusalOf(const SolverOutput& output);

/// The text of the evolution file of a run. Errors: those of `ev2Text`; 5 for a run without a
/// density whose speeds are not equivalent.
std::string evolutionText(const SolverOutput& output, std::size_t run, const UnitChoice& units,
                          const ImportTexts& texts);

} // namespace tarsil::solver
