// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/ErrorReport.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarsil {

class UserInterface;

/// Runs an action and returns the text of the error report when it fails, for a caller that shows
/// several failures together. An exception other than RunTimeError becomes error 5 with its own
/// text.
std::optional<std::string> reportOf(std::string_view module, const std::function<void()>& action);

/// Runs a command of the user. A failure is shown in a box titled "Error" that names `module`.
/// Returns whether the command succeeded.
bool guarded(UserInterface& userInterface, std::string_view module,
             const std::function<void()>& action);

/// The same for a class that catches its own errors; the report names the class.
bool guarded(UserInterface& userInterface, ClassName className,
             const std::function<void()>& action);

} // namespace tarsil
