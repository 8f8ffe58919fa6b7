// SPDX-License-Identifier: Apache-2.0
#include "analysis/ZipArchive.h"

#include "base/user/RunTimeError.h"

#include <zip.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

namespace tarsil {

namespace {

constexpr std::uint16_t midnight = 0;
constexpr std::uint16_t firstDay = 1 << 5 | 1; ///< 1 January 1980, the first date of the format

struct SourceFree
{
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};
struct Discard
{
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Source = std::unique_ptr<zip_source_t, SourceFree>;
using Archive = std::unique_ptr<zip_t, Discard>;

/// Builds one archive in memory.
class ZipWriter
{
public:
    explicit ZipWriter(std::string_view source);

    /// `bytes` must outlive the writer.
    void add(const ArchivePart& part);

    std::string finish();

private:
    [[noreturn]] void fail(zip_error_t& error) const;
    [[noreturn]] void failArchive() const { fail(*zip_get_error(m_archive.get())); }

    std::string_view m_name;
    Source m_memory; ///< the archive's bytes
    Archive m_archive;
};

ZipWriter::ZipWriter(std::string_view source) : m_name(source)
{
    zip_error_t error {};
    zip_error_init(&error);
    m_memory.reset(zip_source_buffer_create(nullptr, 0, 0, &error));
    if (!m_memory)
        fail(error);
    m_archive.reset(zip_open_from_source(m_memory.get(), ZIP_TRUNCATE, &error));
    if (!m_archive)
        fail(error);
    zip_source_keep(m_memory.get()); // shared: closing the archive releases its reference
}

void ZipWriter::add(const ArchivePart& part)
{
    Source content(zip_source_buffer(m_archive.get(), part.bytes.data(), part.bytes.size(), 0));
    if (!content)
        failArchive();
    const zip_int64_t index =
        zip_file_add(m_archive.get(), part.name.c_str(), content.get(), ZIP_FL_ENC_UTF_8);
    if (index < 0)
        failArchive();
    static_cast<void>(content.release()); // the archive owns it now
    const auto entry = static_cast<zip_uint64_t>(index);
    if (!part.isCompressed
        && zip_set_file_compression(m_archive.get(), entry, ZIP_CM_STORE, 0) != 0)
        failArchive();
    if (zip_file_set_dostime(m_archive.get(), entry, midnight, firstDay, 0) != 0)
        failArchive();
}

std::string ZipWriter::finish()
{
    if (zip_close(m_archive.get()) != 0)
        failArchive();
    static_cast<void>(m_archive.release()); // zip_close has freed it
    zip_source_t* const memory = m_memory.get();
    zip_stat_t status {};
    if (zip_source_open(memory) != 0 || zip_source_stat(memory, &status) != 0)
        fail(*zip_source_error(memory));
    std::string bytes(static_cast<std::size_t>(status.size), '\0');
    const zip_int64_t read = zip_source_read(memory, bytes.data(), bytes.size());
    if (read < 0 || static_cast<std::size_t>(read) != bytes.size())
        fail(*zip_source_error(memory));
    zip_source_close(memory);
    return bytes;
}

void ZipWriter::fail(zip_error_t& error) const
{
    if (zip_error_code_zip(&error) == ZIP_ER_MEMORY)
        throw std::bad_alloc();
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, std::string(m_name),
                       zip_error_strerror(&error));
}

} // namespace

std::string zipArchive(const std::vector<ArchivePart>& parts, std::string_view source)
{
    ZipWriter writer(source);
    for (const ArchivePart& part : parts)
        writer.add(part);
    return writer.finish();
}

} // namespace tarsil
