// SPDX-License-Identifier: Apache-2.0
#include "document/WorkspaceSource.h"

#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "workspace/FoundFiles.h"

namespace tarsil {

WorkspaceSource readWorkspaceSource(const std::string& path, const Progress& progress)
{
    WorkspaceSource source;
    source.path = path;
    {
        const FileBytes file(path);
        source.reading = tryToReadWorkspace(file.bytes(), shownPath(path));
    }
    const std::vector<std::string>& stored = source.reading.record.files;
    source.files = foundFiles(stored, path, progress);
    for (std::size_t i = 0; i < stored.size(); ++i) {
        if (isTakenByNameAlone(stored[i], source.files[i], path))
            source.namesakes.push_back({i, stored[i], source.files[i]});
    }
    return source;
}

std::string userNameIn(const std::string& path)
{
    const FileBytes file(path);
    return tryToReadWorkspace(file.bytes(), shownPath(path)).userName;
}

WorkspaceRecord readWorkspaceFile(const std::string& path)
{
    const FileBytes file(path);
    WorkspaceRecord record;
    readWorkspace(file.bytes(), shownPath(path), record);
    return record;
}

} // namespace tarsil
