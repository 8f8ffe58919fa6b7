#pragma once

#include "base/user/RunTimeError.h"
#include "workspace/WorkspaceRecord.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// Turns the bytes of a workspace file into a record; `name` is what errors call the file. Values
/// are found by section and key alone, whatever the order; the user and the version are not read.
/// An empty description is the three blanks of one that is absent. Of a value 1023 bytes are taken;
/// of one with several fields as many of each, so that a long text costs no number.
///
/// An entry of the list of files that is counted and not there is an empty path. What only newer
/// files hold (edited parameters, the reference evolution, marks, looks of curves) is taken where
/// it is there and fits, and passed over otherwise.
///
/// An error (a count or number that is none, a list of plots or series shorter than its count, an
/// axis or series with too few fields) names file, section, key and the text found. `record` then
/// holds what stood before it: the last plot lacks what had not been read yet. But for empty paths,
/// at most 32767, a count never says how much memory is taken. That a series names an evolution or
/// mode that does not exist is for the caller to find.
void readWorkspace(std::string_view bytes, const std::string& name, WorkspaceRecord& record);

/// A value that may be missing and was passed over.
struct UnusedValue
{
    std::string section;
    std::string key;
    std::string why;
};

/// What could be read of a workspace, and why not the rest.
struct WorkspaceReading
{
    WorkspaceRecord record;
    std::optional<RunTimeError> error; ///< that of `readWorkspace`; nothing when all could be read

    // The value that raised it; it may be absent.
    std::string section;
    std::string key;

    std::vector<UnusedValue> unusedValues; ///< those that do not fit
    std::vector<LongValue> cutValues; ///< texts of which the file holds more than the record
};

/// The same for a caller that wants both; raises no such error.
WorkspaceReading tryToReadWorkspace(std::string_view bytes, const std::string& name);

} // namespace tarsil
