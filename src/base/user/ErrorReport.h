// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/RunTimeError.h"

#include <string>
#include <string_view>

namespace tarsil {

/// A class that catches its own errors. Other errors are caught by a window or module.
struct ClassName
{
    std::string_view name;
};

/// The text of an error report, shown in a box titled "Error". `module` is the window or module
/// that caught the error.
std::string errorReport(const RunTimeError& error, std::string_view module);

/// The report of an error that a class caught.
std::string errorReport(const RunTimeError& error, ClassName caughtBy);

} // namespace tarsil
