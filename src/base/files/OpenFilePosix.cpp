// SPDX-License-Identifier: Apache-2.0
#include "base/files/OpenFile.h"

#include "base/files/PathNames.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarsil {

namespace {

int descriptorOf(std::intptr_t handle)
{
    return static_cast<int>(handle);
}

FileVersion versionOf(const struct stat& status)
{
    return {static_cast<std::size_t>(status.st_size), status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec};
}

/// The errno value for a file that cannot be read from start to end; 0 for one that can.
int refusalOf(const struct stat& status)
{
    if (S_ISREG(status.st_mode))
        return 0;
    return S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
}

} // namespace

// Opens without blocking, so that a pipe is refused instead of waiting for its writer.
OpenFile::OpenFile(std::string_view path)
    : m_handle(::open(nativePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
{
    struct stat status = {};
    const bool isOpen = m_handle >= 0 && ::fstat(descriptorOf(m_handle), &status) == 0;
    const int code = isOpen ? refusalOf(status) : errno;
    m_version = versionOf(status);
    if (code == 0)
        return;
    if (m_handle >= 0)
        ::close(descriptorOf(m_handle));
    throw fileError(code, "InputFile", path);
}

OpenFile::~OpenFile()
{
    ::close(descriptorOf(m_handle));
}

std::size_t OpenFile::read(std::size_t position, char* to, std::size_t count,
                           std::string_view path) const
{
    for (;;) {
        const ssize_t done =
            ::pread(descriptorOf(m_handle), to, count, static_cast<off_t>(position));
        if (done >= 0)
            return static_cast<std::size_t>(done);
        if (errno != EINTR)
            throw fileError(errno, "InputFile", path);
    }
}

bool OpenFile::isChanged() const
{
    struct stat now = {};
    return ::fstat(descriptorOf(m_handle), &now) != 0 || versionOf(now) != m_version;
}

} // namespace tarsil
