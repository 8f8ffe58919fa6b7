// SPDX-License-Identifier: Apache-2.0
#include "base/files/FileTarget.h"

#include "base/files/PathNames.h"

#include <cerrno>
#include <system_error>

#include <unistd.h>

namespace tarsil {

namespace fs = std::filesystem;

fs::path targetOf(std::string_view path)
{
    constexpr int mostLinks = 40; // the limit of the system
    std::error_code failed;
    fs::path target = nativePath(path);
    for (int links = 0; fs::is_symlink(fs::symlink_status(target, failed)); ++links) {
        const fs::path next = fs::read_symlink(target, failed);
        if (failed || links == mostLinks)
            throw fileError(failed ? failed.value() : ELOOP, "AtomicFile", path);
        target = target.parent_path() / next;
    }
    return target;
}

void requireWritable(const fs::path& target, std::string_view path)
{
    if (::access(target.c_str(), W_OK) != 0)
        throw fileError(errno, "AtomicFile", path);
}

} // namespace tarsil
