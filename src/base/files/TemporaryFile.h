#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

namespace tarsil {

/// A new file in the folder of a target, open for writing, under a short name that is free. It is
/// removed with this object unless it was renamed; `removeTemporariesOnSignals` says what happens
/// when the program is ended meanwhile. Failures are returned as the platform's errno, 0 for none.
class TemporaryFile
{
public:
    /// Who may read the file until `renameTo`: its owner alone, or whoever may read a file that is
    /// made in this folder.
    enum class Access { Private, Usual };

    explicit TemporaryFile(const std::filesystem::path& target);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    int open(Access access);

    /// Only while it is open.
    std::FILE* stream() const { return m_stream.get(); }

    /// Hands all bytes over to the medium.
    int flush();

    int close();

    /// Gives the file, which is closed, the name of the target, whose file it replaces.
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
    std::size_t m_entry; ///< in the list of those that a signal removes
    bool m_exists = false;
    std::unique_ptr<std::FILE, Closer> m_stream;
};

/// From now on SIGINT, SIGTERM and SIGHUP remove the temporary files of this process before they
/// end it, and a file beyond the size limit (SIGXFSZ) is a failure of its writer and no end of the
/// process. Signals that are ignored stay so. For the main function of a program.
void removeTemporariesOnSignals();

/// Removes the user's own temporary files from a folder that are older than a day: runs that were
/// killed have left them.
void removeOldTemporaries(const std::filesystem::path& folder);

} // namespace tarsil
