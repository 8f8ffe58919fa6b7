// SPDX-License-Identifier: Apache-2.0
#include "FaultInjector.h"

#include "FileCall.h"
#include "support/TestFiles.h"

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <set>

namespace tarsil::test {

namespace {

constexpr int cannotStart = 126; // exit status of a child that cannot be traced
constexpr int exitOfCall = SIGTRAP | 0x80; // the stop signal with PTRACE_O_TRACESYSGOOD

/// Stops the process only at system calls that concern files.
std::vector<sock_filter> callFilter()
{
    std::vector<sock_filter> filter {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (std::size_t i = 0; i < fileCallCount; ++i)
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K,
                                  static_cast<unsigned>(fileCalls[i].number),
                                  static_cast<unsigned char>(fileCallCount - i), 0));
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE));
    return filter;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

void sendTo(const std::string& path, int descriptor)
{
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (file < 0 || ::dup2(file, descriptor) < 0)
        ::_exit(cannotStart);
    ::close(file);
}

/// What all runs of a command share.
struct Command
{
    std::vector<std::string> words;
    std::vector<std::string> variables;
    std::string out;
    std::string err;
};

[[noreturn]] void becomeProgram(Command& command)
{
    std::vector<sock_filter> filter = callFilter();
    const sock_fprog program {static_cast<unsigned short>(filter.size()), filter.data()};
    const std::vector<char*> words = pointersTo(command.words);
    const std::vector<char*> variables = pointersTo(command.variables);
    sendTo(command.out, STDOUT_FILENO);
    sendTo(command.err, STDERR_FILENO);
    if (::prctl(PR_SET_PDEATHSIG, SIGKILL) != 0 || ::ptrace(PTRACE_TRACEME, 0, 0, 0) != 0)
        ::_exit(cannotStart);
    ::raise(SIGSTOP);
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0
        || ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0)
        ::_exit(cannotStart);
    ::execve(words.front(), words.data(), variables.data());
    ::_exit(cannotStart);
}

/// Traces a program from start to end.
class Watcher
{
public:
    Watcher(const std::string& watched, const Fault& fault) : m_watched(watched), m_fault(fault) { }

    RunResult follow(pid_t program);

private:
    void meet(pid_t process);
    bool isMet(const FileCall& call) const;
    void apply(pid_t process, const FileCall& call, user_regs_struct& registers);
    void failNow(pid_t process, user_regs_struct& registers) const;
    void goOn(pid_t process, int status);

    const std::string& m_watched;
    const Fault& m_fault;
    RunResult m_result;
    std::set<pid_t> m_failAtExit; ///< processes in a call that is executed and then fails
};

bool Watcher::isMet(const FileCall& call) const
{
    if (m_fault.kind == FaultKind::FailFromThen)
        return m_result.calls.size() >= m_fault.call && changesFiles(call.kind);
    return m_fault.kind != FaultKind::None && m_result.calls.size() == m_fault.call;
}

void Watcher::meet(pid_t process)
{
    user_regs_struct registers {};
    if (::ptrace(PTRACE_GETREGS, process, 0, &registers) != 0)
        return;
    const FileCall* const call = fileCall(static_cast<long>(registers.orig_rax));
    if (call == nullptr)
        return;
    const std::string files = filesOf(process, *call, registers);
    const std::size_t start = files.find(" " + m_watched);
    const std::size_t end = start + 1 + m_watched.size();
    if (start == std::string::npos
        || (end < files.size() && files[end] != '/' && files[end] != ' '))
        return;
    m_result.calls.push_back(call->kind);
    if (!isMet(*call))
        return;
    if (m_result.metCall.empty())
        m_result.metCall = call->name + files;
    apply(process, *call, registers);
}

