// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

namespace tarsil {

/// A new file with a free name in the folder of a target, open for writing. The destructor removes
/// it unless it was renamed; `removeTemporariesOnSignals` covers signals. Functions that return int
/// return an errno value, 0 for success.
class TemporaryFile
{
public:
    /// Who may read the file before `renameTo`: only its owner, or everyone who may read a new file
    /// in this folder.
    enum class Access { Private, Usual };

    explicit TemporaryFile(const std::filesystem::path& target);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    int open(Access access);

    /// Null unless the file is open.
    std::FILE* stream() const { return m_stream.get(); }

    /// Flushes all bytes to the disk.
    int flush();

    int close();

    /// Renames the closed file to `target` and replaces a file of that name.
    int renameTo(const std::filesystem::path& target);

private:
    struct Closer
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    int openNew(Access access);
    void forget();

    std::filesystem::path m_folder;
    std::filesystem::path m_path;
    std::size_t m_entry; ///< index in the list of files that a signal removes
    bool m_exists = false;
    std::unique_ptr<std::FILE, Closer> m_stream;
};

/// Call this in main. From then on SIGINT, SIGTERM and SIGHUP remove the temporary files of this
/// process before they end it, and exceeding the file size limit (SIGXFSZ) fails the write instead
/// of ending the process. Ignored signals stay ignored.
void removeTemporariesOnSignals();

/// Removes the user's own temporary files older than one day from a folder. They are left over from
/// killed runs.
void removeOldTemporaries(const std::filesystem::path& folder);

} // namespace tarsil
