// SPDX-License-Identifier: Apache-2.0
#include "batch/StabilityOptions.h"

#include "analysis/ModeTracking.h"
#include "base/files/PathNames.h"
#include "base/text/QuotedText.h"
#include "base/user/RunTimeError.h"
#include "batch/BatchRun.h"
#include "batch/WorkspaceInput.h"

namespace tarsil::batch {

namespace {

double atLeastZero(const CommandLine& line, std::string_view option, double usual)
{
    const double value = line.number(option).value_or(usual);
    if (!(value >= 0))
        throw UsageError(std::string(option) + ": " + quotedText(*line.value(option))
                         + " is not a number of at least 0");
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

Requirement requirementOf(const CommandLine& line)
{
    Requirement requirement;
    if (const std::string factor = *line.value("--require"); !factor.empty())
        requirement.factor = numberOf(factor, "--require");
    if (!(requirement.factor > 0))
        throw UsageError("--require: " + quotedText(*line.value("--require"))
                         + " is not a factor greater than 0");
    if (const auto level = line.value("--require-level"))
        requirement.level = singlesOf(*level, 1, "--require-level").front();
    return requirement;
}

void refuseUntrackable(const EVM& evolution, const StabilitySettings& settings)
{
    if (!settings.isTracked)
        return;
    if (const auto obstacle = ModeTracking::obstacle(evolution))
        throw Failure(evolution.FileName + " cannot be tracked: " + *obstacle);
}

} // namespace

StabilitySettings stabilitySettingsOf(const CommandLine& line)
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

AircraftOption aircraftOf(const CommandLine& line)
{
    AircraftOption option;
    const auto aircraft = line.value("--aircraft");
    const bool isRequired = line.has("--require");
    if ((isRequired && !aircraft) || (line.has("--require-level") && !isRequired))
        throw UsageError("--require and --aircraft are wanted together");
    if (isRequired)
        option.requirement = requirementOf(line);
    if (aircraft) {
        option.airplane.Filename = *aircraft;
        option.airplane.Create();
    }
    return option;
}

std::vector<EvolutionStability> judgedFiles(const CommandLine& line, const std::string& output,
                                            const StabilitySettings& settings,
                                            const AircraftOption& aircraft, BatchRun& run)
{
    if (hasWorkspace(line.operands()))
        throw UsageError("a workspace is given; modal evolutions are wanted");
    if (line.has("--aircraft"))
        refuseOutputOverInput(output, aircraft.airplane.Filename);
    std::vector<EvolutionStability> evolutions;
    for (const std::string& path : line.operands()) {
        refuseOutputOverInput(output, path);
        const EVM& evolution = run.open(path);
        refuseUntrackable(evolution, settings);
        StabilityInput input {&evolution, 0, std::nullopt};
        if (aircraft.requirement)
            input.required = requiredSpeed(evolution, aircraft.airplane, *aircraft.requirement);
        evolutions.push_back(judged(input, settings));
    }
    return evolutions;
}

bool allPass(const std::vector<EvolutionStability>& evolutions, BatchRun& run)
{
    bool pass = true;
    for (const EvolutionStability& stability : evolutions) {
        if (!stability.margin || stability.margin->passes)
            continue;
        run.complain(shownPath(stability.evolution->FileName) + ": "
                     + marginText(*stability.margin));
        pass = false;
    }
    return pass;
}

} // namespace tarsil::batch
