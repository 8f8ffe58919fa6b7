// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/files/AtomicFile.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tarsil {

/// Receives the bytes of a metafile.
class EmfSink
{
public:
    EmfSink() = default;
    virtual ~EmfSink();
    EmfSink(const EmfSink&) = delete;
    EmfSink& operator=(const EmfSink&) = delete;

    virtual void write(std::string_view bytes) = 0;

    /// Overwrites bytes already written, starting at `offset`.
    virtual void patch(std::size_t offset, std::string_view bytes) = 0;
};

/// A file that is written whole or not at all. Errors: those of `AtomicFile`.
class EmfFile : public EmfSink
{
public:
    explicit EmfFile(std::string_view path) : m_file(path) { }

    void write(std::string_view bytes) override;
    void patch(std::size_t offset, std::string_view bytes) override;

    /// Replaces the target by the finished file. Without it the old file stays.
    void commit();

private:
    AtomicFile m_file;
};

/// A metafile in memory, for the clipboard.
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
