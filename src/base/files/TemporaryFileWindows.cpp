// SPDX-License-Identifier: Apache-2.0
#include "base/files/TemporaryFile.h"

#include "base/files/TemporaryNames.h"
#include "base/files/WindowsFiles.h"

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <thread>
#include <vector>

#include <aclapi.h>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

/// Returns FALSE, so that the next handler ends the process.
BOOL WINAPI removeTemporariesAtEnd(DWORD /*event*/)
{
    takeTemporaries([](const SystemPath& path) { DeleteFileW(path.c_str()); });
    return FALSE;
}

/// The attributes of the target that a file in its place must have from the start.
DWORD attributesFrom(const fs::path& target)
{
    constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ENCRYPTED
        | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    const DWORD attributes = GetFileAttributesW(target.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & kept) == 0)
        return FILE_ATTRIBUTE_NORMAL;
    return attributes & kept;
}

bool isOld(const FILETIME& time)
{
    constexpr std::uint64_t day = std::uint64_t {24} * 3600 * 10'000'000; // in units of 100 ns
    const auto ticks = [](const FILETIME& value) {
        return std::uint64_t {value.dwHighDateTime} << 32U | value.dwLowDateTime;
    };
    FILETIME now = {};
    GetSystemTimeAsFileTime(&now);
    return ticks(now) > ticks(time) + day;
}

/// The user of this process as a TOKEN_USER; empty on failure.
std::vector<std::byte> currentUser()
{
    HANDLE opened = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened))
        return {};
    const WindowsHandle token(opened);
    DWORD size = 0;
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    std::vector<std::byte> user(size);
    if (!GetTokenInformation(token.get(), TokenUser, user.data(), size, &size))
        user.clear();
    return user;
}

bool isOwn(const fs::path& path, const std::vector<std::byte>& user)
{
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), OWNER_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<std::byte> rights(size);
    PSID owner = nullptr;
    BOOL isDefault = FALSE;
    return !user.empty()
        && GetFileSecurityW(path.c_str(), OWNER_SECURITY_INFORMATION, rights.data(), size, &size)
        && GetSecurityDescriptorOwner(rights.data(), &owner, &isDefault) && owner != nullptr
        && EqualSid(owner, reinterpret_cast<const TOKEN_USER*>(user.data())->User.Sid);
}

struct CloseSearch
{
    void operator()(void* search) const { FindClose(search); }
};

} // namespace

/// Private: with the access list of the target from the start, so that `copyRights` need not be
/// permitted to change it.
int TemporaryFile::openNew(Access access)
{
    std::vector<std::byte> list;
    if (access == Access::Private)
        list = accessListOf(m_target);
    SECURITY_ATTRIBUTES security = {sizeof security, list.data(), FALSE};
    const HANDLE handle = CreateFileW(
        m_path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
        list.empty() ? nullptr : &security, CREATE_NEW, attributesFrom(m_target), nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return lastErrno();
    WindowsHandle owned(handle);
    const int number =
        _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY | _O_NOINHERIT);
    if (number >= 0) {
        static_cast<void>(owned.release()); // the number owns it
        m_stream.reset(_fdopen(number, "w+b"));
    }
    if (m_stream)
        return 0;
    const int code = errno;
    if (number >= 0)
        _close(number);
    owned.reset();
    DeleteFileW(m_path.c_str());
    return code;
}

int TemporaryFile::flushToDisk()
{
    return _commit(_fileno(m_stream.get())) == 0 ? 0 : errno;
}

/// A virus scanner may have opened the new file for a moment.
int TemporaryFile::renameToTarget()
{
    constexpr int attempts = 5;
    DWORD code = 0;
    for (int i = 0; i < attempts; ++i) {
        if (i > 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(5 << i));
        if (MoveFileExW(m_path.c_str(), m_target.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return 0;
        code = GetLastError();
        if (code != ERROR_ACCESS_DENIED && code != ERROR_SHARING_VIOLATION)
            break;
    }
    return errnoOf(code);
}

void removeTemporariesOnSignals()
{
    SetConsoleCtrlHandler(removeTemporariesAtEnd, TRUE);
}

void removeOldTemporaries(const fs::path& folder)
{
    const fs::path all = (folder.empty() ? fs::path(".") : folder) / ".tarsil-*.tmp";
    WIN32_FIND_DATAW found = {};
    const HANDLE first = FindFirstFileW(all.c_str(), &found);
    if (first == INVALID_HANDLE_VALUE)
        return;
    const std::unique_ptr<void, CloseSearch> search(first);
    const std::vector<std::byte> user = currentUser();
    constexpr DWORD noFile = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    do {
        const fs::path path = all.parent_path() / found.cFileName;
        if (isTemporaryName(utf8Text(found.cFileName)) && (found.dwFileAttributes & noFile) == 0
            && isOld(found.ftLastWriteTime) && isOwn(path, user))
            DeleteFileW(path.c_str());
    } while (FindNextFileW(search.get(), &found));
}

} // namespace tarsil
