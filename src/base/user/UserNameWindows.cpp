// SPDX-License-Identifier: Apache-2.0
#include "base/user/UserName.h"

#include "base/files/WindowsFiles.h"

#include <array>
#include <cstdlib>

#include <windows.h>

#include <lmcons.h>

namespace tarsil {

std::string userName()
{
    std::array<wchar_t, UNLEN + 1> name {};
    auto size = static_cast<DWORD>(name.size());
    if (GetUserNameW(name.data(), &size))
        return utf8Text(name.data());
    const wchar_t* const fromEnvironment = _wgetenv(L"USERNAME");
    return fromEnvironment == nullptr ? std::string() : utf8Text(fromEnvironment);
}

} // namespace tarsil
