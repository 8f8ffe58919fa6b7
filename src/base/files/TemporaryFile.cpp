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

/// The names of the temporary files that exist. A handler of signals reads them, in whichever
/// thread, so that nothing here may lock or allocate. Whoever takes a name out of its entry removes
/// the file; a name that a signal has taken is not freed, for the process ends.
using Entry = std::atomic<const std::string*>;
static_assert(Entry::is_always_lock_free);

/// More files than are ever written at once; those beyond are removed by their objects alone.
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
    // The usual action is in force again, so this ends the process as if nothing had been done.
    ::raise(signal);
}

/// That the limit was exceeded is what the call that writes returns.
extern "C" void goOn(int /*signal*/) { }

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

/// An open folder that closes itself. The standard library's iterator ends the program when memory
/// runs out within it.
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
    using namespace std::chrono;
    struct stat status = {};
    return ::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(status.st_mode)
        && status.st_uid == ::geteuid()
        && system_clock::now() - system_clock::from_time_t(status.st_mtime) > hours(24);
}

/// A rename lasts through a loss of power when its folder is on the medium too. Where that cannot
/// be had, the folder holds the old file or the new one, whole, and the new one is what is seen.
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

/// The name is entered before the file is made, so that there is no moment at which a signal would
/// leave it.
int TemporaryFile::open(Access access)
{
    constexpr int attempts = 100; // names of other programs' making may be taken
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
    // What cannot be synchronised (some network folders) has still been written.
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
    handle(SIGXFSZ, goOn, SA_RESTART);
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
