// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace tarsil {

/// The texts of a workspace about itself.
struct WorkspaceTexts
{
    QString name; ///< the file name without extension, or the name of an untitled workspace
    QString description;
    QString dateCreated; ///< in the form of `dateText`, or as the file has it
    QString dateModified; ///< empty until saved

    bool operator==(const WorkspaceTexts&) const = default;
};

} // namespace tarsil
