#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace tarsil {

class FileLines;

/// The lines of an 8-bit text, one after the other, without copying any: each line is a view into
/// the text given, without its line end (LF or CR LF; the last line may lack it). A UTF-8 byte
/// order mark at the start is passed over.
class TextStream
{
public:
    /// `text` must outlive the stream; `name` is what errors call the file.
    TextStream(std::string_view text, std::string name);

    /// The same over a file, which must outlive the stream, too. A line is valid until the next one
    /// is read. Errors here and of `readLine`: those of `FileLines::next`.
    TextStream(FileLines& file, std::string name);

    bool atEndOfStream() const { return m_position >= m_text.size() && m_bytesBehind == 0; }

    /// The next line. Error 62 "Input past end of file" at the end; it names the file and the line.
    std::string_view readLine();

    /// Number of the line last read, counted from 1; 0 before the first.
    std::size_t lineNumber() const { return m_lineNumber; }

    /// What has not been read yet of a text that is in memory as a whole.
    std::string_view rest() const { return m_text.substr(m_position); }

    /// How many bytes have not been read yet.
    std::size_t bytesLeft() const { return m_text.size() - m_position + m_bytesBehind; }

    /// Whether there are only blanks, tabs and line ends in what has not been read yet. Errors as
    /// for `readLine`.
    bool onlyBlanksLeft() const;

    const std::string& name() const { return m_name; }

    /// "NAME, line N" for the line last read: the beginning of every error's details.
    std::string place() const;

private:
    void takeNextLines();
    void passOverByteOrderMark();

    FileLines* m_file = nullptr; ///< null when the text is in memory as a whole
    std::string_view m_text; ///< all of it, or some whole lines of the file
    std::size_t m_bytesBehind = 0; ///< of the file, after `m_text`
    std::string m_name;
    std::size_t m_position = 0;
    std::size_t m_lineNumber = 0;
};

// Inline, since it is called for every line of files of a million lines.
inline std::string_view TextStream::readLine()
{
    if (m_position >= m_text.size())
        takeNextLines();
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
