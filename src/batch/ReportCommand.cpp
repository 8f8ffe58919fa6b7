#include "analysis/FlutterReport.h"
#include "analysis/SheetWriter.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/ModeList.h"
#include "runtime/PathNames.h"

#include <array>

namespace tarsil::batch {

namespace {

constexpr std::array<std::string_view, 2> extensions = {".xlsx", ".csv"};

/// The Mach number given for files that hold none, as text; no text when none is given.
std::optional<std::string> machOf(const CommandLine& line)
{
    auto text = line.value("--mach");
    if (text && singlesOf(*text, 1, "--mach").front() <= 0)
        throw UsageError("--mach must be greater than 0");
    return text;
}

int runReport(const CommandLine& line, BatchRun& run)
{
    const std::string output = outputOf(line, extensions);
    const double damping = line.number("--reference-damping").value();
    const double speedLimit = line.number("--speed-limit").value();
    const auto mach = machOf(line);
    const auto listText = line.value("--modes");
    const auto list = listText ? std::optional(modeListOf(*listText)) : std::nullopt;

    std::vector<ReportRow> rows;
    for (const std::string& path : line.operands()) {
        refuseOutputOverInput(output, path);
        const EVM& evolution = run.open(path);
        for (AeMode* mode : selectModes(evolution, list, path))
            rows.push_back({mode, caseTextOf(evolution)});
    }
    const auto answerMach = [&mach](const EVM& evolution, std::string_view) {
        if (!mach)
            throw Failure(shownPath(evolution.path())
                          + " holds no Mach number; give it with --mach");
        return std::optional(*mach);
    };
    Sheet sheet;
    FlutterReport(damping, speedLimit, answerMach).write(rows, sheet);
    writeSheet(sheet, output);
    return done;
}

constexpr std::array<OptionDescription, 5> options = {
    {{"--reference-damping", "G",
      "damping whose crossings are looked for;\n0 is the border of stability", true},
     {"--speed-limit", "V", "speed up to which the maximum damping is looked for", true},
     {"--mach", "M", "Mach number of the files that hold none"},
     {"--modes", "LIST", "modes to report; all of them without this option"},
     {"--output", "OUTPUT", "the file to write, which ends in .xlsx or .csv", true}}};

} // namespace

constinit const Command reportCommand {
    {"report", "FILE...", anyNumber, "writes the flutter table",
     "Writes the flutter table: of each mode the maximum damping up to the speed\n"
     "limit, and every crossing of the reference damping with its speed, frequency,\n"
     "altitude and first participation factor.",
     options},
    runReport};

} // namespace tarsil::batch
