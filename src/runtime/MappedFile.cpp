#include "runtime/MappedFile.h"

#include "runtime/PathNames.h"

#include <cerrno>
#include <cstddef>

#if __has_include(<sys/mman.h>)
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <fstream>
#include <sstream>
#endif

namespace tarsil {

#if __has_include(<sys/mman.h>)

namespace {

/// An open file that closes itself.
class OpenFile
{
public:
    // Not blocking, so that a pipe is refused as one instead of being waited for.
    explicit OpenFile(const char* path) : m_handle(::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    { }
    ~OpenFile()
    {
        if (m_handle >= 0)
            ::close(m_handle);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int handle() const { return m_handle; }

private:
    int m_handle;
};

} // namespace

MappedFile::MappedFile(std::string_view path)
{
    const OpenFile file(nativePath(path).c_str());
    struct stat status = {};
    if (file.handle() < 0 || ::fstat(file.handle(), &status) != 0)
        throw fileError(errno, "MappedFile", path);
    if (!S_ISREG(status.st_mode))
        throw fileError(S_ISDIR(status.st_mode) ? EISDIR : EINVAL, "MappedFile", path);
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size == 0)
        return;
    int flags = MAP_PRIVATE;
#ifdef MAP_POPULATE
    flags |= MAP_POPULATE;
#endif
    void* const address = ::mmap(nullptr, size, PROT_READ, flags, file.handle(), 0);
    if (address == MAP_FAILED) // NOLINT(performance-no-int-to-ptr)
        throw fileError(errno, "MappedFile", path);
    m_bytes = {static_cast<const char*>(address), size};
}

MappedFile::~MappedFile()
{
    if (!m_bytes.empty())
        ::munmap(const_cast<char*>(m_bytes.data()), m_bytes.size());
}

#else

MappedFile::MappedFile(std::string_view path)
{
    if (!fileExists(path))
        throw fileError(ENOENT, "MappedFile", path);
    std::ifstream file(nativePath(path), std::ios::binary);
    std::ostringstream contents;
    if (!file || (contents << file.rdbuf(), file.bad()))
        throw fileError(EACCES, "MappedFile", path);
    m_read = std::move(contents).str();
    m_bytes = m_read;
}

MappedFile::~MappedFile() = default;

#endif

} // namespace tarsil
