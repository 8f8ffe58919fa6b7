// SPDX-License-Identifier: Apache-2.0
#include "base/user/BusyStatus.h"

#include "base/user/UserInterface.h"

#include <exception>

namespace tarsil {

BusyStatus::BusyStatus(UserInterface& userInterface, std::string_view text)
    : m_userInterface(userInterface)
{
    m_userInterface.showStatus(text);
}

BusyStatus::~BusyStatus()
{
    try {
        m_userInterface.showStatus(readyStatus);
    } catch (const std::exception&) {
        return; // out of memory: the old text stays
    }
}

} // namespace tarsil
