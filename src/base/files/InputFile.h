// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/files/OpenFile.h"

#include <cstddef>
#include <ctime>
#include <memory>
#include <string>
#include <string_view>

namespace tarsil {

/// Reads a file sequentially. The length is fixed when the file is opened. The file is read and
/// never memory-mapped: if another program truncates it meanwhile, reading raises an error, where
/// an access to mapped memory would end this program.
class InputFile
{
public:
    /// `path` is in stored or native form. Errors: 53 missing, 76 folder missing, 70 not readable,
    /// 75 not a regular file, 57 input/output error.
    explicit InputFile(std::string_view path);

    /// The number of bytes that have not been read yet.
    std::size_t bytesLeft() const { return m_bytesLeft; }

    /// Reads the next `count` bytes; `count` is at most `bytesLeft()`. Errors: 57 input/output
    /// error, 75 the file has become shorter.
    void read(char* to, std::size_t count);

    /// Reads `count` bytes that begin `offset` bytes after the read position, and does not move
    /// that position. Errors: as for `read`.
    void peek(std::size_t offset, char* to, std::size_t count) const;

    /// Raises error 75 when another program has changed the file since it was opened: the bytes
    /// read may be a mix of two versions. On Windows a change that keeps the size is seen once the
    /// other program has closed the file.
    void requireUnchanged() const;

    /// The time of the last modification before the file was opened.
    std::time_t modified() const { return m_file.version().seconds; }

private:
    [[noreturn]] void failAsChanged() const;

    std::string m_path;
    OpenFile m_file;
    std::size_t m_position = 0;
    std::size_t m_bytesLeft = 0;
};

/// The contents of a file, read into memory.
class FileBytes
{
public:
    /// Errors: those of `InputFile`, and 75 when memory does not suffice.
    explicit FileBytes(std::string_view path);

    std::string_view bytes() const { return {m_buffer.get(), m_size}; }

private:
    std::unique_ptr<char[]> m_buffer;
    std::size_t m_size = 0;
};

} // namespace tarsil
