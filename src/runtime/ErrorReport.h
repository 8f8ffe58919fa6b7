#pragma once

#include "runtime/RunTimeError.h"

#include <string>
#include <string_view>

namespace tarsil {

/// The text of the one error report, shown in a box titled "Error". `module` is the window or
/// module that caught the error.
std::string errorReport(const RunTimeError& error, std::string_view module);

} // namespace tarsil
