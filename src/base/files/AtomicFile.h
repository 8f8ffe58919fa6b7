// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/files/TemporaryFile.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace tarsil {

/// Writes a file whole or not at all. The bytes go to a temporary file in the same folder; `commit`
/// renames it to `path`. Without `commit`, or after an error, the old file is unchanged. The new
/// file gets the rights of the old one (`copyRights`); before the rename only its owner can read
/// it. A symbolic link is followed, even when the file it leads to does not exist yet (on Windows
/// that is error 53). The errors of every operation name `path`: 61 disk full, 70 not permitted
/// (also a read-only file, and on Windows one that another program has open), 75 `path` is a
/// folder, device or pipe, 76 folder missing, 57 input/output error.
class AtomicFile
{
public:
    explicit AtomicFile(std::string_view path);

    void write(std::string_view bytes);

    /// Overwrites bytes already written, starting at `offset`. The next `write` still appends.
    void patch(std::size_t offset, std::string_view bytes);

    void commit();

private:
    void failUnless(bool done) const;
    void failWith(int code) const;

    std::string m_path;
    std::filesystem::path m_target;
    TemporaryFile m_temporary;
};

/// Writes all bytes and commits.
void writeFile(std::string_view path, std::string_view bytes);

} // namespace tarsil
