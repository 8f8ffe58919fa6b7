#include "runtime/ErrorGuard.h"

#include "runtime/ErrorReport.h"
#include "runtime/UserInterface.h"

#include <exception>
#include <string>

namespace tarsil {

bool guarded(UserInterface& userInterface, std::string_view module,
             const std::function<void()>& action)
{
    const auto report = [&](const RunTimeError& error) {
        userInterface.showMessage(errorReport(error, module), "Error", MessageIcon::Critical);
    };
    try {
        action();
        return true;
    } catch (const RunTimeError& error) {
        report(error);
    } catch (const std::exception& error) {
        report({ErrorNumber::InvalidProcedureCall, std::string(module), error.what()});
    }
    return false;
}

} // namespace tarsil
