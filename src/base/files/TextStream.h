// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace tarsil {

class FileLines;

/// Reads an 8-bit text line by line without copying it. A line is a view into the text without its
/// line end (LF or CR LF; the last line may lack it). A UTF-8 byte order mark at the start is
/// skipped.
class TextStream
{
public:
    /// `text` must outlive the stream. `name` is the file name used in errors.
    TextStream(std::string_view text, std::string name);

    /// Reads the lines of `file`, which must outlive the stream. A line is valid until the next one
    /// is read. Errors here and in `readLine`: those of `FileLines::next`.
    TextStream(FileLines& file, std::string name);

    bool atEndOfStream() const { return m_position >= m_text.size() && m_bytesAfter == 0; }

    /// Returns the next line. Error 62 "Input past end of file" at the end; it names file and line.
    std::string_view readLine();

    /// The number of the line last read, counted from 1; 0 before the first.
    std::size_t lineNumber() const { return m_lineNumber; }

    /// The unread part of a text that is in memory as a whole.
    std::string_view rest() const { return m_text.substr(m_position); }

    /// The number of unread bytes.
    std::size_t bytesLeft() const { return m_text.size() - m_position + m_bytesAfter; }

    /// Whether the unread rest is only blanks, tabs and line ends. Errors: as for `readLine`.
    bool onlyBlanksLeft() const;

    const std::string& name() const { return m_name; }

    /// "NAME, line N" for the line last read: the start of the details of an error.
    std::string location() const;

private:
    void readNextPiece();
    void skipByteOrderMark();

    FileLines* m_file = nullptr; ///< null when the text is in memory as a whole
    std::string_view m_text; ///< the whole text, or the current piece of the file
    std::size_t m_bytesAfter = 0; ///< bytes of the file after `m_text`
    std::string m_name;
    std::size_t m_position = 0;
    std::size_t m_lineNumber = 0;
};

// Inline because readers call it for each of millions of lines.
inline std::string_view TextStream::readLine()
{
    if (m_position >= m_text.size())
        readNextPiece();
    const char* const start = m_text.data() + m_position;
    const std::size_t left = m_text.size() - m_position;
    const void* const lineEnd = std::memchr(start, '\n', left);
    std::size_t length = left;
    if (lineEnd != nullptr) {
        length = static_cast<std::size_t>(static_cast<const char*>(lineEnd) - start);
        m_position += length + 1;
    } else {
        m_position = m_text.size();
    }
    ++m_lineNumber;
    if (length > 0 && start[length - 1] == '\r')
        --length;
    return {start, length};
}

} // namespace tarsil
