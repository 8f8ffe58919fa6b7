#pragma once

#include <cstddef>
#include <string>

#include <sys/types.h>
#include <sys/user.h>

namespace tarsil::test {

/// What a system call does with a file.
enum class CallKind {
    Open,
    Read,
    Write,
    Sync,
    Rename,
    Close,
    Remove,
    Rights, ///< mode, owner, times and the like
    Look ///< at what a path or an open file is
};

/// Whether such a call makes, changes or renames files, as a full disk refuses.
bool changesFiles(CallKind kind);

/// How a system call names its file.
enum class CallOperand {
    Path,
    PathInFolder, ///< after the descriptor of a folder
    Descriptor,
    TwoPaths,
    TwoPathsInFolders
};

/// A system call that concerns files.
struct FileCall
{
    long number;
    CallKind kind;
    CallOperand operand;
    const char* name;
};

/// All that are met; `count` of them.
extern const FileCall fileCalls[];
extern const std::size_t fileCallCount;

/// The call of this number; null when it concerns no file.
const FileCall* fileCall(long number);

/// The files that a call of a stopped process names, each after a blank; empty for none.
std::string filesOf(pid_t process, const FileCall& call, const user_regs_struct& registers);

} // namespace tarsil::test
