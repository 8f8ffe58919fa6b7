// SPDX-License-Identifier: Apache-2.0
#include "base/user/UserName.h"

#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

namespace tarsil {

std::string userName()
{
    if (const passwd* const account = getpwuid(geteuid()))
        return account->pw_name;
    for (const char* const variable : {"USER", "USERNAME"}) {
        if (const char* const name = std::getenv(variable))
            return name;
    }
    return {};
}

} // namespace tarsil
