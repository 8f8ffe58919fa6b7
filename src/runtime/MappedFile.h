#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// A file's bytes, mapped into memory for as long as this object lives: nothing is copied, and
/// nothing is kept beyond it. Where the platform maps no files, the bytes are read instead.
class MappedFile
{
public:
    /// `path` in stored or native form. Errors: 53 missing, 76 folder missing, 70 not readable,
    /// 75 a folder or anything else that is no plain file, 57 unreadable medium.
    explicit MappedFile(std::string_view path);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    std::string_view bytes() const { return m_bytes; }

private:
    std::string_view m_bytes;
    std::string m_read; ///< holds the bytes where they could not be mapped
};

} // namespace tarsil
