// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "batch/BatchFixture.h"
#include "workspace/WorkspaceRecord.h"

#include <string>
#include <string_view>

namespace tarsil::test {

/// Tests with workspaces of the evolutions of `BatchFixture`.
class WorkspaceFixture : public BatchFixture
{
protected:
    /// Writes "wing.ev2" and "old.evm".
    WorkspaceFixture();

    /// Two files, stored in a folder that does not exist but present beside the workspace. Plot
    /// "Wing": mode 2 of the first in blue with the legend "torsion", mode 1 of the second with the
    /// legend "old". Plot "Store": mode 1 of the first with the legend "bending".
    static WorkspaceRecord record();

    /// Writes a record as the program does; returns the path.
    std::string write(const WorkspaceRecord& record, std::string_view name = "case.tsw") const;

    std::string wing; ///< paths of the two evolutions
    std::string old;
};

/// The source of a text as workspaces store it.
std::string rtfOf(const std::string& text);

} // namespace tarsil::test
