// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfSink.h"

namespace tarsil {

EmfSink::~EmfSink() = default;

void EmfFile::write(std::string_view bytes)
{
    m_file.write(bytes);
}

void EmfFile::patch(std::size_t offset, std::string_view bytes)
{
    m_file.patch(offset, bytes);
}

void EmfFile::commit()
{
    m_file.commit();
}

void EmfMemory::write(std::string_view bytes)
{
    m_bytes.append(bytes);
}

void EmfMemory::patch(std::size_t offset, std::string_view bytes)
{
    m_bytes.replace(offset, bytes.size(), bytes);
}

} // namespace tarsil
