// SPDX-License-Identifier: Apache-2.0
#include "base/files/PathNames.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include <sys/stat.h>

namespace tarsil {

namespace {

bool stepsUp(const std::filesystem::path& path)
{
    return std::find(path.begin(), path.end(), "..") != path.end();
}

} // namespace

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

std::string systemText(const std::filesystem::path& path)
{
    return path.string();
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

/// Plain text instead of std::filesystem: this is called for thousands of paths of a workspace, and
/// parsing a path would take longer than the system call.
bool fileExists(std::string_view path)
{
    std::string native(path);
    std::replace(native.begin(), native.end(), '\\', '/');
    struct stat status = {};
    return ::stat(native.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

std::optional<std::string> fileIdentity(std::string_view path)
{
    struct stat status
    { };
    if (::stat(nativePath(path).c_str(), &status) != 0)
        return std::nullopt;
    return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
}

std::optional<std::filesystem::path> realPath(const std::filesystem::path& path)
{
    std::error_code failed;
    std::filesystem::path real = std::filesystem::canonical(path, failed);
    return failed ? std::nullopt : std::optional(std::move(real));
}

bool isPlainEntry(const std::filesystem::path& path)
{
    std::error_code unknown;
    const auto status = std::filesystem::symlink_status(path, unknown);
    return std::filesystem::exists(status) && !std::filesystem::is_symlink(status);
}

} // namespace tarsil