void Watcher::apply(pid_t process, const FileCall& call, user_regs_struct& registers)
{
    switch (m_fault.kind) {
    case FaultKind::None:
        break;
    case FaultKind::Fail:
    case FaultKind::FailFromThen:
        if (call.kind == CallKind::Close)
            m_failAtExit.insert(process);
        else
            failNow(process, registers);
        break;
    case FaultKind::Shorten:
        // Half of the bytes, or of the buffers of a call.
        if ((call.kind == CallKind::Write || call.kind == CallKind::Read)
            && call.operand == CallOperand::Descriptor && registers.rdx > 1) {
            registers.rdx /= 2;
            ::ptrace(PTRACE_SETREGS, process, 0, &registers);
        }
        break;
    case FaultKind::Kill:
        ::kill(process, SIGKILL);
        break;
    case FaultKind::Meddle:
        m_fault.meddle();
        break;
    }
}

void Watcher::failNow(pid_t process, user_regs_struct& registers) const
{
    registers.orig_rax = static_cast<unsigned long long>(-1); // skips the call
    registers.rax = static_cast<unsigned long long>(-static_cast<long long>(m_fault.error));
    ::ptrace(PTRACE_SETREGS, process, 0, &registers);
}

void Watcher::goOn(pid_t process, int status)
{
    const int signal = WSTOPSIG(status);
    const int event = status >> 16;
    if (event == PTRACE_EVENT_SECCOMP) {
        meet(process);
        const bool stopsAtExit = m_failAtExit.contains(process);
        ::ptrace(stopsAtExit ? PTRACE_SYSCALL : PTRACE_CONT, process, 0, 0);
    } else if (signal == exitOfCall) {
        user_regs_struct registers {};
        ::ptrace(PTRACE_GETREGS, process, 0, &registers);
        if (m_failAtExit.erase(process) > 0)
            failNow(process, registers);
        ::ptrace(PTRACE_CONT, process, 0, 0);
    } else {
        const bool isOfTrace = event != 0 || signal == SIGSTOP || signal == SIGTRAP;
        ::ptrace(PTRACE_CONT, process, 0, isOfTrace ? 0 : signal);
    }
}

RunResult Watcher::follow(pid_t program)
{
    int status = 0;
    if (::waitpid(program, &status, 0) == program && WIFSTOPPED(status)) {
        ::ptrace(PTRACE_SETOPTIONS, program, 0,
                 PTRACE_O_TRACESECCOMP | PTRACE_O_TRACECLONE | PTRACE_O_TRACEFORK
                     | PTRACE_O_TRACEVFORK | PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD);
        ::ptrace(PTRACE_CONT, program, 0, 0);
        for (pid_t process = ::waitpid(-1, &status, __WALL);
             process > 0 && (process != program || WIFSTOPPED(status));
             process = ::waitpid(-1, &status, __WALL)) {
            if (WIFSTOPPED(status))
                goOn(process, status);
        }
    }
    if (WIFEXITED(status))
        m_result.status = WEXITSTATUS(status);
    else
        m_result.signal = WTERMSIG(status);
    return m_result;
}

} // namespace

FaultInjector::FaultInjector(std::string watched, std::string scratch,
                             std::vector<std::string> variables)
    : m_watched(std::move(watched)), m_scratch(std::move(scratch)),
      m_variables(std::move(variables))
{ }

RunResult FaultInjector::run(const std::vector<std::string>& command, const Fault& fault) const
{
    Command made {command, m_variables, m_scratch + "/out", m_scratch + "/err"};
    const pid_t program = ::fork();
    if (program == 0)
        becomeProgram(made);
    RunResult result = Watcher(m_watched, fault).follow(program);
    result.out = fileBytes(made.out);
    result.err = fileBytes(made.err);
    return result;
}

std::string FaultInjector::hindrance()
{
    const TemporaryFolder folder;
    const std::string inside = folder.path() / "inside";
    const FaultInjector injector(inside, folder.path().string(), {});
    const RunResult result = injector.run({"/usr/bin/test", "-e", inside}, {});
    return result.status == 1 && !result.calls.empty()
        ? std::string()
        : "this machine does not let one program watch the system calls of another";
}

} // namespace tarsil::test
