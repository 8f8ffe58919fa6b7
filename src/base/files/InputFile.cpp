// SPDX-License-Identifier: Apache-2.0
#include "base/files/InputFile.h"

#include "base/files/PathNames.h"

#include <cerrno>
#include <new>

namespace tarsil {

InputFile::InputFile(std::string_view path)
    : m_path(path), m_file(path), m_bytesLeft(m_file.version().size)
{ }

void InputFile::read(char* to, std::size_t count)
{
    peek(0, to, count);
    m_position += count;
    m_bytesLeft -= count;
}

void InputFile::peek(std::size_t offset, char* to, std::size_t count) const
{
    for (std::size_t done = 0; done < count;) {
        const std::size_t more =
            m_file.read(m_position + offset + done, to + done, count - done, m_path);
        if (more == 0)
            failAsChanged();
        done += more;
    }
}

void InputFile::requireUnchanged() const
{
    if (m_file.isChanged())
        failAsChanged();
}

void InputFile::failAsChanged() const
{
    throw RunTimeError(ErrorNumber::PathFileAccess, "InputFile",
                       shownPath(m_path) + " (another program changed it while it was read)");
}

FileBytes::FileBytes(std::string_view path)
{
    InputFile file(path);
    m_size = file.bytesLeft();
    try {
        m_buffer = std::make_unique_for_overwrite<char[]>(m_size);
    } catch (const std::bad_alloc&) {
        throw fileError(ENOMEM, "InputFile", path);
    }
    file.read(m_buffer.get(), m_size);
    file.requireUnchanged();
}

} // namespace tarsil
