#pragma once

#include "base/files/InputFile.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace tarsil {

/// The lines of a file in pieces, so that a file of any size takes the memory of one piece, and
/// what is read is still in the processor's cache when it is used.
class FileLines
{
public:
    static constexpr std::size_t usualPiece = 128 * 1024; ///< bytes
    static constexpr std::size_t longestLine = 64 * 1024 * 1024; ///< bytes

    /// Reads about `piece` bytes at a time. Errors: those of `InputFile`.
    explicit FileLines(std::string_view path, std::size_t piece = usualPiece);

    /// The next lines, whole and with their line ends, which only the last line of the file may
    /// lack; nothing at the end of the file. They are valid until the next call. Errors: those of
    /// reading an `InputFile`; 75 for a line longer than `longestLine`.
    std::string_view next();

    /// How many bytes `next` has not given yet.
    std::size_t bytesLeft() const { return m_tailSize + m_file.bytesLeft(); }

    /// Whether there are only blanks and line ends in the bytes that `next` has not given yet.
    bool onlyBlanksLeft() const;

    /// Error 75 when another program has changed the file since it was opened.
    void requireUnchanged() const { m_file.requireUnchanged(); }

private:
    void grow();

    std::string m_path;
    InputFile m_file;
    std::size_t m_capacity;
    std::unique_ptr<char[]> m_buffer;
    std::size_t m_tailStart = 0; ///< in the buffer: the beginning of a line that goes on
    std::size_t m_tailSize = 0;
};

} // namespace tarsil
