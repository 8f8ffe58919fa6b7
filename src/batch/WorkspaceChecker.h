// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "formats/FindingList.h"

#include <string>
#include <vector>

namespace tarsil::batch {

class BatchRun;

/// The findings in a workspace, by line: files that are missing, found elsewhere or unreadable;
/// files counted but not listed; series with an evolution or mode that does not exist; counts
/// smaller than their lists; values that are ignored or cut; rich texts that are cut; a missing
/// section at the end; the error that ends reading, after which nothing is checked. At most
/// `mostFindings` are listed, then one about the rest. Opens the evolutions of the series. Errors:
/// those of opening the workspace.
std::vector<Finding> checkWorkspace(const std::string& path, BatchRun& run);

} // namespace tarsil::batch
