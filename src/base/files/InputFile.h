#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace tarsil {

/// A file that is read from its start to its end, as long as it was when it was opened. It is read
/// and never mapped into memory: what another program does to it meanwhile is an error here, and
/// would be the end of this program there.
class InputFile
{
public:
    /// `path` in stored or native form. Errors: 53 missing, 76 folder missing, 70 not readable,
    /// 75 a folder or anything else that is no plain file, 57 unreadable medium.
    explicit InputFile(std::string_view path);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    /// How many bytes have not been read yet.
    std::size_t bytesLeft() const { return m_bytesLeft; }

    /// Reads the next bytes, at most as many as are left. Errors: 57 unreadable medium, 75 when the
    /// file has become shorter.
    void read(char* to, std::size_t count);

    /// Reads bytes from `offset` on, counted from the next one that has not been read, which stays
    /// the next one. Errors as for `read`.
    void peek(std::size_t offset, char* to, std::size_t count) const;

    /// Error 75 when another program has changed the file since it was opened, so that what was
    /// read may be of two files.
    void requireUnchanged() const;

private:
    class Source;

    [[noreturn]] void failAsChanged() const;

    std::string m_path;
    std::unique_ptr<Source> m_source; ///< the platform's file
    std::size_t m_position = 0;
    std::size_t m_bytesLeft = 0;
};

/// All bytes of a file, for as long as this object lives.
class FileBytes
{
public:
    /// Errors: those of `InputFile`, and 75 when there is no memory for so many bytes.
    explicit FileBytes(std::string_view path);

    std::string_view bytes() const { return {m_buffer.get(), m_size}; }

private:
    std::unique_ptr<char[]> m_buffer;
    std::size_t m_size = 0;
};

} // namespace tarsil
