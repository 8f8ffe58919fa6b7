// SPDX-License-Identifier: Apache-2.0
#include "base/files/FileRights.h"

#include "base/files/WindowsFiles.h"

#include <vector>

#include <io.h>
#include <windows.h>

namespace tarsil {

/// A failure is ignored: the file was created with these rights, as far as the system permits.
void copyRights(const std::filesystem::path& target, std::FILE* file)
{
    std::vector<std::byte> list = accessListOf(target);
    if (list.empty())
        return;
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    // Otherwise the system forgets that the entries come from the folder.
    if (GetSecurityDescriptorControl(list.data(), &control, &revision)
        && (control & SE_DACL_AUTO_INHERITED) != 0)
        SetSecurityDescriptorControl(list.data(), SE_DACL_AUTO_INHERIT_REQ,
                                     SE_DACL_AUTO_INHERIT_REQ);
    const auto written = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file)));
    constexpr DWORD all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE opened = ReOpenFile(written, WRITE_DAC, all, 0);
    if (opened == INVALID_HANDLE_VALUE)
        return;
    const WindowsHandle handle(opened);
    SetKernelObjectSecurity(handle.get(), DACL_SECURITY_INFORMATION, list.data());
}

} // namespace tarsil
