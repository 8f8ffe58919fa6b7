// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <string_view>

namespace tarsil {

/// Equal for two moments between which no program has written to a file.
struct FileVersion
{
    std::size_t size = 0; ///< bytes
    std::time_t seconds = 0; ///< of the last modification, since 1970 UTC
    std::int64_t fraction = 0; ///< of that second, in the system's unit

    friend bool operator==(const FileVersion&, const FileVersion&) = default;
};

/// A file of the system, open for reading.
class OpenFile
{
public:
    /// `path` is in stored or native form. Errors: those of opening an `InputFile`.
    explicit OpenFile(std::string_view path);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// The version when the file was opened.
    const FileVersion& version() const { return m_version; }

    /// Reads at most `count` bytes from `position` on and returns their number: 0 at the end of the
    /// file. Errors, with `path`: 57 input/output error.
    std::size_t read(std::size_t position, char* to, std::size_t count,
                     std::string_view path) const;

    /// Whether another program has changed the file since it was opened.
    bool isChanged() const;

private:
    std::intptr_t m_handle; ///< the system's handle, -1 for none
    FileVersion m_version;
};

} // namespace tarsil
