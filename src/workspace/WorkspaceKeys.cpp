// SPDX-License-Identifier: Apache-2.0
#include "workspace/WorkspaceKeys.h"

namespace tarsil::workspacekeys {

std::string plotSection(std::size_t number)
{
    return "PLOT" + std::to_string(number);
}

std::string numbered(std::string_view key, std::size_t number)
{
    return std::string(key) + "(" + std::to_string(number) + ")";
}

} // namespace tarsil::workspacekeys
