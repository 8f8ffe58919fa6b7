// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/RunTimeError.h"
#include "workspace/WorkspaceRecord.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// Converts the bytes of a workspace file to a record; `name` is the file name in errors. Values
/// are found by section and key in any order; the version is not read. The default of the
/// description is three blanks. A value is cut at 1023 bytes; in one with several fields the limit
/// applies to each, so that a long text does not cost the numbers.
///
/// An entry of the file list that is counted but missing is an empty path. Further keys (edited
/// parameters, reference evolution, reference speeds, damping lines, looks of curves) are used if
/// they are valid and ignored otherwise.
///
/// An error (an invalid count or number, a list of plots or series shorter than its count, an axis
/// or series with too few fields) names file, section, key and text. `record` then contains
/// everything before it: the last plot is incomplete. Counts do not determine memory use, except
/// for empty paths, at most 32767. Whether the evolution and mode of a series exist is for the
/// caller to check.
void readWorkspace(std::string_view bytes, const std::string& name, WorkspaceRecord& record);

/// A further value that was ignored.
struct UnusedValue
{
    std::string section;
    std::string key;
    std::string why;
};

/// The readable part of a workspace, and the error that ended reading.
struct WorkspaceReading
{
    WorkspaceRecord record;
    std::string userName; ///< who saved the file; empty when it does not say
    std::optional<RunTimeError> error; ///< that of `readWorkspace`; empty when everything was read

    // The faulty value, which may be absent.
    std::string section;
    std::string key;

    std::vector<UnusedValue> unusedValues; ///< those that are invalid
    std::vector<LongValue> cutValues; ///< texts that are longer in the file than in the record
};

/// Like `readWorkspace`, but returns the error together with the record.
WorkspaceReading tryToReadWorkspace(std::string_view bytes, const std::string& name);

} // namespace tarsil
