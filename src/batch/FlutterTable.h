// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/FlutterReport.h"

#include <optional>
#include <string>
#include <vector>

namespace tarsil {
class Sheet;
} // namespace tarsil

namespace tarsil::batch {

class BatchRun;
class CommandLine;

/// The options of a flutter table.
struct FlutterTableOptions
{
    double referenceDamping = 0;
    double speedLimit = 0; ///< KEAS
    std::optional<std::string> mach; ///< of the files without a Mach number, as given

    /// The same as a number; 0 when it is not given.
    float machNumber() const;
};

/// The value of --mach; UsageError unless it is a number greater than 0.
std::optional<std::string> machOf(const CommandLine& line);

/// Writes the flutter table. A value that cannot be computed leaves its cells empty with a
/// complaint, each once: several series may draw the same mode. Returns whether all were computed.
/// Failure for a crossing of an evolution without Mach number, if none is given.
bool writeFlutterTable(const std::vector<ReportRow>& rows, const FlutterTableOptions& options,
                       Sheet& sheet, BatchRun& run);

} // namespace tarsil::batch
