// SPDX-License-Identifier: Apache-2.0
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/WorkspaceChecker.h"
#include "batch/WorkspaceInput.h"
#include "formats/EvolutionChecker.h"

#include <ostream>

namespace tarsil::batch {

namespace {

/// Prints the findings of a file. Returns whether there were none.
bool check(const std::string& path, BatchRun& run)
{
    try {
        const std::vector<Finding> findings =
            isWorkspace(path) ? checkWorkspace(path, run) : checkEvolution(path);
        for (const Finding& finding : findings)
            run.out() << printableText(path) << ':' << finding.line << ": "
                      << printableText(finding.text) << '\n';
        return findings.empty();
    } catch (const RunTimeError& error) {
        run.complain(error.description());
        return false;
    }
}

int runCheck(const CommandLine& line, BatchRun& run)
{
    bool isClean = true;
    for (const std::string& path : line.operands())
        isClean = check(path, run) && isClean;
    return isClean ? done : failed;
}

} // namespace

constinit const Command checkCommand {
    {"check",
     "FILE...",
     anyNumber,
     "prints the faults of files",
     "Prints the faults of the files, each finding on one line as\n"
     "\n"
     "  FILE:LINE: text\n"
     "\n"
     "and exits with status 1 if there are any: counts that disagree with the\n"
     "contents, a truncated mode, speeds that do not increase, a repeated mode\n"
     "number, rows of different widths, a file that ends within a number, text\n"
     "after a number, and so on. Control characters in names and texts are\n"
     "printed as question marks.\n"
     "\n"
     "In a workspace: files that are missing or found elsewhere, series with an\n"
     "evolution or mode that does not exist, counts that disagree with the\n"
     "contents, values longer than the limit, truncated texts, a truncated file,\n"
     "and the error that ends reading. The listed evolutions are not checked.",
     {}},
    runCheck};

} // namespace tarsil::batch
