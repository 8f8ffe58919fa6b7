// SPDX-License-Identifier: Apache-2.0
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
    Rights, ///< mode, owner, times etc.
    Look ///< queries a path or an open file
};

/// Whether calls of this kind create, change or rename files, which fails on a full disk.
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

/// All of them; their number is `fileCallCount`.
extern const FileCall fileCalls[];
extern const std::size_t fileCallCount;

/// The call of a number; null when it does not concern files.
const FileCall* fileCall(long number);

/// The files named by a call of a stopped process, each after a blank; empty for none.
std::string filesOf(pid_t process, const FileCall& call, const user_regs_struct& registers);

} // namespace tarsil::test
