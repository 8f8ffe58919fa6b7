// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "FileCall.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarsil::test {

/// What happens to one system call of a program.
enum class FaultKind {
    None, ///< calls are only counted
    Fail, ///< the call is not executed and fails; a close is executed and fails
    FailFromThen, ///< also all later calls that write, create or rename, as on a full disk
    Shorten, ///< a write or read transfers half of its bytes; other calls are executed
    Kill, ///< the program is killed before the call
    Meddle ///< an action changes files before the call
};

struct Fault
{
    FaultKind kind = FaultKind::None;
    std::size_t call =
        0; ///< the number of the call, from 1, among those that concern the watched folder
    int error = 0; ///< errno of failing calls
    std::function<void()> meddle;
};

/// How a program ended.
struct RunResult
{
    std::optional<int> status; ///< empty when a signal ended it
    int signal = 0;
    std::string out;
    std::string err;
    std::vector<CallKind> calls; ///< the calls that concerned the watched folder
    std::string metCall; ///< the call that met the fault, and its files; empty for none
};

/// Runs a program with a fault at one of its system calls. Traces every call, also those of
/// libraries, and counts those that name the watched folder or anything in it.
class FaultInjector
{
public:
    /// Why programs cannot be traced on this machine; empty when they can.
    static std::string hindrance();

    /// `variables` is the whole environment, each as NAME=VALUE. Standard output and error go to
    /// files in `scratch`.
    FaultInjector(std::string watched, std::string scratch, std::vector<std::string> variables);

    RunResult run(const std::vector<std::string>& command, const Fault& fault) const;

private:
    std::string m_watched;
    std::string m_scratch;
    std::vector<std::string> m_variables;
};

} // namespace tarsil::test
