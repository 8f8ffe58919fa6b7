#pragma once

#include "FaultInjector.h"
#include "support/TestFiles.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tarsil::test {

/// One way to write a file.
struct Writer
{
    /// The command that writes the file of this path.
    std::function<std::vector<std::string>(const std::string& target)> command;

    /// Of the file; a "*" in it is what only the program knows, such as the time of day. Its ending
    /// tells how two files are compared.
    std::string name;

    /// What there is before; empty where there is no file.
    std::string old = "the file that was there before\n";

    bool makesFile = true; ///< false when there must be one before

    /// Of a message about something else than writing, after which the new file may be there.
    std::string remark = {};
};

/// Tries a writer with a fault at each of its calls, until it meets none. After each the target is
/// the old file or the new one, whole; the status and the message say which; and nothing else is
/// left in its folder.
class FaultTrial
{
public:
    explicit FaultTrial(Writer writer);

    /// Fails a test expectation for each broken promise.
    void run();

private:
    void tryFaults(FaultKind kind, int error);
    RunResult runOnce(const Fault& fault);
    void judge(const RunResult& result, FaultKind kind);
    void judgeEnd(const RunResult& result);
    void judgeFolder(const RunResult& result);
    bool isOld() const;
    bool isNew() const;
    std::filesystem::path target() const;
    std::string knownName() const;

    Writer m_writer;
    TemporaryFolder m_folder;
    std::filesystem::path m_place; ///< the folder that is watched
    std::vector<CallKind> m_calls; ///< of the writer that meets no fault
    std::string m_good; ///< what is in a file that is whole
};

/// What is in a file apart from the time when it was made: the cells of a workbook, the bytes of
/// others. Empty for no file.
std::string lastingContents(const std::filesystem::path& file);

} // namespace tarsil::test
