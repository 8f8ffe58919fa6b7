// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/WorkspaceInput.h"
#include "formats/EvmFormat.h"
#include "formats/EvolutionFile.h"

#include <array>

namespace tarsil::batch {

namespace {

constexpr std::array convertOutputs = {evmFormat.extension};

int runConvert(const CommandLine& line, BatchRun& run)
{
    const std::string output = outputOf(line, convertOutputs);
    const std::string& input = line.operands().front();
    if (isWorkspace(input))
        throw UsageError(input
                         + " is a workspace; a modal evolution is wanted. To gather the modes "
                           "of its series use mix");
    refuseOutputOverInput(output, input);
    PrintEVM(run.open(input), output);
    return done;
}

constexpr std::array<OptionDescription, 1> convertOptions = {
    {{"--output", "OUTPUT", "the file to write, which ends in .evm", true}}};

} // namespace

constinit const Command convertCommand {
    {"convert", "FILE", 1, "writes an evolution in fixed columns",
     "Writes an evolution in the fixed columns that the programs for such files\n"
     "expect: the counts are further left than in the files that this program reads,\n"
     "and the damping keeps its sign. This program is not meant to open such a file.",
     convertOptions},
    runConvert};

} // namespace tarsil::batch
