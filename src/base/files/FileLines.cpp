// SPDX-License-Identifier: Apache-2.0
#include "base/files/FileLines.h"

#include "base/files/PathNames.h"
#include "base/text/AsciiText.h"
#include "base/user/RunTimeError.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace tarsil {

FileLines::FileLines(std::string_view path, std::size_t piece)
    : m_path(path), m_file(path), m_capacity(std::min(piece, m_file.bytesLeft())),
      m_buffer(std::make_unique_for_overwrite<char[]>(m_capacity))
{ }

std::string_view FileLines::next()
{
    std::memmove(m_buffer.get(), m_buffer.get() + m_tailStart, m_tailSize);
    m_tailStart = 0;
    for (;;) {
        const std::size_t count = std::min(m_capacity - m_tailSize, m_file.bytesLeft());
        m_file.read(m_buffer.get() + m_tailSize, count);
        const std::string_view fresh(m_buffer.get() + m_tailSize, count);
        const std::size_t size = m_tailSize + count;
        m_tailSize = size;
        const std::size_t lineEnd = fresh.rfind('\n');
        if (m_file.bytesLeft() == 0)
            m_tailStart = size;
        else if (lineEnd != std::string_view::npos)
            m_tailStart = size - count + lineEnd + 1;
        m_tailSize = size - m_tailStart;
        if (m_tailStart > 0 || size == 0)
            return {m_buffer.get(), m_tailStart};
        grow();
    }
}

/// Enlarges the buffer for a line that does not fit.
void FileLines::grow()
{
    if (m_capacity >= longestLine)
        throw RunTimeError(ErrorNumber::PathFileAccess, "FileLines",
                           shownPath(m_path) + " (a line is longer than "
                               + std::to_string(longestLine) + " bytes)");
    const std::size_t capacity = std::max<std::size_t>(2 * m_capacity, 2);
    auto buffer = std::make_unique_for_overwrite<char[]>(capacity);
    std::memcpy(buffer.get(), m_buffer.get(), m_tailSize);
    m_buffer = std::move(buffer);
    m_capacity = capacity;
}

bool FileLines::onlyBlanksLeft() const
{
    if (!isBlankText({m_buffer.get() + m_tailStart, m_tailSize}))
        return false;
    std::array<char, 4096> bytes {};
    for (std::size_t offset = 0; offset < m_file.bytesLeft(); offset += bytes.size()) {
        const std::size_t count = std::min(bytes.size(), m_file.bytesLeft() - offset);
        m_file.peek(offset, bytes.data(), count);
        if (!isBlankText({bytes.data(), count}))
            return false;
    }
    return true;
}

} // namespace tarsil
