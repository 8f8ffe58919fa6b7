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

/// Prints the findings of one file; whether there were none.
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
     "prints what is wrong in files",
     "Prints what is wrong in the files, each finding on one line as\n"
     "\n"
     "  FILE:LINE: text\n"
     "\n"
     "and ends with status 1 when there is any: counts that disagree with\n"
     "what follows, a mode cut short, speeds that do not increase, a\n"
     "repeated mode number, rows of different widths, a file that ends within\n"
     "a number, text behind a number, and the like. Control characters of\n"
     "names and texts are shown as question marks.\n"
     "\n"
     "Of a workspace: files that are missing or elsewhere, series that name an\n"
     "evolution or mode that is not there, counts that disagree with what\n"
     "follows, values longer than what is read of them, texts that were cut,\n"
     "a file that was cut, and where it cannot be read on. The evolutions that\n"
     "it lists are not checked themselves.",
     {}},
    runCheck};

} // namespace tarsil::batch
