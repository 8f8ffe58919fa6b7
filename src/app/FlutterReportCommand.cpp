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
#include <cstddef>
#include <optional>
#include <utility>

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
        if (const auto stability = stabilityTable(plot, airplane, answers->referenceDamping))
            open(write(table, *stability, folder));
        else
            m_userInterface.showNote("Stopped: no workbook was written");
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

/// Empty after a stop. Half of the progress is the search for stretches, half the source files.
std::optional<Sheet> FlutterReportCommand::stabilityTable(const EvmPlot& plot,
                                                          const AirplaneInfo& airplane,
                                                          double damping) const
{
    const std::string program = "Tarsil " + QCoreApplication::applicationVersion().toStdString();
    StabilityReport report {{}, reportSettings(damping), program};
    const std::vector<const EVM*> evolutions = evolutionsOf(plot);
    const std::size_t count = evolutions.size();
    for (const EVM* evolution : evolutions) {
        StabilityInput input {evolution, m_questions.answeredMach(*evolution), std::nullopt};
        if (!airplane.FlutterEnvs.empty())
            input.required = requiredSpeed(*evolution, airplane, Requirement());
        report.evolutions.push_back(judged(input, report.settings));
        if (!m_userInterface.showProgress(report.evolutions.size(), 2 * count + 1))
            return std::nullopt;
    }
    Sheet sheet(stabilitySheetTitle);
    const bool isComplete =
        writeStability(report, sheet, [&](std::size_t done, std::size_t /*total*/) {
            return m_userInterface.showProgress(count + done, 2 * count + 1);
        });
    return isComplete ? std::optional(std::move(sheet)) : std::nullopt;
}

QString FlutterReportCommand::write(const Sheet& table, const Sheet& stability,
                                    const QString& folder) const
{
    QDir().mkpath(folder);
    QString path = freeName(folder);
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
