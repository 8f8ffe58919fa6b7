// SPDX-License-Identifier: Apache-2.0
#include "analysis/FlutterReport.h"
#include "analysis/SheetWriter.h"
#include "analysis/StabilitySheet.h"
#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/ModeList.h"
#include "batch/WorkspaceInput.h"
#include "vgfplot/NamedMode.h"

#include <array>
#include <set>

namespace tarsil::batch {

namespace {

constexpr std::array<std::string_view, 2> reportOutputs = {".xlsx", ".csv"};

/// The Mach number for files without one, as text; empty when not given.
std::optional<std::string> machOf(const CommandLine& line)
{
    auto text = line.value("--mach");
    if (text && singlesOf(*text, 1, "--mach").front() <= 0)
        throw UsageError("--mach must be greater than 0");
    return text;
}

/// The source of the rows, from the command line.
struct RowSource
{
    std::string output;
    std::optional<ModeList> modes;
    std::optional<std::string> plot;
};

/// Adds a row for each series of a workspace. Returns whether all exist.
bool addRowsOfWorkspace(const std::string& path, const RowSource& source, BatchRun& run,
                        std::vector<ReportRow>& rows)
{
    const WorkspaceInput input = openWorkspace(path, source.plot, run);
    for (const std::string& file : input.files)
        refuseOutputOverInput(source.output, file);
    for (const PlotRecord& plot : input.plots) {
        for (const SeriesRecord& series : plot.series)
            rows.push_back({namedMode(series, input.evolutions).mode, series.legendText});
    }
    return input.isWhole;
}

void addModesOfEvolution(const std::string& path, const RowSource& source, BatchRun& run,
                         std::vector<ReportRow>& rows)
{
    refuseOutputOverInput(source.output, path);
    const EVM& evolution = run.open(path);
    for (AeMode* mode : selectModes(evolution, source.modes, path))
        rows.push_back({mode, caseTextOf(evolution)});
}

/// Reports each error once: several series may draw the same mode.
class Complaints
{
public:
    explicit Complaints(BatchRun& run) : m_run(run) { }

    void add(const RunTimeError& error)
    {
        if (m_errors.insert(error.description()).second)
            m_run.complain(m_run.readable(error.description())
                           + "; the cells that need it stay empty");
    }

    bool areNone() const { return m_errors.empty(); }

private:
    BatchRun& m_run;
    std::set<std::string> m_errors;
};

/// The stability of the evolutions of all rows, with all their modes.
StabilityReport stabilityOfRows(const std::vector<ReportRow>& rows, double damping,
                                const std::optional<std::string>& mach)
{
    StabilityReport report {{}, reportSettings(damping), "tarsil-batch " TARSIL_VERSION};
    const float givenMach = mach ? singlesOf(*mach, 1, "--mach").front() : 0;
    std::set<const EVM*> known;
    for (const ReportRow& row : rows) {
        const EVM* const evolution = row.mode->Parent;
        if (known.insert(evolution).second)
            report.evolutions.push_back(
                judged({evolution, givenMach, std::nullopt}, report.settings));
    }
    return report;
}

void writeOutput(const Sheet& table, const StabilityReport& stability, const std::string& output)
{
    Sheet second(stabilitySheetTitle);
    writeStability(stability, second);
    writeSheets(std::array {&table, static_cast<const Sheet*>(&second)}, output);
}

int runReport(const CommandLine& line, BatchRun& run)
{
    RowSource source {outputOf(line, reportOutputs), std::nullopt, line.value(plotOption.name)};
    const double damping = line.number("--reference-damping").value();
    const double speedLimit = line.number("--speed-limit").value();
    const auto mach = machOf(line);
    if (const auto list = line.value("--modes"))
        source.modes = modeListOf(*list);
    checkWorkspaceOptions(line, line.operands(), {"--modes"});

    bool isWhole = true;
    std::vector<ReportRow> rows;
    for (const std::string& path : line.operands()) {
        if (isWorkspace(path))
            isWhole = addRowsOfWorkspace(path, source, run, rows) && isWhole;
        else
            addModesOfEvolution(path, source, run, rows);
    }
    const auto answerMach = [&mach](const AeMode& mode, std::string_view) {
        if (!mach)
            throw Failure(shownPath(mode.Parent->path()) + " has no Mach number; use --mach");
        return std::optional(*mach);
    };
    Sheet sheet;
    Complaints complaints(run);
    FlutterReport(damping, speedLimit, answerMach)
        .writeWhatCan(rows, sheet,
                      [&complaints](const RunTimeError& error) { complaints.add(error); });
    writeOutput(sheet, stabilityOfRows(rows, damping, mach), source.output);
    return isWhole && complaints.areNone() ? done : failed;
}

constexpr std::array<OptionDescription, 6> reportOptions = {
    {{"--reference-damping", "G", "damping whose crossings are reported;\n0 is the stability limit",
      true},
     {"--speed-limit", "V", "upper limit of the speed for the maximum damping", true},
     {"--mach", "M", "Mach number of the files without one"},
     {"--modes", "LIST", "modes to report; default is all"},
     plotOption,
     {"--output", "OUTPUT", "the file to write, which ends in .xlsx or .csv", true}}};

} // namespace

constinit const Command reportCommand {
    {"report", "FILE...", anyNumber, "writes the flutter table",
     "Writes the flutter table: for each mode the maximum damping up to the speed\n"
     "limit, and every crossing of the reference damping with its speed, frequency,\n"
     "altitude and first participation factor.\n"
     "\n"
     "A workbook has a second sheet, \"Stability\": where the modes of each file are unstable,\n"
     "and how reliable that is, as written by \"tarsil-batch crossings\".\n"
     "\n"
     "A value that cannot be computed, such as a crossing between two points of equal\n"
     "speed, leaves its cells empty with a message; the rest is written, and the exit\n"
     "status is 1.\n"
     "\n"
     "A workspace gives a row for each series of its plots, in order, with the legend\n"
     "text of the series as its case, and with mass configuration and Mach number as\n"
     "edited in the workspace. Files that have moved are searched for beside it and\n"
     "below its folder. A series whose file or mode is missing is left out with a\n"
     "message; the rest is written, and the exit status is 1.",
     reportOptions},
    runReport};

} // namespace tarsil::batch
