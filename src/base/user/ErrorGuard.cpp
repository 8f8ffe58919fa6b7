// SPDX-License-Identifier: Apache-2.0
#include "base/user/ErrorGuard.h"

#include "base/user/UserInterface.h"

#include <exception>
#include <string>

namespace tarsil {

namespace {

/// `Catcher` is a module name or a `ClassName`.
template <typename Catcher>
std::optional<std::string> reportOfAction(Catcher catcher, std::string_view name,
                                          const std::function<void()>& action)
{
    try {
        action();
        return std::nullopt;
    } catch (const RunTimeError& error) {
        return errorReport(error, catcher);
    } catch (const std::exception& error) {
        return errorReport({ErrorNumber::InvalidProcedureCall, std::string(name), error.what()},
                           catcher);
    }
}

/// Shows the report of a failure. Returns whether there was none.
bool showFailure(UserInterface& userInterface, const std::optional<std::string>& report)
{
    if (report)
        userInterface.showMessage(*report, "Error", MessageIcon::Critical);
    return !report;
}

} // namespace

std::optional<std::string> reportOf(std::string_view module, const std::function<void()>& action)
{
    return reportOfAction(module, module, action);
}

bool guarded(UserInterface& userInterface, std::string_view module,
             const std::function<void()>& action)
{
    return showFailure(userInterface, reportOf(module, action));
}

bool guarded(UserInterface& userInterface, ClassName className, const std::function<void()>& action)
{
    return showFailure(userInterface, reportOfAction(className, className.name, action));
}

} // namespace tarsil
