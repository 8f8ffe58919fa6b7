// SPDX-License-Identifier: Apache-2.0
#include "base/files/InputFile.h"

#include "base/files/PathNames.h"

#include <algorithm>
#include <cerrno>
#include <new>

#if __has_include(<sys/mman.h>) // POSIX, not Windows
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <filesystem>
#include <fstream>
#endif

namespace tarsil {

namespace {

RunTimeError readError(int code, std::string_view path)
{
    return fileError(code, "InputFile", path);
}

} // namespace

#if __has_include(<sys/mman.h>)

class InputFile::Source
{
public:
    // Opens without blocking, so that a pipe is refused instead of waiting for its writer.
    explicit Source(std::string_view path)
        : m_handle(::open(nativePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
        if (m_handle < 0 || ::fstat(m_handle, &m_opened) != 0) {
            const int code = errno;
            close();
            throw readError(code, path);
        }
        if (!S_ISREG(m_opened.st_mode)) {
            close();
            throw readError(S_ISDIR(m_opened.st_mode) ? EISDIR : EINVAL, path);
        }
    }
    ~Source() { close(); }
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    std::size_t size() const { return static_cast<std::size_t>(m_opened.st_size); }

    /// At most `count` bytes; 0 at the end of the file.
    std::size_t read(std::size_t position, char* to, std::size_t count, std::string_view path) const
    {
        for (;;) {
            const ssize_t done = ::pread(m_handle, to, count, static_cast<off_t>(position));
            if (done >= 0)
                return static_cast<std::size_t>(done);
            if (errno != EINTR)
                throw readError(errno, path);
        }
    }

    bool isChanged() const
    {
        struct stat now = {};
        return ::fstat(m_handle, &now) != 0 || now.st_size != m_opened.st_size
            || now.st_mtim.tv_sec != m_opened.st_mtim.tv_sec
            || now.st_mtim.tv_nsec != m_opened.st_mtim.tv_nsec;
    }

private:
    void close() const
    {
        if (m_handle >= 0)
            ::close(m_handle);
    }

    int m_handle;
    struct stat m_opened = {};
};

#else

class InputFile::Source
{
public:
    explicit Source(std::string_view path) : m_path(nativePath(path)), m_file(open(path, m_path))
    {
        m_size = std::filesystem::file_size(m_path);
        m_time = std::filesystem::last_write_time(m_path);
    }

    std::size_t size() const { return static_cast<std::size_t>(m_size); }

    std::size_t read(std::size_t position, char* to, std::size_t count, std::string_view path)
    {
        m_file.clear();
        m_file.seekg(static_cast<std::streamoff>(position));
        m_file.read(to, static_cast<std::streamsize>(count));
        if (m_file.bad())
            throw readError(EIO, path);
        return static_cast<std::size_t>(m_file.gcount());
    }

    bool isChanged() const
    {
        std::error_code failed;
        return std::filesystem::file_size(m_path, failed) != m_size || failed
            || std::filesystem::last_write_time(m_path, failed) != m_time || failed;
    }

private:
    static std::ifstream open(std::string_view path, const std::filesystem::path& native)
    {
        if (!fileExists(path))
            throw readError(std::filesystem::is_directory(native) ? EISDIR : ENOENT, path);
        std::ifstream file(native, std::ios::binary);
        if (!file)
            throw readError(EACCES, path);
        return file;
    }

    std::filesystem::path m_path;
    std::ifstream m_file;
    std::uintmax_t m_size = 0;
    std::filesystem::file_time_type m_time;
};

#endif

InputFile::InputFile(std::string_view path)
    : m_path(path), m_source(std::make_unique<Source>(path)), m_bytesLeft(m_source->size())
{ }

InputFile::~InputFile() = default;

void InputFile::read(char* to, std::size_t count)
{
    peek(0, to, count);
    m_position += count;
    m_bytesLeft -= count;
}

void InputFile::peek(std::size_t offset, char* to, std::size_t count) const
{
    for (std::size_t done = 0; done < count;) {
        const std::size_t more =
            m_source->read(m_position + offset + done, to + done, count - done, m_path);
        if (more == 0)
            failAsChanged();
        done += more;
    }
}

void InputFile::requireUnchanged() const
{
    if (m_source->isChanged())
        failAsChanged();
}

void InputFile::failAsChanged() const
{
    throw RunTimeError(ErrorNumber::PathFileAccess, "InputFile",
                       shownPath(m_path) + " (another program changed it while it was read)");
}

FileBytes::FileBytes(std::string_view path)
{
    InputFile file(path);
    m_size = file.bytesLeft();
    try {
        m_buffer = std::make_unique_for_overwrite<char[]>(m_size);
    } catch (const std::bad_alloc&) {
        throw readError(ENOMEM, path);
    }
    file.read(m_buffer.get(), m_size);
    file.requireUnchanged();
}

} // namespace tarsil
