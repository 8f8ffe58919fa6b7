// SPDX-License-Identifier: Apache-2.0
#include "base/files/AtomicFile.h"

#include "base/files/FileRights.h"
#include "base/files/FileTarget.h"
#include "base/files/PathNames.h"

#include <cerrno>
#include <cstdio>
#include <limits>
#include <system_error>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(int code, std::string_view path)
{
    throw fileError(code, "AtomicFile", path);
}

/// Refuses a target that the rename would silently replace: a folder, a device, or a file that
/// cannot be written. Checks the path as given, so that the system applies its own rules for
/// symbolic links. Returns whether the file exists.
bool checkTarget(std::string_view path)
{
    std::error_code failed;
    const fs::path target = nativePath(path);
    const fs::file_status status = fs::status(target, failed);
    if (status.type() == fs::file_type::not_found)
        return false;
    if (!fs::status_known(status))
        fail(failed.default_error_condition().value(), path);
    if (fs::is_directory(status))
        fail(EISDIR, path);
    if (!fs::is_regular_file(status)) // a device or a pipe would be replaced instead of written to
        fail(EINVAL, path);
    constexpr auto anyWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if ((status.permissions() & anyWrite) == fs::perms::none)
        fail(EACCES, path);
    requireWritable(target, path);
    return true;
}

/// Raises the error for a temporary file that cannot be created. The folder is at fault, not
/// `path`.
[[noreturn]] void failInFolder(int code, const fs::path& target, std::string_view path)
{
    const std::string file = shownPath(path);
    if (code == ENOENT || code == ENOTDIR)
        throw RunTimeError(ErrorNumber::PathNotFound, "AtomicFile", file);
    if (code != EACCES && code != EPERM && code != EROFS)
        fail(code, path);
    const fs::path folder = target.parent_path();
    throw RunTimeError(ErrorNumber::PermissionDenied, "AtomicFile",
                       file + " (the folder " + (folder.empty() ? "." : systemText(folder))
                           + " may not be written)");
}

} // namespace

AtomicFile::AtomicFile(std::string_view path)
    : m_path(path), m_target(targetOf(path)), m_temporary(m_target)
{
    // Until the rename, nobody may read more than the rights of the old file allow.
    const auto access =
        checkTarget(path) ? TemporaryFile::Access::Private : TemporaryFile::Access::Usual;
    if (const int code = m_temporary.open(access); code != 0)
        failInFolder(code, m_target, path);
}

void AtomicFile::write(std::string_view bytes)
{
    if (bytes.empty())
        return; // the data pointer may be null, which fwrite does not allow
    errno = 0;
    failUnless(std::fwrite(bytes.data(), 1, bytes.size(), m_temporary.stream()) == bytes.size());
}

void AtomicFile::patch(std::size_t offset, std::string_view bytes)
{
    errno = 0;
    failUnless(offset <= std::numeric_limits<long>::max()
               && std::fseek(m_temporary.stream(), static_cast<long>(offset), SEEK_SET) == 0);
    write(bytes);
    failUnless(std::fseek(m_temporary.stream(), 0, SEEK_END) == 0);
}

/// Nothing fails after the rename: after an error the old file is still there.
void AtomicFile::commit()
{
    removeOldTemporaries(m_target.parent_path());
    if (checkTarget(m_path))
        copyRights(m_target, m_temporary.stream());
    failWith(m_temporary.flush());
    failWith(m_temporary.close());
    const int code = m_temporary.replaceTarget();
    if (code == EACCES || code == EROFS)
        failInFolder(code, m_target, m_path);
    failWith(code);
}

void AtomicFile::failUnless(bool done) const
{
    if (!done)
        fail(errno != 0 ? errno : EIO, m_path);
}

void AtomicFile::failWith(int code) const
{
    if (code != 0)
        fail(code, m_path);
}

void writeFile(std::string_view path, std::string_view bytes)
{
    AtomicFile file(path);
    file.write(bytes);
    file.commit();
}

} // namespace tarsil
