// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "workspace/WorkspaceRecord.h"

#include <cstddef>
#include <map>
#include <vector>

namespace tarsil {

class EVM;

/// The edited parameters: those that differ from their files, by position in `evolutions`, counted
/// from 1.
std::map<std::size_t, EditedRecord> editedRecordsOf(const std::vector<const EVM*>& evolutions);

/// Applies edited parameters to evolutions. `evolutions` is the list of files as saved, null for a
/// missing file. Positions beyond the list are ignored.
void applyEdited(const std::map<std::size_t, EditedRecord>& edited,
                 const std::vector<EVM*>& evolutions);

} // namespace tarsil
