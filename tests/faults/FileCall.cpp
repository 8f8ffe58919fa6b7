// SPDX-License-Identifier: Apache-2.0
#include "FileCall.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/uio.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

namespace tarsil::test {

namespace {

using enum CallKind;
using enum CallOperand;

/// The target of a link in the process' folder of /proc.
std::string linkOf(pid_t process, const std::string& name)
{
    std::error_code failed;
    return std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/" + name, failed)
        .string();
}

/// A text in the memory of the process.
std::string textAt(pid_t process, unsigned long long address)
{
    constexpr std::size_t page = 4096;
    std::string text;
    std::array<char, page> bytes {};
    for (;;) {
        const std::size_t toPageEnd = page - static_cast<std::size_t>(address % page);
        iovec local {bytes.data(), toPageEnd};
        iovec remote {reinterpret_cast<void*>(address), toPageEnd}; // NOLINT: of another process
        const ssize_t read = ::process_vm_readv(process, &local, 1, &remote, 1, 0);
        if (read <= 0)
            return text;
        const auto* const last = bytes.begin() + read;
        const auto* const end = std::find(std::as_const(bytes).begin(), last, '\0');
        text.append(std::as_const(bytes).begin(), end);
        if (end != last)
            return text;
        address += static_cast<unsigned long long>(read);
    }
}

std::string descriptorPath(pid_t process, unsigned long long descriptor)
{
    const int handle = static_cast<int>(descriptor);
    if (handle == AT_FDCWD)
        return linkOf(process, "cwd");
    return handle < 0 ? std::string() : linkOf(process, "fd/" + std::to_string(handle));
}

std::string pathAt(pid_t process, unsigned long long folder, unsigned long long address)
{
    std::string text = textAt(process, address);
    if (text.starts_with('/'))
        return text;
    const std::string base = descriptorPath(process, folder);
    return text.empty() ? base : base + "/" + text;
}

} // namespace

const FileCall fileCalls[] = {
    {SYS_open, Open, Path, "open"},
    {SYS_openat, Open, PathInFolder, "openat"},
    {SYS_creat, Open, Path, "creat"},
    {SYS_read, Read, Descriptor, "read"},
    {SYS_pread64, Read, Descriptor, "pread64"},
    {SYS_readv, Read, Descriptor, "readv"},
    {SYS_getdents64, Read, Descriptor, "getdents64"},
    {SYS_write, Write, Descriptor, "write"},
    {SYS_pwrite64, Write, Descriptor, "pwrite64"},
    {SYS_writev, Write, Descriptor, "writev"},
    {SYS_copy_file_range, Write, Descriptor, "copy_file_range"},
    {SYS_sendfile, Write, Descriptor, "sendfile"},
    {SYS_ftruncate, Write, Descriptor, "ftruncate"},
    {SYS_fallocate, Write, Descriptor, "fallocate"},
    {SYS_lseek, Look, Descriptor, "lseek"},
    {SYS_fsync, Sync, Descriptor, "fsync"},
    {SYS_fdatasync, Sync, Descriptor, "fdatasync"},
    {SYS_rename, Rename, TwoPaths, "rename"},
    {SYS_renameat, Rename, TwoPathsInFolders, "renameat"},
    {SYS_renameat2, Rename, TwoPathsInFolders, "renameat2"},
    {SYS_link, Rename, TwoPaths, "link"},
    {SYS_linkat, Rename, TwoPathsInFolders, "linkat"},
    {SYS_close, Close, Descriptor, "close"},
    {SYS_unlink, Remove, Path, "unlink"},
    {SYS_unlinkat, Remove, PathInFolder, "unlinkat"},
    {SYS_mkdir, Rights, Path, "mkdir"},
    {SYS_mkdirat, Rights, PathInFolder, "mkdirat"},
    {SYS_chmod, Rights, Path, "chmod"},
    {SYS_fchmod, Rights, Descriptor, "fchmod"},
    {SYS_fchmodat, Rights, PathInFolder, "fchmodat"},
    {SYS_fchown, Rights, Descriptor, "fchown"},
    {SYS_fchownat, Rights, PathInFolder, "fchownat"},
    {SYS_fsetxattr, Rights, Descriptor, "fsetxattr"},
    {SYS_fgetxattr, Look, Descriptor, "fgetxattr"},
    {SYS_getxattr, Look, Path, "getxattr"},
    {SYS_access, Look, Path, "access"},
    {SYS_faccessat, Look, PathInFolder, "faccessat"},
    {SYS_faccessat2, Look, PathInFolder, "faccessat2"},
    {SYS_stat, Look, Path, "stat"},
    {SYS_lstat, Look, Path, "lstat"},
    {SYS_fstat, Look, Descriptor, "fstat"},
    {SYS_newfstatat, Look, PathInFolder, "newfstatat"},
    {SYS_statx, Look, PathInFolder, "statx"},
    {SYS_readlink, Look, Path, "readlink"},
    {SYS_readlinkat, Look, PathInFolder, "readlinkat"},
};

const std::size_t fileCallCount = std::size(fileCalls);

bool changesFiles(CallKind kind)
{
    return kind == Open || kind == Write || kind == Sync || kind == Rename;
}

const FileCall* fileCall(long number)
{
    const auto* const found =
        std::find_if(std::begin(fileCalls), std::end(fileCalls),
                     [number](const FileCall& c) { return c.number == number; });
    return found == std::end(fileCalls) ? nullptr : found;
}

std::string filesOf(pid_t process, const FileCall& call, const user_regs_struct& registers)
{
    const auto here = static_cast<unsigned long long>(AT_FDCWD);
    const auto path = [process](unsigned long long folder, unsigned long long address) {
        return " " + pathAt(process, folder, address);
    };
    switch (call.operand) {
    case Path:
        return path(here, registers.rdi);
    case PathInFolder:
        return path(registers.rdi, registers.rsi);
    case Descriptor:
        return " " + descriptorPath(process, registers.rdi);
    case TwoPaths:
        return path(here, registers.rdi) + path(here, registers.rsi);
    case TwoPathsInFolders:
        return path(registers.rdi, registers.rsi) + path(registers.rdx, registers.r10);
    }
    return {};
}

} // namespace tarsil::test
