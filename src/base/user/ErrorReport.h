#pragma once

#include "base/user/RunTimeError.h"

#include <string>
#include <string_view>

namespace tarsil {

/// A class that catches its own errors, where otherwise a window or module does.
struct ClassName
{
    std::string_view name;
};

/// The text of the one error report, shown in a box titled "Error". `module` is the window or
/// module that caught the error.
std::string errorReport(const RunTimeError& error, std::string_view module);

/// The same report of an error that a class caught.
std::string errorReport(const RunTimeError& error, ClassName caughtBy);

} // namespace tarsil
