#pragma once

#include <string_view>

namespace tarsil {

class UserInterface;

/// What the status bar says while nothing is going on.
constexpr std::string_view readyStatus = "Ready";

/// Shows a status text for as long as it lives, and "Ready" afterwards, after an error as well.
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
