#include "runtime/BusyStatus.h"

#include "runtime/UserInterface.h"

namespace tarsil {

BusyStatus::BusyStatus(UserInterface& userInterface, std::string_view text)
    : m_userInterface(userInterface)
{
    m_userInterface.showStatus(text);
}

BusyStatus::~BusyStatus()
{
    m_userInterface.showStatus(readyStatus);
}

} // namespace tarsil
