// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <iosfwd>
#include <string>

namespace tarsil {
struct WorkspaceRecord;
}

namespace tarsil::batch {

// Printing of the contents of a workspace. Only the record is used, so its evolutions are not
// needed.

/// Prints one JSON object "workspace". Line breaks in texts are "\n", colours "#rrggbb".
void printWorkspaceJson(const WorkspaceRecord& record, std::ostream& out);

/// Prints the record for people, under the name of its file.
void printWorkspaceText(const WorkspaceRecord& record, const std::string& name, std::ostream& out);

} // namespace tarsil::batch
