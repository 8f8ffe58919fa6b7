#pragma once

#include "base/files/AtomicFile.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tarsil {

/// Where the bytes of a metafile go.
class EmfSink
{
public:
    EmfSink() = default;
    virtual ~EmfSink();
    EmfSink(const EmfSink&) = delete;
    EmfSink& operator=(const EmfSink&) = delete;

    virtual void write(std::string_view bytes) = 0;

    /// Replaces bytes that are already written, from `offset` on.
    virtual void patch(std::size_t offset, std::string_view bytes) = 0;
};

/// A file that is written whole or not at all; errors are those of AtomicFile.
class EmfFile : public EmfSink
{
public:
    explicit EmfFile(std::string_view path) : m_file(path) { }

    void write(std::string_view bytes) override;
    void patch(std::size_t offset, std::string_view bytes) override;

    /// Puts the finished file into its place. Without it the old file stays.
    void commit();

private:
    AtomicFile m_file;
};

/// A metafile in memory, as the clipboard takes it.
class EmfMemory : public EmfSink
{
public:
    const std::string& bytes() const { return m_bytes; }

    void write(std::string_view bytes) override;
    void patch(std::size_t offset, std::string_view bytes) override;

private:
    std::string m_bytes;
};

} // namespace tarsil
