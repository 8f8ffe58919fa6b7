// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/FlutterReport.h"
#include "analysis/Sheet.h"
#include "analysis/StabilitySheet.h"
#include "base/user/Progress.h"
#include "report/ReportContent.h"
#include "workspace/WorkspaceRecord.h"

#include <optional>
#include <string>
#include <vector>

namespace tarsil {

class EVM;

/// What a report document is made of.
struct ReportInput
{
    std::string path; ///< of the workspace; empty when it was never saved
    std::string name; ///< of the workspace
    std::string userName; ///< who saved it; may be empty
    bool isChanged = false; ///< whether the workspace has changes that are not in its file
    WorkspaceRecord record; ///< series without a mode are left out
    std::vector<EVM*> evolutions; ///< as listed in the record; null for one that is not open
    std::string aircraftPath; ///< empty without an aircraft file
    double referenceDamping = 0; ///< of the flutter table
    double speedLimit = 0; ///< of its largest dampings, KEAS
    Sheet flutterTable;
    StabilityReport stability; ///< its program is that of the document
};

/// The rows of the flutter table: one for each series of these plots whose mode exists.
std::vector<ReportRow> reportRows(const std::vector<PlotRecord>& plots,
                                  const std::vector<EVM*>& evolutions);

/// The evolutions that are open.
std::vector<const EVM*> presentEvolutions(const std::vector<EVM*>& evolutions);

/// The title page, a chapter each for evolutions, plots, flutter table, stability and requirement
/// (if one was judged), and the list of all source files with their present digests. A file that
/// cannot be read is listed with the reason. Reports progress after each file and each plot. Empty
/// after a stop. Errors: those of drawing items of the plots.
std::optional<ReportContent> reportContent(const ReportInput& input, const Progress& progress = {});

} // namespace tarsil
