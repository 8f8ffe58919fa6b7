#pragma once

#include <ctime>
#include <string>

namespace tarsil {

/// A date and time as a workspace keeps it, whatever the locale: "07-Mar-2024 14:05:31".
std::string workspaceDate(const std::tm& time);

} // namespace tarsil
