#pragma once

#include "FileCall.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarsil::test {

/// What happens to one call of a program to the system.
enum class FaultKind {
    None, ///< the calls are only counted
    Fail, ///< the call is not made, and fails; a close is made, and says that it failed
    FailFromThen, ///< and so do all that write, make or rename, as on a full disk
    Shorten, ///< a call that writes or reads transfers one half, the others are made
    Kill, ///< the program ends before the call
    Meddle ///< before the call, something is done to the files
};

struct Fault
{
    FaultKind kind = FaultKind::None;
    std::size_t call = 0; ///< which one of those that concern the watched folder, from 1 on
    int error = 0; ///< the number that failing calls report
    std::function<void()> meddle;
};

/// How a program ended.
struct RunResult
{
    std::optional<int> status; ///< none when a signal ended it
    int signal = 0;
    std::string out;
    std::string err;
    std::vector<CallKind> calls; ///< those that concerned the watched folder
    std::string metCall; ///< the call that met the fault, and its files; empty when none did
};

/// Runs a program and does something to one of its calls to the system. It is asked about every
/// call, also those that libraries make, and counts those that name the watched folder or anything
/// in it.
class FaultInjector
{
public:
    /// Why this machine lets no program be watched; empty when it does.
    static std::string hindrance();

    /// `variables` are the whole environment, each as NAME=VALUE. Standard output and error go to
    /// files in `scratch`.
    FaultInjector(std::string watched, std::string scratch, std::vector<std::string> variables);

    RunResult run(const std::vector<std::string>& command, const Fault& fault) const;

private:
    std::string m_watched;
    std::string m_scratch;
    std::vector<std::string> m_variables;
};

} // namespace tarsil::test
