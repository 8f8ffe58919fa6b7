// SPDX-License-Identifier: Apache-2.0
#include "base/files/PathNames.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace tarsil {

namespace {

ErrorNumber numberOf(int code, std::string_view path)
{
    switch (code) {
    case ENOENT: {
        std::error_code ignored;
        const auto parent = nativePath(path).parent_path();
        const bool parentIsThere = parent.empty() || std::filesystem::is_directory(parent, ignored);
        return parentIsThere ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound;
    }
    case ENOTDIR:
        return ErrorNumber::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return ErrorNumber::PermissionDenied;
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT: // the user's disk quota is exhausted
#endif
        return ErrorNumber::DiskFull;
    case EIO:
        return ErrorNumber::DeviceInputOutput;
    default:
        return ErrorNumber::PathFileAccess;
    }
}

} // namespace

std::string joinPath(std::string_view folder, std::string_view name)
{
    std::string path(folder);
    return path.append("\\").append(name);
}

std::string shownPath(std::string_view path)
{
    return systemText(nativePath(path));
}

std::string wholePath(std::string_view path)
{
    const FilePath file = resolvePath(path);
    return shownPath(joinPath(file.folder, file.name));
}

RunTimeError fileError(int code, std::string source, std::string_view path)
{
    std::string details = shownPath(path);
    const ErrorNumber number = numberOf(code, path);
    if (number == ErrorNumber::PathFileAccess)
        details.append(" (").append(std::generic_category().message(code)).append(")");
    return {number, std::move(source), details};
}

} // namespace tarsil
