// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "FaultInjector.h"
#include "support/TestFiles.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tarsil::test {

/// A way to write a file.
struct Writer
{
    /// The command that writes the file `target`.
    std::function<std::vector<std::string>(const std::string& target)> command;

    /// The file name; "*" replaces what only the program knows, such as the time of day. The
    /// extension determines how two files are compared.
    std::string name;

    /// The old contents; empty for no file.
    std::string old = "the file that was there before\n";

    bool makesFile = true; ///< false when the file must exist before

    /// Part of a message that is not about writing; the new file may exist when it appears.
    std::string remark = {};

    /// The name of another file that the program keeps in the same folder.
    std::string neighbour = {};
};

/// Runs a writer with a fault at each of its system calls, until it meets none. After each run the
/// target must be the old or the new file, whole; status and message must say which; and nothing
/// else may be left in its folder.
class FaultTrial
{
public:
    explicit FaultTrial(Writer writer);

    /// Reports a test failure for each violation.
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
    std::filesystem::path m_place; ///< the watched folder
    std::vector<CallKind> m_calls; ///< those of the writer without a fault
    std::string m_good; ///< the contents of a complete file
};

/// The contents of a file without its time of creation: the cells of a workbook, the bytes of other
/// files. Empty for no file.
std::string lastingContents(const std::filesystem::path& file);

} // namespace tarsil::test
