// SPDX-License-Identifier: Apache-2.0
#include "analysis/FlutterReport.h"
#include "analysis/SheetWriter.h"
#include "analysis/StabilitySheet.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/FlutterTable.h"
#include "batch/ModeList.h"
#include "batch/WorkspaceInput.h"
#include "model/AeMode.h"
#include "report/ReportBuilder.h"

#include <array>
#include <set>
#include <utility>

namespace tarsil::batch {

namespace {

constexpr std::array<std::string_view, 2> reportOutputs = {".xlsx", ".csv"};

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
    for (ReportRow& row : reportRows(input.plots, input.evolutions))
        rows.push_back(std::move(row));
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

/// The stability of the evolutions of all rows, with all their modes.
StabilityReport stabilityOfRows(const std::vector<ReportRow>& rows,
                                const FlutterTableOptions& options)
{
    StabilityReport report {
        {}, reportSettings(options.referenceDamping), "tarsil-batch " TARSIL_VERSION};
    const float givenMach = options.machNumber();
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
    const FlutterTableOptions options {line.number("--reference-damping").value(),
                                       line.number("--speed-limit").value(), machOf(line)};
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
    Sheet sheet;
    const bool isComplete = writeFlutterTable(rows, options, sheet, run);
    writeOutput(sheet, stabilityOfRows(rows, options), source.output);
    return isWhole && isComplete ? done : failed;
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
