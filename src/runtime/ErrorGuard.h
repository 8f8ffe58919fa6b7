#pragma once

#include "runtime/ErrorReport.h"

#include <functional>
#include <string_view>

namespace tarsil {

class UserInterface;

/// Runs what the user asked for and turns a failure into the one report, a box titled "Error" that
/// names `module`. An exception that is no RunTimeError is reported as error 5 with its own text.
/// Returns whether all went well.
bool guarded(UserInterface& userInterface, std::string_view module,
             const std::function<void()>& action);

/// The same for a class that catches its own errors; the report names the class.
bool guarded(UserInterface& userInterface, ClassName className,
             const std::function<void()>& action);

} // namespace tarsil
