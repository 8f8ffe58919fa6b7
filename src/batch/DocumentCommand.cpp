// SPDX-License-Identifier: Apache-2.0
#include "analysis/Stability.h"
#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/FlutterTable.h"
#include "batch/StabilityOptions.h"
#include "batch/WorkspaceInput.h"
#include "report/ReportBuilder.h"
#include "report/ReportWriter.h"

#include <algorithm>
#include <array>

namespace tarsil::batch {

namespace {

/// The largest speed of all evolutions in KEAS.
double largestSpeed(const std::vector<EVM*>& evolutions)
{
    float largest = 0;
    for (const EVM* evolution : presentEvolutions(evolutions))
        largest = std::max(largest, lastSpeedOf(*evolution));
    return double {largest};
}

/// By default the levels of the workbook, with the reference damping among them.
StabilitySettings documentSettings(const CommandLine& line, double referenceDamping)
{
    StabilitySettings settings = stabilitySettingsOf(line);
    if (!line.has("--levels"))
        settings.levels = reportSettings(referenceDamping).levels;
    return settings;
}

StabilityReport stabilityOfEvolutions(const std::vector<EVM*>& evolutions,
                                      const StabilitySettings& settings,
                                      const AircraftOption& aircraft, float mach)
{
    StabilityReport report {{}, settings, "Tarsil " TARSIL_VERSION};
    for (const EVM* evolution : presentEvolutions(evolutions)) {
        StabilityInput input {evolution, mach, std::nullopt};
        if (aircraft.requirement)
            input.required = requiredSpeed(*evolution, aircraft.airplane, *aircraft.requirement);
        report.evolutions.push_back(judged(input, settings));
    }
    return report;
}

/// The name of a workspace: that of its file without the extension.
std::string workspaceName(const std::string& path)
{
    return pathText(nativePath(path).stem());
}

int runDocument(const CommandLine& line, BatchRun& run)
{
    const std::string& path = line.operands().front();
    const std::string output = outputOf(line, reportExtensions);
    FlutterTableOptions options {line.number("--reference-damping").value_or(0), 0, machOf(line)};
    const StabilitySettings settings = documentSettings(line, options.referenceDamping);
    const AircraftOption aircraft = aircraftOf(line);
    if (!isWorkspace(path))
        throw UsageError(path + ": a workspace (.tsw) is wanted");
    WorkspaceInput workspace = openWorkspace(path, std::nullopt, run, UsedEvolutions::All);
    for (const std::string& file : workspace.files)
        refuseOutputOverInput(output, file);
    if (line.has("--aircraft"))
        refuseOutputOverInput(output, aircraft.airplane.Filename);
    options.speedLimit = line.number("--speed-limit").value_or(largestSpeed(workspace.evolutions));

    ReportInput input;
    input.path = path;
    input.name = workspaceName(path);
    input.userName = workspace.userName;
    input.record = workspace.record;
    input.record.plots = workspace.plots;
    input.evolutions = workspace.evolutions;
    input.aircraftPath = aircraft.airplane.Filename;
    input.referenceDamping = options.referenceDamping;
    input.speedLimit = options.speedLimit;
    const bool isComplete = writeFlutterTable(reportRows(workspace.plots, workspace.evolutions),
                                              options, input.flutterTable, run);
    input.stability =
        stabilityOfEvolutions(workspace.evolutions, settings, aircraft, options.machNumber());
    writeReport(reportContent(input).value(), output);
    const bool pass = allPass(input.stability.evolutions, run);
    return workspace.isWhole && isComplete && pass ? done : failed;
}

constexpr auto documentOptions = withStabilityOptions(std::array<OptionDescription, 5> {
    {{"--require-level", "G", "level of damping of the requirement; default 0.03"},
     {"--reference-damping", "G", "damping whose crossings are reported; default 0"},
     {"--speed-limit", "V",
      "upper limit of the speed for the maximum damping;\ndefault is the largest speed"},
     {"--mach", "M", "Mach number of the files without one"},
     {"--output", "OUTPUT", "the file to write, which ends in .pdf, .odt or .html", true}}});

} // namespace

constinit const Command documentCommand {
    {"document", "WORKSPACE", 1, "writes a report document about a workspace",
     "Writes one document about a workspace (.tsw): title page, the modal evolutions with\n"
     "their origin, digests and warnings, every plot with its settings, the flutter table,\n"
     "the stability of every evolution as written by \"tarsil-batch crossings\", the margins\n"
     "if --require is given, and the digests of all source files. Equal inputs give equal\n"
     "bytes: the date of the document is that of the workspace.\n"
     "\n"
     "A file or series that is missing is left out with a message, an evolution that does\n"
     "not meet the requirement is named; the document is written, and the exit status\n"
     "is 1.",
     documentOptions},
    runDocument};

} // namespace tarsil::batch
