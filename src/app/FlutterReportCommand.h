// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/Sheet.h"
#include "app/FlutterQuestions.h"
#include "base/user/Progress.h"
#include "base/user/UserInterface.h"

#include <functional>
#include <optional>
#include <utility>

class QString;

namespace tarsil {

class AirplaneInfo;
class EvmPlot;

/// The command "Calculate Flutter Speeds": asks for the reference damping and the speed limit,
/// writes the flutter table of the active plot's series to a new workbook in the user's documents,
/// and opens it in the system's spreadsheet program. A second sheet shows for each evolution where
/// its modes are unstable, how reliable that is, and the margin to the dive speed if the airplane
/// has envelopes.
class FlutterReportCommand
{
public:
    /// Opens a file in the system's program for it. False when there is none.
    using FileOpener = std::function<bool(const QString&)>;

    /// `userInterface` and `questions` must outlive this object.
    FlutterReportCommand(UserInterface& userInterface, FlutterQuestions& questions,
                         FileOpener opener)
        : m_userInterface(userInterface), m_questions(questions), m_opener(std::move(opener))
    { }

    /// Writes the workbook to `folder`. First shows which rows of the plot have no curve and are
    /// left out. No answer to one of the two questions, or a stop by the user, ends the command
    /// without a workbook. After an error, reported in module "wndMain", the workbook contains the
    /// cells written so far and the whole second sheet.
    void run(const EvmPlot& plot, const AirplaneInfo& airplane, const QString& folder);

private:
    std::optional<QString> makeWorkbook(const EvmPlot& plot, const AirplaneInfo& airplane,
                                        const FlutterAnswers& answers, const QString& folder);
    std::optional<Sheet> flutterTable(const EvmPlot& plot, const FlutterAnswers& answers,
                                      const Progress& progress);
    std::optional<Sheet> stabilityTable(const EvmPlot& plot, const AirplaneInfo& airplane,
                                        double damping, const Progress& progress) const;
    static std::optional<QString> write(const Sheet& table, const Sheet& stability,
                                        const QString& folder, const Progress& progress);
    void open(const QString& path);

    UserInterface& m_userInterface;
    FlutterQuestions& m_questions;
    FileOpener m_opener;
};

} // namespace tarsil
