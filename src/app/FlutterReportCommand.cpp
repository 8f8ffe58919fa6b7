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
        if (const auto path = makeWorkbook(plot, airplane, *answers, folder))
            open(*path);
        else
            m_userInterface.showNote("Stopped: no workbook was written");
    });
}

/// The path of the workbook; empty after a stop.
std::optional<QString> FlutterReportCommand::makeWorkbook(const EvmPlot& plot,
                                                          const AirplaneInfo& airplane,
                                                          const FlutterAnswers& answers,
                                                          const QString& folder)
{
    constexpr std::size_t parts = 10; // of about the same time
    const Progress progress = [this](std::size_t done, std::size_t total) {
        return m_userInterface.showProgress(done, total);
    };
    const auto table = flutterTable(plot, answers, partOf(progress, 0, parts));
    if (!table)
        return std::nullopt;
    const auto stability =
        stabilityTable(plot, airplane, answers.referenceDamping, partOf(progress, 1, parts, 5));
    if (!stability)
        return std::nullopt;
    return write(*table, *stability, folder, partOf(progress, 6, parts, 4));
}

/// Empty after a stop; after an error it has the cells written so far.
std::optional<Sheet> FlutterReportCommand::flutterTable(const EvmPlot& plot,
                                                        const FlutterAnswers& answers,
                                                        const Progress& progress)
{
    Sheet sheet;
    bool isStopped = false;
    guarded(m_userInterface, module, [&] {
        const auto askHere = [this](const AeMode& mode, std::string_view prompt) {
            return m_questions.askMach(mode, prompt, busy);
        };
        isStopped = !FlutterReport(answers.referenceDamping, answers.speedLimit, askHere)
                         .write(rowsOf(plot), sheet, progress);
    });
    return isStopped ? std::nullopt : std::optional(std::move(sheet));
}

/// Empty after a stop. The source files take most of the time.
std::optional<Sheet> FlutterReportCommand::stabilityTable(const EvmPlot& plot,
                                                          const AirplaneInfo& airplane,
                                                          double damping,
                                                          const Progress& progress) const
{
    constexpr std::size_t parts = 5;
    const Progress search = partOf(progress, 0, parts);
    const std::string program = "Tarsil " + QCoreApplication::applicationVersion().toStdString();
    StabilityReport report {{}, reportSettings(damping), program};
    const std::vector<const EVM*> evolutions = evolutionsOf(plot);
    for (const EVM* evolution : evolutions) {
        StabilityInput input {evolution, m_questions.answeredMach(*evolution), std::nullopt};
        if (!airplane.FlutterEnvs.empty())
            input.required = requiredSpeed(*evolution, airplane, Requirement());
        report.evolutions.push_back(judged(input, report.settings));
        if (!goesOn(search, report.evolutions.size(), evolutions.size()))
            return std::nullopt;
    }
    Sheet sheet(stabilitySheetTitle);
    const bool isComplete = writeStability(report, sheet, partOf(progress, 1, parts, 4));
    return isComplete ? std::optional(std::move(sheet)) : std::nullopt;
}

/// Empty after a stop.
std::optional<QString> FlutterReportCommand::write(const Sheet& table, const Sheet& stability,
                                                   const QString& folder, const Progress& progress)
{
    QDir().mkpath(folder);
    QString path = freeName(folder);
    const bool isWritten =
        writeSheets(std::array {&table, &stability}, path.toStdString(), progress);
    return isWritten ? std::optional(std::move(path)) : std::nullopt;
}

void FlutterReportCommand::open(const QString& path)
{
    if (!m_opener(path))
        m_userInterface.showMessage("The flutter report is in the file\n" + path.toStdString()
                                        + "\nNo program to open it was found.",
                                    "Tarsil", MessageIcon::None);
}

} // namespace tarsil
