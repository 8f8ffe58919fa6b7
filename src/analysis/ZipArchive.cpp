// SPDX-License-Identifier: Apache-2.0
#include "analysis/ZipArchive.h"

#include "base/user/RunTimeError.h"

#include <zip.h>

#include <algorithm>
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
    /// `progress` must outlive the writer.
    ZipWriter(std::string_view source, const Progress& progress);

    /// `bytes` must outlive the writer.
    void add(const ArchivePart& part);

    /// Empty after a stop.
    std::optional<std::string> finish();

private:
    void watch();
    static void look(zip_t* archive, double share, void* writer);
    static int isCancelled(zip_t* archive, void* writer);
    std::string takeBytes();
    [[noreturn]] void fail(zip_error_t& error) const;
    [[noreturn]] void failArchive() const { fail(*zip_get_error(m_archive.get())); }

    std::string_view m_name;
    const Progress& m_progress;
    bool m_isStopped = false;
    Source m_memory; ///< the archive's bytes
    Archive m_archive;
};

ZipWriter::ZipWriter(std::string_view source, const Progress& progress)
    : m_name(source), m_progress(progress)
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

/// Makes the library report while it compresses.
void ZipWriter::watch()
{
    constexpr double leastStep = 0; // looks after each piece that is written
    if (zip_register_progress_callback_with_state(m_archive.get(), leastStep, look, nullptr, this)
            != 0
        || zip_register_cancel_callback_with_state(m_archive.get(), isCancelled, nullptr, this)
            != 0)
        failArchive();
}

void ZipWriter::look(zip_t* /*archive*/, double share, void* writer)
{
    constexpr std::size_t steps = 1000;
    auto& self = *static_cast<ZipWriter*>(writer);
    const auto done = static_cast<std::size_t>(share * steps);
    self.m_isStopped = self.m_isStopped || !self.m_progress(std::min(done, steps - 1), steps);
}

int ZipWriter::isCancelled(zip_t* /*archive*/, void* writer)
{
    return static_cast<const ZipWriter*>(writer)->m_isStopped ? 1 : 0;
}

std::optional<std::string> ZipWriter::finish()
{
    if (m_progress)
        watch();
    const bool isClosed = zip_close(m_archive.get()) == 0;
    if (isClosed)
        static_cast<void>(m_archive.release()); // zip_close has freed it
    if (m_isStopped)
        return std::nullopt;
    if (!isClosed)
        failArchive();
    return takeBytes();
}

std::string ZipWriter::takeBytes()
{
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

std::optional<std::string> zipArchive(const std::vector<ArchivePart>& parts,
                                      std::string_view source, const Progress& progress)
{
    ZipWriter writer(source, progress);
    for (const ArchivePart& part : parts)
        writer.add(part);
    return writer.finish();
}

} // namespace tarsil
