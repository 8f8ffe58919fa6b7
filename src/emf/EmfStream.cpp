// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfStream.h"

#include "base/user/RunTimeError.h"
#include "emf/EmfSink.h"

#include <string>
#include <string_view>

namespace tarsil {

namespace {

/// Stores a word with the lowest byte first.
void store(char* to, std::uint32_t word)
{
    to[0] = static_cast<char>(word & 0xFF);
    to[1] = static_cast<char>(word >> 8 & 0xFF);
    to[2] = static_cast<char>(word >> 16 & 0xFF);
    to[3] = static_cast<char>(word >> 24);
}

} // namespace

EmfStream::EmfStream(EmfSink& sink, std::uint32_t limit) : m_sink(sink), m_limit(limit) { }

void EmfStream::write(const EmfRecord& record)
{
    const std::size_t size = record.words().size_bytes();
    if (size > m_limit - m_byteCount)
        throw RunTimeError(ErrorNumber::Overflow, "MetafileContext",
                           "a metafile is limited to " + std::to_string(m_limit) + " bytes");
    append(record);
    m_byteCount += static_cast<std::uint32_t>(size);
    ++m_recordCount;
}

void EmfStream::finish(const EmfRecord& header)
{
    flush();
    std::string bytes(header.words().size_bytes(), '\0');
    char* next = bytes.data();
    for (const std::uint32_t word : header.words()) {
        store(next, word);
        next += sizeof word;
    }
    m_sink.patch(0, bytes);
}

void EmfStream::append(const EmfRecord& record)
{
    for (const std::uint32_t word : record.words()) {
        if (m_used == capacity)
            flush();
        store(m_buffer.data() + m_used, word);
        m_used += sizeof word;
    }
}

void EmfStream::flush()
{
    m_sink.write({m_buffer.data(), m_used});
    m_used = 0;
}

} // namespace tarsil
