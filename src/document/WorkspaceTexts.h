#pragma once

#include <QString>

namespace tarsil {

/// What a workspace says about itself.
struct WorkspaceTexts
{
    QString name; ///< that of its file without the extension, or of a workspace without a file
    QString description;
    QString dateCreated; ///< as `dateText` writes it; from a file, as the file has it
    QString dateModified; ///< empty until it is saved

    bool operator==(const WorkspaceTexts&) const = default;
};

} // namespace tarsil
