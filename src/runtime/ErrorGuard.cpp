#include "runtime/ErrorGuard.h"

#include "runtime/UserInterface.h"

#include <exception>
#include <string>

namespace tarsil {

namespace {

/// `Catcher` is the kind of thing that catches: a module's name, or a class.
template <typename Catcher>
bool runGuarded(UserInterface& userInterface, Catcher catcher, std::string_view name,
                const std::function<void()>& action)
{
    const auto report = [&](const RunTimeError& error) {
        userInterface.showMessage(errorReport(error, catcher), "Error", MessageIcon::Critical);
    };
    try {
        action();
        return true;
    } catch (const RunTimeError& error) {
        report(error);
    } catch (const std::exception& error) {
        report({ErrorNumber::InvalidProcedureCall, std::string(name), error.what()});
    }
    return false;
}

} // namespace

bool guarded(UserInterface& userInterface, std::string_view module,
             const std::function<void()>& action)
{
    return runGuarded(userInterface, module, module, action);
}

bool guarded(UserInterface& userInterface, ClassName className, const std::function<void()>& action)
{
    return runGuarded(userInterface, className, className.name, action);
}

} // namespace tarsil
