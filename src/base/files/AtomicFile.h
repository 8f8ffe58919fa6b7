#pragma once

#include "base/files/TemporaryFile.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace tarsil {

/// A file that is written whole or not at all: the bytes go into a temporary file in the same
/// folder, and `commit` puts it into the place of `path`. Without `commit`, or after an error, the
/// old file is as it was. The new file has the rights of the old one (`copyRights`), and only its
/// owner can read it before it takes the name. A symbolic link is followed, also one to a file that
/// is not there yet. Errors of every operation name `path`: 61 disk full, 70 not permitted (a
/// read-only file included), 75 a folder, device or pipe of that name, 76 folder missing, 57 broken
/// medium.
class AtomicFile
{
public:
    explicit AtomicFile(std::string_view path);

    void write(std::string_view bytes);

    /// Replaces bytes that are already written, from `offset` on; what is written next still goes
    /// after the last byte.
    void patch(std::size_t offset, std::string_view bytes);

    void commit();

private:
    void failUnless(bool done) const;
    void failWith(int code) const;

    std::string m_path;
    std::filesystem::path m_target;
    TemporaryFile m_temporary;
};

/// Writes all bytes in one go.
void writeFile(std::string_view path, std::string_view bytes);

} // namespace tarsil
