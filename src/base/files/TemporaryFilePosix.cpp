// SPDX-License-Identifier: Apache-2.0
#include "base/files/TemporaryFile.h"

#include "base/files/TemporaryNames.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <system_error>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarsil {

namespace {

extern "C" void removeTemporariesAndEnd(int signal)
{
    takeTemporaries([](const SystemPath& path) { ::unlink(path.c_str()); });
    // The default action is restored, so this ends the process as the signal would have.
    ::raise(signal);
}

/// Empty: the failed write itself reports that the limit was exceeded.
extern "C" void ignoreSignal(int /*signal*/) { }

void handle(int signal, void (*handler)(int), int flags)
{
    struct sigaction before = {};
    if (::sigaction(signal, nullptr, &before) != 0 || before.sa_handler == SIG_IGN)
        return;
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    ::sigaction(signal, &action, nullptr);
}

/// Closes a folder. std::filesystem::directory_iterator is not used because it terminates the
/// program when it runs out of memory.
struct CloseFolder
{
    void operator()(DIR* folder) const { ::closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

bool isOldAndOwn(int folder, const char* name)
{
    using std::chrono::hours;
    using std::chrono::system_clock;
    struct stat status = {};
    return ::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(status.st_mode)
        && status.st_uid == ::geteuid()
        && system_clock::now() - system_clock::from_time_t(status.st_mtime) > hours(24);
}

/// Flushes the folder to the disk, so that a rename survives a power loss. A failure is ignored:
/// the folder then holds either the old or the new file, each of them whole.
void flushFolder(const std::filesystem::path& folder)
{
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    static_cast<void>(::fsync(handle));
    ::close(handle);
}

} // namespace

int TemporaryFile::openNew(Access access)
{
    constexpr mode_t ofOwner = S_IRUSR | S_IWUSR;
    constexpr mode_t ofAll = ofOwner | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    const mode_t mode = access == Access::Private ? ofOwner : ofAll;
    const int handle = ::open(m_path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (handle < 0)
        return errno;
    m_stream.reset(::fdopen(handle, "w+b"));
    if (m_stream)
        return 0;
    const int code = errno;
    ::close(handle);
    ::unlink(m_path.c_str());
    return code;
}

int TemporaryFile::flushToDisk()
{
    // Some network folders do not support fsync; the data has been written nevertheless.
    const bool done = ::fsync(::fileno(m_stream.get())) == 0 || errno == EINVAL || errno == ENOSYS;
    return done ? 0 : errno;
}

int TemporaryFile::renameToTarget()
{
    std::error_code failed;
    std::filesystem::rename(m_path, m_target, failed);
    if (!failed)
        flushFolder(m_folder);
    return failed.value();
}

void removeTemporariesOnSignals()
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        handle(signal, removeTemporariesAndEnd, static_cast<int>(SA_RESETHAND | SA_NODEFER));
    handle(SIGXFSZ, ignoreSignal, SA_RESTART);
}

void removeOldTemporaries(const std::filesystem::path& folder)
{
    const OpenFolder open(::opendir(folder.empty() ? "." : folder.c_str()));
    if (!open)
        return;
    const int handle = ::dirfd(open.get());
    while (const dirent* const entry = ::readdir(open.get())) {
        if (isTemporaryName(entry->d_name) && isOldAndOwn(handle, entry->d_name))
            ::unlinkat(handle, entry->d_name, 0);
    }
}

} // namespace tarsil
