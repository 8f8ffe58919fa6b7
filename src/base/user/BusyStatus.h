// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace tarsil {

class UserInterface;

/// The status bar text while no operation runs.
constexpr std::string_view readyStatus = "Ready";

/// Shows a status text while it exists, and "Ready" afterwards, also after an error.
class BusyStatus
{
public:
    BusyStatus(UserInterface& userInterface, std::string_view text);
    ~BusyStatus();
    BusyStatus(const BusyStatus&) = delete;
    BusyStatus& operator=(const BusyStatus&) = delete;

private:
    UserInterface& m_userInterface;
};

} // namespace tarsil
