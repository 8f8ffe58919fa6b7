// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>

namespace tarsil {

/// A new file with a free name in the folder of a target, open for writing. The destructor removes
/// it unless it has replaced the target; `removeTemporariesOnSignals` covers signals. Functions
/// that return int return an errno value, 0 for success.
class TemporaryFile
{
public:
    /// Who may read the file before `replaceTarget`: only its owner (on Windows at most those who
    /// may read the target), or everyone who may read a new file in this folder.
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

    /// Renames the closed file to the target, which it replaces in one step.
    int replaceTarget();

private:
    struct Closer
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    // The parts that differ between systems.
    int openNew(Access access);
    int flushToDisk();
    int renameToTarget();

    void forget();

    std::filesystem::path m_target;
    std::filesystem::path m_folder;
    std::filesystem::path m_path;
    std::size_t m_entry; ///< index in the list of temporary files
    bool m_exists = false;
    std::unique_ptr<std::FILE, Closer> m_stream;
};

/// Call this in main. From then on SIGINT, SIGTERM and SIGHUP remove the temporary files of this
/// process before they end it, and exceeding the file size limit (SIGXFSZ) fails the write instead
/// of ending the process. Ignored signals stay ignored. On Windows the same holds when Ctrl+C or
/// Ctrl+Break is pressed in the console, the console is closed, or the user logs off.
void removeTemporariesOnSignals();

/// Removes the user's own temporary files older than one day from a folder. They are left over from
/// killed runs.
void removeOldTemporaries(const std::filesystem::path& folder);

} // namespace tarsil
