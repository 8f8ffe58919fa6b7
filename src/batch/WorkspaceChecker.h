#pragma once

#include "formats/FindingList.h"

#include <string>
#include <vector>

namespace tarsil::batch {

class BatchRun;

/// Everything doubtful in a workspace, in the order of its lines: files that are missing, elsewhere
/// than it says, or cannot be read; files that are counted and not listed; series that name an
/// evolution or mode that there is not; counts that are smaller than what follows; values that are
/// passed over, or of which only a part is read; rich texts that were cut; a section at the end
/// that is missing; the error at which reading ends, which leaves only what is before it to be
/// checked. At most `mostFindings` are listed, then one that says so. Evolutions that series name
/// are opened. Errors: those of opening the workspace.
std::vector<Finding> checkWorkspace(const std::string& path, BatchRun& run);

} // namespace tarsil::batch
