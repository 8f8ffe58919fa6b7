// SPDX-License-Identifier: Apache-2.0
#include "base/files/OpenFile.h"

#include "base/files/PathNames.h"
#include "base/files/WindowsFiles.h"

#include <algorithm>
#include <cerrno>

#include <windows.h>

namespace tarsil {

namespace {

HANDLE handleOf(std::intptr_t value)
{
    return reinterpret_cast<HANDLE>(value);
}

/// Times count units of 100 ns since 1601.
FileVersion versionFrom(const BY_HANDLE_FILE_INFORMATION& facts)
{
    constexpr std::int64_t unitsPerSecond = 10'000'000;
    constexpr std::int64_t from1601To1970 = 11'644'473'600; // seconds
    const auto units =
        static_cast<std::int64_t>(std::uint64_t {facts.ftLastWriteTime.dwHighDateTime} << 32U
                                  | facts.ftLastWriteTime.dwLowDateTime);
    return {std::size_t {facts.nFileSizeHigh} << 32U | facts.nFileSizeLow,
            units / unitsPerSecond - from1601To1970, units % unitsPerSecond};
}

/// Fills `facts`. The errno value for what cannot be read from start to end; 0 for a file that can.
int inspect(HANDLE handle, BY_HANDLE_FILE_INFORMATION& facts)
{
    if (GetFileType(handle) != FILE_TYPE_DISK)
        return EINVAL; // a device or a pipe
    if (!GetFileInformationByHandle(handle, &facts))
        return lastErrno();
    return (facts.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? EISDIR : 0;
}

} // namespace

OpenFile::OpenFile(std::string_view path) : m_handle(-1)
{
    WindowsHandle file = openHandle(nativePath(path), GENERIC_READ, OPEN_EXISTING);
    if (!file)
        throw fileError(lastErrno(), "InputFile", path);
    BY_HANDLE_FILE_INFORMATION facts = {};
    const int code = inspect(file.get(), facts);
    if (code != 0)
        throw fileError(code, "InputFile", path);
    m_version = versionFrom(facts);
    m_handle = reinterpret_cast<std::intptr_t>(file.release());
}

OpenFile::~OpenFile()
{
    CloseHandle(handleOf(m_handle));
}

std::size_t OpenFile::read(std::size_t position, char* to, std::size_t count,
                           std::string_view path) const
{
    constexpr std::size_t most = std::size_t {1} << 30U;
    OVERLAPPED start = {};
    start.Offset = static_cast<DWORD>(position & 0xFFFFFFFFU);
    start.OffsetHigh = static_cast<DWORD>(position >> 32U);
    DWORD done = 0;
    if (ReadFile(handleOf(m_handle), to, static_cast<DWORD>(std::min(count, most)), &done, &start))
        return done;
    const DWORD code = GetLastError();
    if (code != ERROR_HANDLE_EOF)
        throw fileError(errnoOf(code), "InputFile", path);
    return 0;
}

bool OpenFile::isChanged() const
{
    BY_HANDLE_FILE_INFORMATION now = {};
    return !GetFileInformationByHandle(handleOf(m_handle), &now) || versionFrom(now) != m_version;
}

} // namespace tarsil
