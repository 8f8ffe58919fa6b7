// SPDX-License-Identifier: Apache-2.0
#include "analysis/Sheet.h"
#include "analysis/SheetWriter.h"
#include "analysis/StabilitySheet.h"
#include "base/files/AtomicFile.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/StabilityJson.h"
#include "batch/StabilityOptions.h"

#include <array>

namespace tarsil::batch {

namespace {

constexpr std::array<std::string_view, 3> crossingsOutputs = {".json", ".csv", ".xlsx"};
constexpr std::array<std::string_view, 1> jsonExtension = {".json"};

void writeReport(const StabilityReport& report, const std::string& output)
{
    if (hasExtension(output, jsonExtension)) {
        writeFile(output, stabilityJson(report));
        return;
    }
    Sheet sheet(stabilitySheetTitle);
    writeStability(report, sheet);
    writeSheet(sheet, output);
}

int runCrossings(const CommandLine& line, BatchRun& run)
{
    const std::string output = outputOf(line, crossingsOutputs);
    const StabilitySettings settings = stabilitySettingsOf(line);
    const AircraftOption aircraft = aircraftOf(line);
    if (line.has("--aircraft") && !aircraft.requirement)
        throw UsageError("--require and --aircraft are wanted together");
    const StabilityReport report {judgedFiles(line, output, settings, aircraft, run), settings,
                                  "tarsil-batch " TARSIL_VERSION};
    writeReport(report, output);
    return allPass(report.evolutions, run) ? done : failed;
}

constexpr auto crossingsOptions = withStabilityOptions(std::array<OptionDescription, 2> {
    {{"--require-level", "G", "level of damping of the requirement; default 0.03"},
     {"--output", "OUTPUT", "the file to write, which ends in .json, .csv or .xlsx", true}}});

} // namespace

constinit const Command crossingsCommand {
    {"crossings", "FILE...", anyNumber, "lists where modes are unstable, and how reliable that is",
     "Lists each range of speed in which a mode is above a level of damping: start and\n"
     "end, flutter or divergence, peak, and the confidence in the crossing. Tables list\n"
     "the real stretches and only count those that are noise or weak; JSON lists all.\n"
     "The output contains the settings, the program and the source files.\n"
     "\n"
     "--require compares each evolution with a factor times the dive speed of the\n"
     "envelope at its Mach number. An evolution that becomes unstable below that speed,\n"
     "whose speeds end below it, or that has no envelope is named on standard error; the\n"
     "output is written, and the exit status is 1.",
     crossingsOptions},
    runCrossings};

} // namespace tarsil::batch
