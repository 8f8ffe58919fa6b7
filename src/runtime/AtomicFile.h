#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace tarsil {

/// A file that is written whole or not at all: the bytes go into a temporary file in the same
/// folder, and `commit` puts it into the place of `path`. Without `commit`, or after an error, the
/// old file is as it was. Errors of every operation: 61 disk full, 70 not permitted (a read-only
/// file included), 75 a folder, device or pipe of that name, 76 folder missing, 57 broken medium.
class AtomicFile
{
public:
    explicit AtomicFile(std::string_view path);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    void write(std::string_view bytes);

    /// Replaces bytes that are already written, from `offset` on; what is written next still goes
    /// behind the last byte.
    void patch(std::size_t offset, std::string_view bytes);

    void commit();

private:
    struct Closer
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    [[noreturn]] void fail(int code) const;

    std::string m_path;
    std::filesystem::path m_target;
    std::filesystem::path m_temporary;
    std::unique_ptr<std::FILE, Closer> m_file;
};

/// Writes all bytes in one go.
void writeFile(std::string_view path, std::string_view bytes);

/// A free, short name for a temporary file in the folder of `target`.
std::filesystem::path temporaryName(const std::filesystem::path& target);

/// Puts a finished temporary file into the place of `path`; the temporary goes when that fails.
void replaceFile(const std::filesystem::path& temporary, std::string_view path);

} // namespace tarsil
