// SPDX-License-Identifier: Apache-2.0
#include "base/files/PathNames.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/ModeList.h"
#include "batch/WorkspaceInput.h"
#include "formats/EvolutionFile.h"
#include "formats/MdlMix.h"
#include "vgfplot/NamedMode.h"

#include <algorithm>
#include <array>
#include <memory>

namespace tarsil::batch {

namespace {

constexpr std::array<std::string_view, 2> mixOutputs = {".mix", ".mx2"};

/// A file and the modes wanted of it; without a list all of them.
struct Ingredient
{
    std::string path;
    std::optional<ModeList> modes;
};

/// Parses FILE or FILE:LIST. A file whose name is the whole text wins. Otherwise the text after the
/// last colon is a list if it looks like one, or if the text before is a file ("C:\wing.ev2" has no
/// list).
Ingredient ingredientOf(const std::string& operand)
{
    const std::size_t colon = operand.rfind(':');
    if (colon == std::string::npos || fileExists(operand))
        return {operand, std::nullopt};
    const std::string list = operand.substr(colon + 1);
    const std::string path = operand.substr(0, colon);
    const bool looksLikeList = list.find_first_not_of("0123456789,-") == std::string::npos;
    if (!looksLikeList && !fileExists(path))
        return {operand, std::nullopt};
    return {path, modeListOf(list)};
}

void warnOfDifferentLengths(const std::vector<const AeMode*>& modes, BatchRun& run)
{
    if (modes.empty())
        return;
    const auto [shortest, longest] =
        std::minmax_element(modes.begin(), modes.end(), [](const auto* a, const auto* b) {
            return a->Points.size() < b->Points.size();
        });
    const std::size_t fewest = (*shortest)->Points.size();
    const std::size_t most = (*longest)->Points.size();
    if (fewest != most)
        run.complain("warning: the modes have from " + std::to_string(fewest) + " to "
                     + std::to_string(most) + " points, and the output declares "
                     + std::to_string(most) + " for all of them");
}

/// The files of the command line; UsageError for combinations that a workspace does not allow.
std::vector<Ingredient> ingredientsOf(const CommandLine& line)
{
    std::vector<Ingredient> ingredients;
    std::vector<std::string> paths;
    for (const std::string& operand : line.operands()) {
        ingredients.push_back(ingredientOf(operand));
        paths.push_back(ingredients.back().path);
        if (ingredients.back().modes && isWorkspace(paths.back()))
            throw UsageError(
                operand
                + ": a workspace does not accept a list of modes; --plot selects one of "
                  "its plots");
    }
    checkWorkspaceOptions(line, paths, {});
    return ingredients;
}

/// Adds the mode of each series of a workspace. Returns whether all exist.
bool addModesOfWorkspace(const std::string& path, const CommandLine& line, BatchRun& run,
                         std::vector<const AeMode*>& modes)
{
    const WorkspaceInput input = openWorkspace(path, line.value(plotOption.name), run);
    for (const std::string& file : input.files)
        refuseOutputOverInput(line.value("--output").value(), file);
    for (const PlotRecord& plot : input.plots) {
        for (const SeriesRecord& series : plot.series)
            modes.push_back(namedMode(series, input.evolutions).mode);
    }
    return input.isWhole;
}

int runMix(const CommandLine& line, BatchRun& run)
{
    const std::string output = outputOf(line, mixOutputs);
    bool isWhole = true;
    std::vector<const AeMode*> modes;
    for (const Ingredient& ingredient : ingredientsOf(line)) {
        if (isWorkspace(ingredient.path)) {
            isWhole = addModesOfWorkspace(ingredient.path, line, run, modes) && isWhole;
            continue;
        }
        refuseOutputOverInput(output, ingredient.path);
        for (const AeMode* mode :
             selectModes(run.open(ingredient.path), ingredient.modes, ingredient.path))
            modes.push_back(mode);
    }
    const std::unique_ptr<EVM> mixed = mdlMix::gather(modes);
    warnOfDifferentLengths(modes, run); // nothing may fail after the file is written
    PrintEVM(*mixed, output);
    return isWhole ? done : failed;
}

constexpr std::array<OptionDescription, 2> mixOptions = {
    {plotOption, {"--output", "OUTPUT", "the file to write, which ends in .mix (or .mx2)", true}}};

} // namespace

constinit const Command mixCommand {
    {"mix", "FILE[:LIST]...", anyNumber, "combines modes of several files into one",
     "Combines modes of several files into one evolution in fixed columns. A colon and\n"
     "a LIST after a FILE select its modes, such as wing.ev2:1,3-5; the default is all\n"
     "modes. See \"convert\" for the layout.\n"
     "\n"
     "A workspace contributes the mode of each series, in the order of its plots. A\n"
     "series whose file or mode is missing is left out with a message; the rest is\n"
     "written, and the exit status is 1.",
     mixOptions},
    runMix};

} // namespace tarsil::batch
