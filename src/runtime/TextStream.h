#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace tarsil {

/// The lines of an 8-bit text, one after the other, without copying any: each line is a view into
/// the text given, without its line end (LF or CR LF; the last line may lack it). A UTF-8 byte
/// order mark at the start is passed over.
class TextStream
{
public:
    /// `text` must outlive the stream; `name` is what errors call the file.
    TextStream(std::string_view text, std::string name);

    bool atEndOfStream() const { return m_position >= m_text.size(); }

    /// The next line. Error 62 "Input past end of file" at the end; it names the file and the line.
    std::string_view readLine();

    /// Number of the line last read, counted from 1; 0 before the first.
    std::size_t lineNumber() const { return m_lineNumber; }

    /// What has not been read yet.
    std::string_view rest() const { return m_text.substr(m_position); }

    const std::string& name() const { return m_name; }

    /// "NAME, line N" for the line last read: the beginning of every error's details.
    std::string place() const;

private:
    [[noreturn]] void throwPastEnd() const;

    std::string_view m_text;
    std::string m_name;
    std::size_t m_position = 0;
    std::size_t m_lineNumber = 0;
};

// Inline, since it is called for every line of files of a million lines.
inline std::string_view TextStream::readLine()
{
    if (atEndOfStream())
        throwPastEnd();
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
