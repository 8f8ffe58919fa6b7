#include "aircraft/AirplaneInfo.h"
#include "analysis/ModeTracking.h"
#include "analysis/Sheet.h"
#include "analysis/SheetWriter.h"
#include "analysis/StabilitySheet.h"
#include "base/files/AtomicFile.h"
#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/StabilityJson.h"
#include "batch/WorkspaceInput.h"

#include <array>

namespace tarsil::batch {

namespace {

constexpr std::array<std::string_view, 3> crossingsOutputs = {".json", ".csv", ".xlsx"};
constexpr std::array<std::string_view, 1> jsonExtension = {".json"};

double atLeastZero(const CommandLine& line, std::string_view option, double usual)
{
    const double value = line.number(option).value_or(usual);
    if (!(value >= 0))
        throw UsageError(std::string(option) + ": a number of at least 0 is wanted");
    return value;
}

std::vector<float> levelsOption(const std::string& text)
{
    try {
        return levelsOf(text);
    } catch (const RunTimeError& error) {
        throw UsageError("--levels: " + error.description());
    }
}

StabilitySettings settingsOf(const CommandLine& line)
{
    StabilitySettings settings;
    if (const auto levels = line.value("--levels"))
        settings.levels = levelsOption(*levels);
    StretchLimits& limits = settings.limits;
    limits.tolerance = atLeastZero(line, "--tolerance", limits.tolerance);
    limits.noise = atLeastZero(line, "--noise", limits.noise);
    limits.staticFrequency = atLeastZero(line, "--static", limits.staticFrequency);
    settings.isTracked = line.has("--tracked");
    return settings;
}

/// The value of --require and the airplane whose envelopes give the speeds.
struct RequirementOption
{
    Requirement requirement;
    AirplaneInfo airplane;
};

std::optional<RequirementOption> requirementOf(const CommandLine& line)
{
    const auto factor = line.value("--require");
    const auto aircraft = line.value("--aircraft");
    if (!factor && !aircraft && !line.has("--require-level"))
        return std::nullopt;
    if (!factor || !aircraft)
        throw UsageError("--require and --aircraft are wanted together");
    RequirementOption option;
    if (!factor->empty())
        option.requirement.factor = numberOf(*factor, "--require");
    if (!(option.requirement.factor > 0))
        throw UsageError("--require: a factor greater than 0 is wanted");
    if (const auto level = line.value("--require-level"))
        option.requirement.level = singlesOf(*level, 1, "--require-level").front();
    option.airplane.Filename = *aircraft;
    option.airplane.Create();
    return option;
}

void refuseUntrackable(const EVM& evolution, const StabilitySettings& settings)
{
    if (!settings.isTracked)
        return;
    if (const auto obstacle = ModeTracking::obstacle(evolution))
        throw Failure(evolution.FileName + " cannot be tracked: " + *obstacle);
}

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

/// Complains about each evolution that does not meet the requirement. Returns whether all do.
bool allPass(const StabilityReport& report, BatchRun& run)
{
    bool pass = true;
    for (const EvolutionStability& stability : report.evolutions) {
        if (!stability.margin || stability.margin->passes)
            continue;
        run.complain(shownPath(stability.evolution->FileName) + ": "
                     + marginText(*stability.margin));
        pass = false;
    }
    return pass;
}

int runCrossings(const CommandLine& line, BatchRun& run)
{
    const std::string output = outputOf(line, crossingsOutputs);
    const StabilitySettings settings = settingsOf(line);
    if (hasWorkspace(line.operands()))
        throw UsageError("a workspace is given; modal evolutions are wanted");
    const auto required = requirementOf(line);
    StabilityReport report {{}, settings, "tarsil-batch " TARSIL_VERSION};
    for (const std::string& path : line.operands()) {
        refuseOutputOverInput(output, path);
        const EVM& evolution = run.open(path);
        refuseUntrackable(evolution, settings);
        StabilityInput input {&evolution, 0, std::nullopt};
        if (required)
            input.required = requiredSpeed(evolution, required->airplane, required->requirement);
        report.evolutions.push_back(judged(input, settings));
    }
    writeReport(report, output);
    return allPass(report, run) ? done : failed;
}

constexpr std::array<OptionDescription, 9> crossingsOptions = {
    {{"--levels", "LIST", "levels of damping, separated by commas; default\n0,0.01,0.02,0.03"},
     {"--tolerance", "G", "a stretch up to this height above its level is weak;\ndefault 0.001"},
     {"--noise", "G", "a stretch up to this height is numerical noise; default 1e-6"},
     {"--static", "F", "a root is static below this frequency in Hz; default 0.1"},
     {"--tracked", "", "follows the roots instead of the printed modes"},
     {"--aircraft", "FILE", "aircraft file (.inp) with envelopes"},
     {"--require", "FACTOR", "margin to a factor times the dive speed; default 1.15", false, false,
      true},
     {"--require-level", "G", "level of damping of the requirement; default 0.03"},
     {"--output", "OUTPUT", "the file to write, which ends in .json, .csv or .xlsx", true}}};

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
