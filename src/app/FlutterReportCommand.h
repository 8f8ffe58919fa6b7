#pragma once

#include "analysis/Sheet.h"
#include "base/user/UserInterface.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

class QString;

namespace tarsil {

class AeMode;
class AirplaneInfo;
class EVM;
class EvmPlot;

/// The command "Calculate Flutter Speeds": asks for the reference damping and the speed limit,
/// writes the flutter table of the active plot's series as a workbook of its own into the user's
/// documents, and opens it in the system's spreadsheet program. A second sheet says of each
/// evolution where its modes are unstable and how sure that is, with the margin to the dive speed
/// where the airplane has envelopes.
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
    /// reported in module "wndMain", the cells written so far are in the workbook all the same, and
    /// the second sheet is whole. `folder` is where it goes.
    void run(const EvmPlot& plot, const AirplaneInfo& airplane, const QString& folder);

private:
    std::optional<std::string> ask(std::string_view prompt);
    std::optional<std::string> askMach(const AeMode& mode, std::string_view prompt);
    Sheet flutterTable(const EvmPlot& plot, double damping, double speedLimit);
    Sheet stabilityTable(const EvmPlot& plot, const AirplaneInfo& airplane, double damping) const;
    float answeredMach(const EVM& evolution) const;
    QString write(const Sheet& table, const Sheet& stability, const QString& folder) const;
    void open(const QString& path);

    UserInterface& m_userInterface;
    FileOpener m_opener;
    std::map<std::string, std::string> m_machAnswers; ///< by the path of the evolution
};

} // namespace tarsil
