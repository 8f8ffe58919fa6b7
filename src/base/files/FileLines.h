// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/files/InputFile.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace tarsil {

/// Reads a file in pieces of whole lines. Memory use is one piece, whatever the file size, and a
/// piece is still in the processor's cache when it is parsed.
class FileLines
{
public:
    static constexpr std::size_t usualPiece = 128 * 1024; ///< bytes
    static constexpr std::size_t longestLine = 64 * 1024 * 1024; ///< bytes

    /// Reads about `piece` bytes at a time. Errors: those of `InputFile`.
    explicit FileLines(std::string_view path, std::size_t piece = usualPiece);

    /// Returns the next whole lines with their line ends; only the last line of the file may lack
    /// one. Empty at the end of the file. Valid until the next call. Errors: those of reading an
    /// `InputFile`; 75 for a line longer than `longestLine`.
    std::string_view next();

    /// The number of bytes that `next` has not returned yet.
    std::size_t bytesLeft() const { return m_tailSize + m_file.bytesLeft(); }

    /// Whether the bytes that `next` has not returned yet are only blanks and line ends.
    bool onlyBlanksLeft() const;

    /// Raises error 75 when another program has changed the file since it was opened.
    void requireUnchanged() const { m_file.requireUnchanged(); }

private:
    void grow();

    std::string m_path;
    InputFile m_file;
    std::size_t m_capacity;
    std::unique_ptr<char[]> m_buffer;
    std::size_t m_tailStart = 0; ///< index in the buffer of an incomplete line
    std::size_t m_tailSize = 0;
};

} // namespace tarsil
