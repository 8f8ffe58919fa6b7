#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/ModeList.h"
#include "model/MdlMix.h"
#include "runtime/PathNames.h"

#include <algorithm>
#include <array>

namespace tarsil::batch {

namespace {

constexpr std::array<std::string_view, 2> extensions = {".mix", ".mx2"};

/// A file and the modes wanted of it; all of them without a list.
struct Ingredient
{
    std::string path;
    std::optional<ModeList> modes;
};

/// FILE or FILE:LIST. A file that has the whole text as its name comes first. What follows the last
/// colon is a list when it looks like one, or when a file stands before it ("C:\wing.ev2" is none).
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

int runMix(const CommandLine& line, BatchRun& run)
{
    const std::string output = outputOf(line, extensions);
    std::vector<Ingredient> ingredients;
    for (const std::string& operand : line.operands())
        ingredients.push_back(ingredientOf(operand));
    std::vector<const AeMode*> modes;
    for (const Ingredient& ingredient : ingredients) {
        refuseOutputOverInput(output, ingredient.path);
        for (const AeMode* mode :
             selectModes(run.open(ingredient.path), ingredient.modes, ingredient.path))
            modes.push_back(mode);
    }
    mdlMix::gather(modes)->PrintEVM(output);
    warnOfDifferentLengths(modes, run);
    return done;
}

constexpr std::array<OptionDescription, 1> options = {
    {{"--output", "OUTPUT", "the file to write, which ends in .mix (or .mx2)", true}}};

} // namespace

constinit const Command mixCommand {
    {"mix", "FILE[:LIST]...", anyNumber, "gathers modes of several files into one",
     "Gathers modes of several files into one evolution in fixed columns. A colon and\n"
     "a LIST behind a FILE choose its modes, such as wing.ev2:1,3-5; without a list\n"
     "all of them are taken. See \"convert\" for the layout.",
     options},
    runMix};

} // namespace tarsil::batch
