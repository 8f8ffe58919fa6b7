// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "workspace/WorkspaceRecord.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

struct WrittenWorkspace
{
    std::string bytes;
    std::vector<LongValue> longValues; ///< written in full, in the order of the file
};

/// Converts a record to the bytes of a workspace file saved by `userName` (cut at its first NUL).
/// Texts are Windows-1252 if all of them fit, otherwise UTF-8; rich texts are copied as bytes.
///
/// A line break within a value becomes NUL; in the texts of values with several fields, which NUL
/// separates, it becomes a blank. A value whose ends a reader would strip is quoted, except the
/// three default blanks of a description. An absent value is written as "Empty".
///
/// Edited parameters, the reference evolution, reference speeds, damping lines and looks that
/// differ from the default are further keys at the end of their sections, which older programs
/// ignore.
///
/// Error 6 "Overflow" for a number that is not finite, or more than 32767 files, plots or series.
WrittenWorkspace writeWorkspace(const WorkspaceRecord& record, std::string_view userName);

} // namespace tarsil
