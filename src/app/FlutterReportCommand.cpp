// SPDX-License-Identifier: Apache-2.0
#include "app/FlutterReportCommand.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/FlutterReport.h"
#include "analysis/SheetWriter.h"
#include "analysis/StabilitySheet.h"
#include "app/LeftOutRows.h"
#include "base/user/BusyStatus.h"
#include "base/user/ErrorGuard.h"
#include "base/user/UserInterface.h"
#include "model/EVM.h"
#include "vgfplot/EvmPlot.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <optional>

namespace tarsil {

namespace {

constexpr std::string_view module = "wndMain";
constexpr std::string_view busy = "Calculate Flutter Speeds. Please Wait ...";

/// The path of a file in the folder that does not exist yet.
QString freeName(const QString& folder)
{
    const QString stem = QStringLiteral("Flutter report ")
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh.mm.ss"));
    QString name = stem;
    for (int i = 2; QFileInfo::exists(QDir(folder).filePath(name + QStringLiteral(".xlsx"))); ++i)
        name = stem + QStringLiteral(" (%1)").arg(i);
    return QDir(folder).filePath(name + QStringLiteral(".xlsx"));
}

/// Includes hidden rows: a look must not remove a flutter speed.
std::vector<ReportRow> rowsOf(const EvmPlot& plot)
{
    std::vector<ReportRow> rows;
    for (const PlotRow& row : plot.rows().all()) {
        if (row.series.Mode != nullptr)
            rows.push_back({row.series.Mode, row.series.LegendText.toStdString()});
    }
    return rows;
}

/// The evolutions of the rows, each once, in order of the rows.
std::vector<const EVM*> evolutionsOf(const EvmPlot& plot)
{
    std::vector<const EVM*> evolutions;
    for (const ReportRow& row : rowsOf(plot)) {
        const EVM* const evolution = row.mode->Parent;
        if (std::find(evolutions.begin(), evolutions.end(), evolution) == evolutions.end())
            evolutions.push_back(evolution);
    }
    return evolutions;
}

} // namespace

void FlutterReportCommand::run(const EvmPlot& plot, const AirplaneInfo& airplane,
                               const QString& folder)
{
    guarded(m_userInterface, module, [&] {
        showLeftOutRows({&plot}, "the flutter report", m_userInterface);
        const auto answers = m_questions.ask();
        if (!answers)
            return;
        const BusyStatus status(m_userInterface, busy);
        const Sheet table = flutterTable(plot, *answers);
        open(write(table, stabilityTable(plot, airplane, answers->referenceDamping), folder));
    });
}

Sheet FlutterReportCommand::flutterTable(const EvmPlot& plot, const FlutterAnswers& answers)
{
    Sheet sheet;
    guarded(m_userInterface, module, [&] {
        const auto askHere = [this](const AeMode& mode, std::string_view prompt) {
            return m_questions.askMach(mode, prompt, busy);
        };
        FlutterReport(answers.referenceDamping, answers.speedLimit, askHere)
            .write(rowsOf(plot), sheet);
    });
    return sheet;
}

Sheet FlutterReportCommand::stabilityTable(const EvmPlot& plot, const AirplaneInfo& airplane,
                                           double damping) const
{
    const std::string program = "Tarsil " + QCoreApplication::applicationVersion().toStdString();
    StabilityReport report {{}, reportSettings(damping), program};
    for (const EVM* evolution : evolutionsOf(plot)) {
        StabilityInput input {evolution, m_questions.answeredMach(*evolution), std::nullopt};
        if (!airplane.FlutterEnvs.empty())
            input.required = requiredSpeed(*evolution, airplane, Requirement());
        report.evolutions.push_back(judged(input, report.settings));
    }
    Sheet sheet(stabilitySheetTitle);
    writeStability(report, sheet);
    return sheet;
}

QString FlutterReportCommand::write(const Sheet& table, const Sheet& stability,
                                    const QString& folder) const
{
    QDir().mkpath(folder);
    const QString path = freeName(folder);
    writeSheets(std::array {&table, &stability}, path.toStdString());
    return path;
}

void FlutterReportCommand::open(const QString& path)
{
    if (!m_opener(path))
        m_userInterface.showMessage("The flutter report is in the file\n" + path.toStdString()
                                        + "\nNo program to open it was found.",
                                    "Tarsil", MessageIcon::None);
}

} // namespace tarsil
