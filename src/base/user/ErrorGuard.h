#pragma once

#include "base/user/ErrorReport.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarsil {

class UserInterface;

/// Runs an action; the text of the report when it fails, for a caller that tells several failures
/// together, otherwise nothing. An exception that is no RunTimeError is error 5 with its own text.
std::optional<std::string> reportOf(std::string_view module, const std::function<void()>& action);

/// Runs what the user asked for and turns a failure into the one report, a box titled "Error" that
/// names `module`. Returns whether all went well.
bool guarded(UserInterface& userInterface, std::string_view module,
             const std::function<void()>& action);

/// The same for a class that catches its own errors; the report names the class.
bool guarded(UserInterface& userInterface, ClassName className,
             const std::function<void()>& action);

} // namespace tarsil
