// SPDX-License-Identifier: Apache-2.0
#include "app/ReportDocumentCommand.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/FlutterReport.h"
#include "analysis/Requirement.h"
#include "analysis/StabilityTable.h"
#include "app/LeftOutRows.h"
#include "base/files/PathNames.h"
#include "base/text/ShortList.h"
#include "base/user/BusyStatus.h"
#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "document/WorkspaceSource.h"
#include "report/ReportBuilder.h"
#include "report/ReportWriter.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace tarsil {

namespace {

constexpr std::string_view writingReport = "Write Report. Please Wait ...";
constexpr std::string_view reportFilter =
    "PDF (*.pdf)|*.pdf|Open Document Text (*.odt)|*.odt|HTML (*.html)|*.html|";

/// Appends ".pdf" unless the path has the extension of a report document.
std::string withReportExtension(const std::string& path)
{
    const QString name = QString::fromStdString(path);
    const bool hasOne = std::any_of(
        reportExtensions.begin(), reportExtensions.end(), [&name](std::string_view extension) {
            return name.endsWith(
                QString::fromUtf8(extension.data(), static_cast<qsizetype>(extension.size())),
                Qt::CaseInsensitive);
        });
    return hasOne ? path : path + ".pdf";
}

/// The user who saved the workspace; empty when its file cannot be read, which the list of the
/// sources says.
std::string savedBy(const std::string& path)
{
    try {
        return path.empty() ? std::string() : userNameIn(path);
    } catch (const RunTimeError&) {
        return {};
    }
}

} // namespace

void ReportDocumentCommand::run()
{
    const std::vector<EvmPlot*> plots = m_document.plots().all();
    showLeftOutRows({plots.begin(), plots.end()}, "the report document", m_user);
    const auto answers = m_questions.ask();
    if (!answers)
        return;
    const auto path = askFile();
    if (!path)
        return;
    const BusyStatus status(m_user, writingReport);
    ReportInput input = inputOf(*answers);
    m_user.showNote(write(input, *path) ? "The report document is in " + wholePath(*path)
                                        : "Stopped: no report document was written");
}

/// False after a stop.
bool ReportDocumentCommand::write(ReportInput& input, const std::string& path)
{
    const Progress progress = [this](std::size_t done, std::size_t total) {
        return m_user.showProgress(done, total);
    };
    constexpr std::size_t parts = 10; // of about the same time
    if (!addFlutterTable(input, partOf(progress, 0, parts))
        || !addStability(input, partOf(progress, 1, parts)))
        return false;
    const auto content = reportContent(input, partOf(progress, 2, parts, 2));
    return content && writeReport(*content, path, partOf(progress, 4, parts, 6));
}

std::optional<std::string> ReportDocumentCommand::askFile()
{
    const std::string name = m_document.texts().name.toStdString() + ".pdf";
    const auto answer = m_user.askSaveFile({std::string(reportFilter), 1, false, name, false});
    if (!answer)
        return std::nullopt;
    const std::string path = withReportExtension(*answer);
    const bool mayWrite = !fileExists(path)
        || m_user.confirm("The file '" + resolvePath(path).name
                              + "' already exists. Do you want to replace it?",
                          "Tarsil");
    return mayWrite ? std::optional(path) : std::nullopt;
}

ReportInput ReportDocumentCommand::inputOf(const FlutterAnswers& answers)
{
    ReportInput input;
    input.path = m_document.path();
    input.name = m_document.texts().name.toStdString();
    input.userName = savedBy(input.path);
    input.isChanged = m_document.isChanged();
    input.record = m_document.record();
    for (const auto& evolution : m_document.evolutions().all())
        input.evolutions.push_back(evolution.get());
    input.aircraftPath = m_document.airplane().Filename;
    input.referenceDamping = answers.referenceDamping;
    input.speedLimit = answers.speedLimit;
    return input;
}

/// False after a stop.
bool ReportDocumentCommand::addFlutterTable(ReportInput& input, const Progress& progress)
{
    std::vector<std::string> failures;
    const auto collect = [&failures](const RunTimeError& error) {
        if (std::find(failures.begin(), failures.end(), error.description()) == failures.end())
            failures.push_back(error.description());
    };
    const auto askMach = [this](const AeMode& mode, std::string_view prompt) {
        return m_questions.askMachOnce(mode, prompt, writingReport);
    };
    const FlutterReport report(input.referenceDamping, input.speedLimit, askMach);
    const bool isComplete = report.writeWhatCan(reportRows(input.record.plots, input.evolutions),
                                                input.flutterTable, collect, progress);
    if (isComplete && !failures.empty())
        m_user.showMessage("These cells of the flutter table stay empty:\n"
                               + shortList(failures, mostFileLines),
                           "Tarsil", MessageIcon::Exclamation);
    return isComplete;
}

/// False after a stop.
bool ReportDocumentCommand::addStability(ReportInput& input, const Progress& progress) const
{
    const AirplaneInfo& airplane = m_document.airplane();
    input.stability.program = "Tarsil " + QCoreApplication::applicationVersion().toStdString();
    input.stability.settings = reportSettings(input.referenceDamping);
    const std::vector<const EVM*> evolutions = presentEvolutions(input.evolutions);
    for (const EVM* evolution : evolutions) {
        StabilityInput one {evolution, m_questions.answeredMach(*evolution), std::nullopt};
        if (!airplane.FlutterEnvs.empty())
            one.required = requiredSpeed(*evolution, airplane, Requirement());
        std::vector<EvolutionStability>& judgedOnes = input.stability.evolutions;
        judgedOnes.push_back(judged(one, input.stability.settings));
        if (!goesOn(progress, judgedOnes.size(), evolutions.size()))
            return false;
    }
    return true;
}

} // namespace tarsil
