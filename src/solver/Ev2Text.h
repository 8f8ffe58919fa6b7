#pragma once

#include "solver/SolverRun.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarsil::solver {

/// The header of an evolution file with sections. Texts are UTF-8; line breaks in them become
/// blanks.
struct Ev2Header
{
    std::string programVersion;
    std::string runningDate;
    std::string solverVersion;
    std::string flutterMethod;
    std::string airplane;
    std::string script;
    std::string massConfiguration;
    std::optional<double> mach; ///< absent when it differs from row to row
    std::string analysisType;
    std::vector<std::string> modifications;
    std::vector<std::string> legends;
    std::vector<std::pair<std::string, std::string>> furtherKeys; ///< in the first section
};

/// The text of an evolution file with sections, in the encoding of such files. A row is
/// "id|point|Im|Re|k|KEAS|g|f|Mach|sigma|": values with nine significant digits, from which every
/// single reads back equal; a value that was not printed is left empty. Error 6 "Overflow" for more
/// modes or points, or a higher mode number, than such a file can count (32767).
std::string ev2Text(const Ev2Header& header, const std::vector<ImportedMode>& modes);

} // namespace tarsil::solver
