// SPDX-License-Identifier: Apache-2.0
#include "batch/FlutterTable.h"

#include "analysis/Sheet.h"
#include "base/files/PathNames.h"
#include "base/text/QuotedText.h"
#include "base/user/RunTimeError.h"
#include "batch/BatchRun.h"
#include "batch/CommandLine.h"
#include "model/AeMode.h"
#include "model/EVM.h"

#include <set>

namespace tarsil::batch {

float FlutterTableOptions::machNumber() const
{
    return mach ? singlesOf(*mach, 1, "--mach").front() : 0;
}

std::optional<std::string> machOf(const CommandLine& line)
{
    auto text = line.value("--mach");
    if (text && singlesOf(*text, 1, "--mach").front() <= 0)
        throw UsageError("--mach: " + quotedText(*text) + " is not a number greater than 0");
    return text;
}

bool writeFlutterTable(const std::vector<ReportRow>& rows, const FlutterTableOptions& options,
                       Sheet& sheet, BatchRun& run)
{
    const auto answerMach = [&options](const AeMode& mode, std::string_view) {
        if (!options.mach)
            throw Failure(shownPath(mode.Parent->path()) + " has no Mach number; use --mach");
        return std::optional(*options.mach);
    };
    std::set<std::string> complaints;
    const auto complain = [&complaints, &run](const RunTimeError& error) {
        if (complaints.insert(error.description()).second)
            run.complain(run.readable(error.description()) + "; the cells that need it stay empty");
    };
    FlutterReport(options.referenceDamping, options.speedLimit, answerMach)
        .writeWhatCan(rows, sheet, complain);
    return complaints.empty();
}

} // namespace tarsil::batch
