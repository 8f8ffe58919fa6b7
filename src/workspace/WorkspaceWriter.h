#pragma once

#include "workspace/WorkspaceRecord.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

struct WrittenWorkspace
{
    std::string bytes;
    std::vector<LongValue> longValues; ///< written whole, in the order of the file
};

/// Turns a record into the bytes of a workspace file saved by that user (his name ends at its first
/// NUL). The texts are Windows-1252 when all of them fit there, else all UTF-8; rich texts are the
/// bytes that they are.
///
/// A line break within a value is a NUL, whatever its kind; the texts of values of several fields,
/// which NULs separate, have a blank there. A value that would lose blanks or quotes at its
/// ends when it is read is quoted; only the three blanks of a description that nobody gave
/// do not. What is absent is written "Empty".
///
/// Edited parameters, the reference evolution, marks, and looks of curves that are not the usual
/// one follow the other keys of their sections, where they mislead nobody who does not know them.
///
/// Error 6 "Overflow" for a number that is not finite or more than 32767 files, plots or series.
WrittenWorkspace writeWorkspace(const WorkspaceRecord& record, std::string_view userName);

} // namespace tarsil
