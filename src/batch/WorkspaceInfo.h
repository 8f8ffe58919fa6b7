#pragma once

#include <iosfwd>
#include <string>

namespace tarsil {
struct WorkspaceRecord;
}

namespace tarsil::batch {

// What a workspace holds: the record alone, so that none of its evolutions is needed.

/// Prints it as one JSON object "workspace". Line breaks of all texts are "\n", colours "#rrggbb".
void printWorkspaceJson(const WorkspaceRecord& record, std::ostream& out);

/// Prints it for people, under the name of its file.
void printWorkspaceText(const WorkspaceRecord& record, const std::string& name, std::ostream& out);

} // namespace tarsil::batch
