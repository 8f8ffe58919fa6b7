// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "emf/EmfRecord.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace tarsil {

class EmfSink;

/// Writes records through a fixed-size buffer, little-endian on every machine, and counts them.
/// Only the header, the first record, is overwritten at the end.
class EmfStream
{
public:
    static constexpr std::uint32_t mostBytes = std::numeric_limits<std::uint32_t>::max();

    /// `sink` must outlive the stream; its exceptions pass through. Error 6 beyond `limit` bytes,
    /// by default the largest size that the header can express.
    explicit EmfStream(EmfSink& sink, std::uint32_t limit = mostBytes);

    void write(const EmfRecord& record);

    /// Flushes the buffer and overwrites the first record by `header`, which must have the same
    /// size.
    void finish(const EmfRecord& header);

    std::uint32_t byteCount() const { return m_byteCount; }
    std::uint32_t recordCount() const { return m_recordCount; }

private:
    static constexpr std::size_t capacity = 65536; // whole words

    void append(const EmfRecord& record);
    void flush();

    EmfSink& m_sink;
    std::uint32_t m_limit;
    std::uint32_t m_byteCount = 0;
    std::uint32_t m_recordCount = 0;
    std::size_t m_used = 0;
    std::array<char, capacity> m_buffer;
};

} // namespace tarsil
