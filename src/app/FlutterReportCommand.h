#pragma once

#include "base/user/UserInterface.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

class QString;

namespace tarsil {

class AeMode;
class EvmPlot;

/// The command "Calculate Flutter Speeds": asks for the reference damping and the speed limit,
/// writes the flutter table of the active plot's series as a workbook of its own into the user's
/// documents, and opens it in the system's spreadsheet program.
class FlutterReportCommand
{
public:
    /// Opens a file in the program that the system has for it; false when there is none.
    using FileOpener = std::function<bool(const QString&)>;

    FlutterReportCommand(UserInterface& userInterface, FileOpener opener)
        : m_userInterface(userInterface), m_opener(std::move(opener))
    { }

    /// Tells first which rows of the plot have no curve and so none in the table. An empty answer
    /// to one of the two questions ends the command without a workbook. After an error, which is
    /// reported in module "wndMain", the cells written so far are in the workbook all the same.
    /// `folder` is where it goes.
    void run(const EvmPlot& plot, const QString& folder);

private:
    std::optional<std::string> ask(std::string_view prompt);
    std::optional<std::string> askMach(const AeMode& mode, std::string_view prompt);
    void write(const EvmPlot& plot, double damping, double speedLimit, const QString& folder);

    UserInterface& m_userInterface;
    FileOpener m_opener;
    std::map<std::string, std::string> m_machAnswers; ///< by the path of the evolution
};

} // namespace tarsil
