#include "app/FlutterReportCommand.h"

#include "analysis/FlutterReport.h"
#include "analysis/SheetWriter.h"
#include "app/LeftOutRows.h"
#include "base/numbers/Numbers.h"
#include "base/user/BusyStatus.h"
#include "base/user/ErrorGuard.h"
#include "model/EVM.h"
#include "vgfplot/EvmPlot.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <optional>

namespace tarsil {

namespace {

constexpr std::string_view module = "wndMain";
constexpr std::string_view questionTitle = "Tarsil";
constexpr std::string_view busy = "Calculate Flutter Speeds. Please Wait ...";

/// A name in the folder that no file has yet.
QString freeName(const QString& folder)
{
    const QString stem = QStringLiteral("Flutter report ")
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh.mm.ss"));
    QString name = stem;
    for (int i = 2; QFileInfo::exists(QDir(folder).filePath(name + QStringLiteral(".xlsx"))); ++i)
        name = stem + QStringLiteral(" (%1)").arg(i);
    return QDir(folder).filePath(name + QStringLiteral(".xlsx"));
}

std::vector<ReportRow> rowsOf(const EvmPlot& plot)
{
    std::vector<ReportRow> rows;
    for (const Series& series : plot.SeriesCollection()) {
        if (series.Mode != nullptr)
            rows.push_back({series.Mode, series.LegendText.toStdString()});
    }
    return rows;
}

} // namespace

void FlutterReportCommand::run(const EvmPlot& plot, const QString& folder)
{
    guarded(m_userInterface, module, [&] {
        tellOfLeftOutRows({&plot}, "the flutter report", m_userInterface);
        const auto damping = ask(FlutterReport::dampingPrompt);
        if (!damping || damping->empty())
            return;
        const auto limit = ask(FlutterReport::speedLimitPrompt);
        if (!limit || limit->empty())
            return;
        write(plot, toDouble(*damping, module, "reference damping"),
              toDouble(*limit, module, "speed limit"), folder);
    });
}

void FlutterReportCommand::write(const EvmPlot& plot, double damping, double speedLimit,
                                 const QString& folder)
{
    const BusyStatus status(m_userInterface, busy);
    Sheet sheet;
    guarded(m_userInterface, module, [&] {
        const auto askHere = [this](const AeMode& mode, std::string_view prompt) {
            return askMach(mode, prompt);
        };
        FlutterReport(damping, speedLimit, askHere).write(rowsOf(plot), sheet);
    });
    QDir().mkpath(folder);
    const QString path = freeName(folder);
    writeSheet(sheet, path.toStdString());
    if (!m_opener(path))
        m_userInterface.showMessage("The flutter report is in the file\n" + path.toStdString()
                                        + "\nNo program to open it was found.",
                                    "Tarsil", MessageIcon::None);
}

std::optional<std::string> FlutterReportCommand::ask(std::string_view prompt)
{
    return m_userInterface.askText(std::string(prompt), std::string(questionTitle), {});
}

/// The prompt does not say whose number it is, so the title does. Offers the number last given for
/// the same evolution.
std::optional<std::string> FlutterReportCommand::askMach(const AeMode& mode,
                                                         std::string_view prompt)
{
    const EVM& evolution = *mode.Parent;
    m_userInterface.showStatus(evolution.FileName);
    std::string& last = m_machAnswers[evolution.path()];
    auto answer = m_userInterface.askText(std::string(prompt),
                                          std::string(questionTitle) + " - " + evolution.FileName
                                              + ", mode " + std::to_string(mode.Id),
                                          last);
    m_userInterface.showStatus(busy);
    float mach = 0;
    if (answer && parseSingle(*answer, mach) == NumberStatus::Ok)
        last = *answer;
    return answer;
}

} // namespace tarsil
