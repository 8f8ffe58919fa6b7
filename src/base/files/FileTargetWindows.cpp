// SPDX-License-Identifier: Apache-2.0
#include "base/files/FileTarget.h"

#include "base/files/PathNames.h"
#include "base/files/WindowsFiles.h"

#include <windows.h>

namespace tarsil {

std::filesystem::path targetOf(std::string_view path)
{
    std::filesystem::path target = nativePath(path);
    if (!isLink(target))
        return target;
    const auto real = realPath(target);
    if (!real)
        throw fileError(lastErrno(), "AtomicFile", path);
    return *real;
}

/// Opens the file with the rights that writing and replacing need, without changing it.
void requireWritable(const std::filesystem::path& target, std::string_view path)
{
    const WindowsHandle file = openHandle(target, GENERIC_WRITE | DELETE, OPEN_EXISTING);
    if (file)
        return;
    const DWORD code = GetLastError();
    if (code == ERROR_SHARING_VIOLATION)
        throw RunTimeError(ErrorNumber::PermissionDenied, "AtomicFile",
                           shownPath(path) + " (another program has opened it)");
    throw fileError(errnoOf(code), "AtomicFile", path);
}

} // namespace tarsil
