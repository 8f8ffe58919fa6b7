#pragma once

#include "workspace/WorkspaceRecord.h"

#include <cstddef>
#include <map>
#include <vector>

namespace tarsil {

class EVM;

/// The parameters of those evolutions that are no longer what their files say, by their places in
/// `evolutions`, from 1.
std::map<std::size_t, EditedRecord> editedRecordsOf(const std::vector<const EVM*>& evolutions);

/// Gives evolutions their edited parameters. `evolutions` is the list of files as it was saved,
/// null for one that is not there; what a place beyond it names is passed over.
void applyEdited(const std::map<std::size_t, EditedRecord>& edited,
                 const std::vector<EVM*>& evolutions);

} // namespace tarsil
