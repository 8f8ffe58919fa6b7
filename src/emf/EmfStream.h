#pragma once

#include "emf/EmfRecord.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace tarsil {

class EmfSink;

/// Writes records one after the other, little-endian on every machine, through a buffer of fixed
/// size, and counts them. Only the first, the header, is written again at the end.
class EmfStream
{
public:
    static constexpr std::uint32_t mostBytes = std::numeric_limits<std::uint32_t>::max();

    /// `sink` must outlive the stream. What the sink raises goes through; more than `limit` bytes,
    /// by default all that the header can count, is error 6.
    explicit EmfStream(EmfSink& sink, std::uint32_t limit = mostBytes);

    void write(const EmfRecord& record);

    /// Empties the buffer and puts `header` in the place of the first record, which had its size.
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
