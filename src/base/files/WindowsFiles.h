// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

// What the Windows parts of this folder share. Only files whose names end in "Windows" and this one
// may include windows.h.

struct CloseWindowsHandle
{
    void operator()(void* handle) const;
};

/// An open file, folder or other object of the system; null if it could not be opened.
using WindowsHandle = std::unique_ptr<void, CloseWindowsHandle>;

/// Opens a file or folder as CreateFileW does, shared for all operations of other programs.
/// `access` and `disposition` are its parameters; GetLastError returns the reason of a failure.
WindowsHandle openHandle(const std::filesystem::path& path, unsigned long access,
                         unsigned long disposition);

/// The errno value for an error code of Windows.
int errnoOf(unsigned long code);

/// The errno value for GetLastError().
int lastErrno();

/// Whether the path names a symbolic link or a junction.
bool isLink(const std::filesystem::path& path);

/// UTF-8 to UTF-16. A malformed byte becomes U+FFFD.
std::wstring wideText(std::string_view text);

/// UTF-16 to UTF-8. An unpaired surrogate becomes U+FFFD.
std::string utf8Text(std::wstring_view text);

/// The access list of a file as a self-relative security descriptor; empty when it cannot be read.
std::vector<std::byte> accessListOf(const std::filesystem::path& path);

} // namespace tarsil
