// SPDX-License-Identifier: Apache-2.0
#include "base/files/TemporaryFile.h"

#include "base/files/TemporaryNames.h"

#include <cerrno>
#include <system_error>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

fs::path folderOf(const fs::path& target)
{
    return target.has_parent_path() ? target.parent_path() : fs::path(".");
}

} // namespace

TemporaryFile::TemporaryFile(const fs::path& target)
    : m_target(target), m_folder(folderOf(target)), m_entry(noTemporary)
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
        m_path = m_folder / temporaryName();
        m_entry = enterTemporary(m_path);
        code = openNew(access);
        m_exists = m_stream != nullptr;
        if (!m_exists)
            leaveTemporary(m_entry);
    }
    return code;
}

int TemporaryFile::flush()
{
    return std::fflush(m_stream.get()) == 0 ? flushToDisk() : errno;
}

int TemporaryFile::close()
{
    return std::fclose(m_stream.release()) == 0 ? 0 : errno;
}

int TemporaryFile::replaceTarget()
{
    const int code = renameToTarget();
    if (code != 0)
        return code;
    m_exists = false;
    leaveTemporary(m_entry);
    return 0;
}

void TemporaryFile::forget()
{
    if (!m_exists)
        return;
    std::error_code ignored;
    fs::remove(m_path, ignored);
    leaveTemporary(m_entry);
}

} // namespace tarsil
