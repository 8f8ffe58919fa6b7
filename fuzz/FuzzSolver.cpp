// SPDX-License-Identifier: Apache-2.0

// Printed flutter summaries, up to the evolutions made from them.

#include "FuzzTarget.h"

#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"
#include "solver/Ev2Text.h"
#include "solver/RunNames.h"
#include "solver/SummaryReader.h"
#include "solver/UnitEvidence.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace {

using namespace tarsil;
using namespace tarsil::solver;

void requireTables(const SummaryFile& file, std::string_view text)
{
    const auto lineEnds = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    fuzz::require(file.lines <= lineEnds + 1, "lines are those of the text");
    std::size_t rows = 0;
    for (const SummaryTable& table : file.tables) {
        fuzz::require(!table.rows.empty(), "a table has rows");
        fuzz::require(table.firstLine < table.lastLine, "rows follow the title");
        for (const SummaryRow& row : table.rows) {
            const bool isUsable = std::isfinite(row.speed) && std::isfinite(row.damping)
                && std::isfinite(row.frequency);
            fuzz::require(isUsable, "a row has speed, damping and frequency");
        }
        rows += table.rows.size();
    }
    fuzz::require(rows <= file.lines, "a row is a line");
}

void requireRun(const SolverRun& run)
{
    for (const PrintedRoot& root : run.roots)
        fuzz::require(root.rows.size() == run.roots.front().rows.size(), "roots of equal length");
    try {
        const ImportedRun imported = importRun(run, {});
        for (const ImportedMode& mode : imported.modes)
            fuzz::require(mode.points.size() == imported.modes.front().points.size(),
                          "modes of equal length");
        fuzz::require(!ev2Text(EVM(), imported.modes).empty(), "an evolution has a text");
    } catch (const RunTimeError& error) {
        fuzz::require(error.number() == ErrorNumber::Overflow,
                      "only counts and speeds are too large");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    SummaryScanner scanner;
    scanner.read(fuzz::textOf(data, size));
    const SummaryFile file = scanner.result();
    requireTables(file, fuzz::textOf(data, size));
    const std::vector<SolverRun> runs = runsOf(file);
    for (const SolverRun& run : runs)
        requireRun(run);
    const std::vector<std::string> names = runNames(runs, "fuzz");
    fuzz::require(std::set<std::string>(names.begin(), names.end()).size() == names.size(),
                  "names differ");
    for (const std::string& line : evidenceText(unitEvidence(runs), file))
        fuzz::require(isUtf8(line), "evidence can be shown");
    return 0;
}
