// SPDX-License-Identifier: Apache-2.0
#include "base/files/WindowsFiles.h"

#include "base/text/TextCodec.h"

#include <algorithm>
#include <cerrno>

#include <windows.h>

namespace tarsil {

namespace {

struct Meaning
{
    DWORD code;
    int value;
};

constexpr DWORD diskQuotaExceeded = 1295; // its name is missing in the headers of MinGW

constexpr Meaning meanings[] = {
    {ERROR_FILE_NOT_FOUND, ENOENT},
    {ERROR_PATH_NOT_FOUND, ENOENT},
    {ERROR_INVALID_DRIVE, ENOENT},
    {ERROR_INVALID_NAME, ENOENT},
    {ERROR_BAD_PATHNAME, ENOENT},
    {ERROR_BAD_NETPATH, ENOENT},
    {ERROR_BAD_NET_NAME, ENOENT},
    {ERROR_NOT_READY, ENOENT},
    {ERROR_DIRECTORY, ENOTDIR},
    {ERROR_ACCESS_DENIED, EACCES},
    {ERROR_SHARING_VIOLATION, EACCES},
    {ERROR_LOCK_VIOLATION, EACCES},
    {ERROR_NETWORK_ACCESS_DENIED, EACCES},
    {ERROR_WRITE_PROTECT, EROFS},
    {ERROR_FILE_EXISTS, EEXIST},
    {ERROR_ALREADY_EXISTS, EEXIST},
    {ERROR_DISK_FULL, ENOSPC},
    {ERROR_HANDLE_DISK_FULL, ENOSPC},
    {diskQuotaExceeded, ENOSPC},
    {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
    {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
    {ERROR_NOT_ENOUGH_MEMORY, ENOMEM},
    {ERROR_OUTOFMEMORY, ENOMEM},
    {ERROR_CANT_RESOLVE_FILENAME, ELOOP},
};

} // namespace

void CloseWindowsHandle::operator()(void* handle) const
{
    CloseHandle(handle);
}

WindowsHandle openHandle(const std::filesystem::path& path, unsigned long access,
                         unsigned long disposition)
{
    constexpr DWORD all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    // This flag is needed for folders.
    const HANDLE handle = CreateFileW(path.c_str(), access, all, nullptr, disposition,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    return WindowsHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

int errnoOf(unsigned long code)
{
    const auto* const found =
        std::find_if(std::begin(meanings), std::end(meanings),
                     [code](const Meaning& meaning) { return meaning.code == code; });
    return found == std::end(meanings) ? EIO : found->value;
}

int lastErrno()
{
    return errnoOf(GetLastError());
}

/// Other reparse points, such as files that a cloud service has not downloaded yet, are no links.
bool isLink(const std::filesystem::path& path)
{
    WIN32_FIND_DATAW found = {};
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return false;
    const HANDLE search = FindFirstFileW(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    return found.dwReserved0 == IO_REPARSE_TAG_SYMLINK
        || found.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT;
}

std::wstring wideText(std::string_view text)
{
    const std::u16string units = utf16FromUtf8(text);
    return {units.begin(), units.end()};
}

std::string utf8Text(std::wstring_view text)
{
    return utf8FromUtf16(std::u16string(text.begin(), text.end()));
}

std::vector<std::byte> accessListOf(const std::filesystem::path& path)
{
    constexpr SECURITY_INFORMATION wanted = DACL_SECURITY_INFORMATION;
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), wanted, nullptr, 0, &size);
    std::vector<std::byte> list(size);
    if (!GetFileSecurityW(path.c_str(), wanted, list.data(), size, &size))
        list.clear();
    return list;
}

} // namespace tarsil
