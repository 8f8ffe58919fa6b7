// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLockFile>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tarsil {

class Document;

/// A copy of what the user has not saved, in a file of its own, from which the next start of the
/// program can bring it back when this one ends by a crash or a power cut. Each running program has
/// its own copy and holds a lock beside it; a copy whose program has ended is abandoned.
class RecoveryCopy
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Clock = std::function<Time()>;

    /// `folder` is where the copies of all programs of the user are; it is made when it is needed.
    explicit RecoveryCopy(std::string folder, Clock now = std::chrono::steady_clock::now);

    /// A file that a program left behind which did not end properly; none when there is none. It is
    /// this program's copy from now on.
    std::optional<std::string> takeOver();

    /// Writes the copy when the document differs from what was saved and the last copy is at least
    /// a minute old; removes it when nothing differs. Called after each command. Errors: those of
    /// writing a file; the old copy stays then.
    void follow(const Document& document);

    /// Removes the copy: what it holds is saved, or is not wanted any more.
    void remove();

    /// Leaves the copy to the next start of a program.
    void release();

private:
    bool lock(const std::string& path);

    std::string m_folder;
    Clock m_now;
    std::string m_path; ///< of the copy; empty while there is none
    std::unique_ptr<QLockFile> m_lock;
    std::optional<Time> m_written;
};

} // namespace tarsil
