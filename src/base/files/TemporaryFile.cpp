// SPDX-License-Identifier: Apache-2.0
#include "base/files/TemporaryFile.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <string>
#include <string_view>
#include <system_error>

#if __has_include(<unistd.h>)
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tarsil {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = ".tarsil-";
constexpr std::string_view suffix = ".tmp";

std::string freeName()
{
    static std::atomic<unsigned> counter = 0;
    const auto stamp = std::chrono::system_clock::now().time_since_epoch().count();
    std::string name(prefix);
    name.append(std::to_string(stamp)).append("-").append(std::to_string(counter++));
    return name.append(suffix);
}

/// The names of the existing temporary files. A signal handler reads this list, on any thread, so
/// nothing here may lock or allocate. Whoever takes a name out of its entry removes the file. A
/// name taken by the handler is not freed, because the process ends.
using Entry = std::atomic<const std::string*>;
static_assert(Entry::is_always_lock_free);

/// More than the number of files ever open at once. A file without an entry is removed only by its
/// destructor.
std::array<Entry, 64> entries;

std::size_t enter(const fs::path& path)
{
    auto name = std::make_unique<const std::string>(path.string());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::string* expected = nullptr;
        if (entries[i].compare_exchange_strong(expected, name.get())) {
            static_cast<void>(name.release()); // the entry owns it
            return i;
        }
    }
    return entries.size();
}

void leave(std::size_t entry)
{
    if (entry < entries.size())
        const std::unique_ptr<const std::string> freed(entries[entry].exchange(nullptr));
}

#if __has_include(<unistd.h>)

extern "C" void removeTemporariesAndEnd(int signal)
{
    for (Entry& entry : entries) {
        const std::string* const name = entry.exchange(nullptr);
        if (name != nullptr)
            ::unlink(name->c_str());
    }
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

bool isTemporaryName(std::string_view name)
{
    if (name.size() <= prefix.size() + suffix.size() || !name.starts_with(prefix)
        || !name.ends_with(suffix))
        return false;
    const std::string_view middle =
        name.substr(prefix.size(), name.size() - prefix.size() - suffix.size());
    return middle.find_first_not_of("0123456789-") == std::string_view::npos;
}

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
void flushFolder(const fs::path& folder)
{
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    static_cast<void>(::fsync(handle));
    ::close(handle);
}

#else

void flushFolder(const fs::path& /*folder*/) { }

#endif

fs::path folderOf(const fs::path& target)
{
    return target.has_parent_path() ? target.parent_path() : fs::path(".");
}

} // namespace

TemporaryFile::TemporaryFile(const fs::path& target)
    : m_folder(folderOf(target)), m_entry(entries.size())
{ }

TemporaryFile::~TemporaryFile()
{
    m_stream.reset();
    forget();
}

/// Enters the name in the list before it creates the file, so that a signal never misses it.
int TemporaryFile::open(Access access)
{
    constexpr int attempts = 100; // a name may already exist
    int code = EEXIST;
    for (int i = 0; i < attempts && code == EEXIST; ++i) {
        m_path = m_folder / freeName();
        m_entry = enter(m_path);
        code = openNew(access);
        m_exists = m_stream != nullptr;
        if (!m_exists)
            leave(m_entry);
    }
    return code;
}

#if __has_include(<unistd.h>)

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

#else

int TemporaryFile::openNew(Access /*access*/)
{
    m_stream.reset(std::fopen(m_path.string().c_str(), "w+bx"));
    return m_stream ? 0 : errno;
}

#endif

int TemporaryFile::flush()
{
    if (std::fflush(m_stream.get()) != 0)
        return errno;
#if __has_include(<unistd.h>)
    // Some network folders do not support fsync; the data has been written nevertheless.
    if (::fsync(::fileno(m_stream.get())) != 0 && errno != EINVAL && errno != ENOSYS)
        return errno;
#endif
    return 0;
}

int TemporaryFile::close()
{
    return std::fclose(m_stream.release()) == 0 ? 0 : errno;
}

int TemporaryFile::renameTo(const fs::path& target)
{
    std::error_code failed;
    fs::rename(m_path, target, failed);
    if (failed)
        return failed.value();
    m_exists = false;
    leave(m_entry);
    flushFolder(m_folder);
    return 0;
}

void TemporaryFile::forget()
{
    if (!m_exists)
        return;
    std::error_code ignored;
    fs::remove(m_path, ignored);
    leave(m_entry);
}

void removeTemporariesOnSignals()
{
#if __has_include(<unistd.h>)
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        handle(signal, removeTemporariesAndEnd, static_cast<int>(SA_RESETHAND | SA_NODEFER));
    handle(SIGXFSZ, ignoreSignal, SA_RESTART);
#endif
}

void removeOldTemporaries(const fs::path& folder)
{
#if __has_include(<unistd.h>)
    const OpenFolder open(::opendir(folder.empty() ? "." : folder.c_str()));
    if (!open)
        return;
    const int handle = ::dirfd(open.get());
    while (const dirent* const entry = ::readdir(open.get())) {
        if (isTemporaryName(entry->d_name) && isOldAndOwn(handle, entry->d_name))
            ::unlinkat(handle, entry->d_name, 0);
    }
#endif
}

} // namespace tarsil
