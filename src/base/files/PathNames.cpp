// SPDX-License-Identifier: Apache-2.0
#include "base/files/PathNames.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>

#if __has_include(<sys/stat.h>) && __has_include(<sys/mman.h>)
#include <sys/stat.h>
#endif

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

bool stepsUp(const std::filesystem::path& path)
{
    return std::find(path.begin(), path.end(), "..") != path.end();
}

} // namespace

std::string joinPath(std::string_view folder, std::string_view name)
{
    std::string path(folder);
    return path.append("\\").append(name);
}

std::filesystem::path nativePath(std::string_view path)
{
    std::u8string text(path.begin(), path.end());
    std::replace(text.begin(), text.end(), u8'\\', u8'/');
    return std::filesystem::path(text);
}

std::string pathText(const std::filesystem::path& path)
{
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
}

std::string shownPath(std::string_view path)
{
    return nativePath(path).string();
}

std::string wholePath(std::string_view path)
{
    const FilePath file = resolvePath(path);
    return shownPath(joinPath(file.folder, file.name));
}

FilePath resolvePath(std::string_view path)
{
    std::error_code failed;
    const std::filesystem::path native = nativePath(path);
    std::filesystem::path whole = std::filesystem::absolute(native, failed);
    if (failed)
        whole = native;
    if (stepsUp(whole)) {
        // ".." after a symbolic link means the parent of the link's target.
        const auto real = std::filesystem::weakly_canonical(whole.parent_path(), failed);
        if (!failed)
            whole = real / whole.filename();
    }
    whole = whole.lexically_normal();
    std::string folder = pathText(whole.parent_path());
    if (folder.ends_with('/'))
        folder.pop_back();
    return {folder, pathText(whole.filename())};
}

bool fileExists(std::string_view path)
{
#if __has_include(<sys/stat.h>) && __has_include(<sys/mman.h>)
    // Plain text instead of std::filesystem: this is called for thousands of paths of a workspace,
    // and parsing a path would take longer than the system call.
    std::string native(path);
    std::replace(native.begin(), native.end(), '\\', '/');
    struct stat status = {};
    return ::stat(native.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
#else
    std::error_code ignored;
    const auto status = std::filesystem::status(nativePath(path), ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
#endif
}

std::optional<std::string> fileIdentity(std::string_view path)
{
#if __has_include(<sys/stat.h>) && __has_include(<sys/mman.h>)
    struct stat status
    { };
    if (::stat(nativePath(path).c_str(), &status) != 0)
        return std::nullopt;
    return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
#else
    std::error_code failed;
    const std::filesystem::path real = std::filesystem::canonical(nativePath(path), failed);
    return failed ? std::nullopt : std::optional(pathText(real));
#endif
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
