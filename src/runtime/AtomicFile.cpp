#include "runtime/AtomicFile.h"

#include "runtime/PathNames.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <system_error>

#if __has_include(<unistd.h>)
#include <unistd.h>
#endif

namespace tarsil {

namespace {

namespace fs = std::filesystem;

/// The file that is meant, where the name is a symbolic link to it.
fs::path targetOf(std::string_view path)
{
    std::error_code failed;
    const fs::path named = nativePath(path);
    const fs::path real = fs::canonical(named, failed);
    return failed ? named : real;
}

/// Refuses what a rename would silently replace: a folder, or a file that nobody may write.
void checkTarget(const fs::path& target, std::string_view path)
{
    std::error_code failed;
    const fs::file_status status = fs::status(target, failed);
    if (!fs::exists(status))
        return;
    if (fs::is_directory(status))
        throw fileError(EISDIR, "AtomicFile", path);
    if (!fs::is_regular_file(status)) // a device or a pipe would be replaced, not written to
        throw fileError(EINVAL, "AtomicFile", path);
    constexpr auto anyWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if ((status.permissions() & anyWrite) == fs::perms::none)
        throw fileError(EACCES, "AtomicFile", path);
#if __has_include(<unistd.h>)
    if (::access(target.c_str(), W_OK) != 0)
        throw fileError(errno, "AtomicFile", path);
#endif
}

int flushToDisk(std::FILE* file)
{
    if (std::fflush(file) != 0)
        return errno;
#if __has_include(<unistd.h>)
    // What cannot be synchronised (some network folders) has still been written.
    if (::fsync(::fileno(file)) != 0 && errno != EINVAL && errno != ENOSYS)
        return errno;
#endif
    return 0;
}

} // namespace

fs::path temporaryName(const fs::path& target)
{
    static std::atomic<unsigned> counter = 0;
    const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
    std::string name = ".tarsil-";
    name.append(std::to_string(stamp)).append("-").append(std::to_string(counter++));
    return target.parent_path() / name.append(".tmp");
}

AtomicFile::AtomicFile(std::string_view path)
    : m_path(path), m_target(targetOf(path)), m_temporary(temporaryName(m_target))
{
    checkTarget(m_target, path);
    m_file.reset(std::fopen(m_temporary.string().c_str(), "wbx"));
    if (!m_file)
        throw fileError(errno, "AtomicFile", path);
}

AtomicFile::~AtomicFile()
{
    if (m_temporary.empty())
        return;
    m_file.reset();
    std::error_code ignored;
    fs::remove(m_temporary, ignored);
}

void AtomicFile::write(std::string_view bytes)
{
    if (bytes.empty())
        return; // whose data may be null, which the platform does not take
    errno = 0;
    if (std::fwrite(bytes.data(), 1, bytes.size(), m_file.get()) != bytes.size())
        fail(errno);
}

void AtomicFile::patch(std::size_t offset, std::string_view bytes)
{
    errno = 0;
    if (std::fseek(m_file.get(), static_cast<long>(offset), SEEK_SET) != 0)
        fail(errno);
    write(bytes);
    if (std::fseek(m_file.get(), 0, SEEK_END) != 0)
        fail(errno);
}

void AtomicFile::commit()
{
    if (const int code = flushToDisk(m_file.get()); code != 0)
        fail(code);
    if (std::fclose(m_file.release()) != 0)
        fail(errno);
    replaceFile(m_temporary, m_path);
    m_temporary.clear();
}

void AtomicFile::fail(int code) const
{
    throw fileError(code, "AtomicFile", m_path);
}

void writeFile(std::string_view path, std::string_view bytes)
{
    AtomicFile file(path);
    file.write(bytes);
    file.commit();
}

void replaceFile(const fs::path& temporary, std::string_view path)
{
    std::error_code failed;
    const fs::path target = targetOf(path);
    try {
        checkTarget(target, path);
    } catch (...) {
        fs::remove(temporary, failed);
        throw;
    }
    const fs::file_status old = fs::status(target, failed);
    if (fs::exists(old))
        fs::permissions(temporary, old.permissions(), failed);
    failed.clear();
    fs::rename(temporary, target, failed);
    if (!failed)
        return;
    const int code = failed.value();
    fs::remove(temporary, failed);
    throw fileError(code, "AtomicFile", path);
}

} // namespace tarsil
