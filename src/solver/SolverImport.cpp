#include "solver/SolverImport.h"

#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "solver/Ev2Text.h"
#include "solver/RunNames.h"
#include "solver/SummaryReader.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tarsil::solver {

namespace {

/// The Mach number of all points; nothing when they differ.
std::optional<double> commonMach(const ImportedRun& imported)
{
    std::optional<double> mach;
    for (const ImportedMode& mode : imported.modes) {
        for (const ImportedPoint& point : mode.points) {
            if (std::isnan(point.mach) || (mach && *mach != point.mach))
                return std::nullopt;
            mach = point.mach;
        }
    }
    return mach;
}

std::string joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += (text.empty() ? "" : "; ") + line;
    return text;
}

/// The log of the file's lines that belong to a run, then those of the run.
std::vector<std::string> logOf(const SolverOutput& output, const SolverRun& run,
                               const ImportedRun& imported)
{
    std::vector<std::string> lines;
    for (const LogEntry& entry : output.file.log) {
        if (entry.line >= run.firstLine && entry.line <= run.lastLine)
            lines.push_back("line " + std::to_string(entry.line) + ": " + entry.text);
    }
    lines.insert(lines.end(), run.log.begin(), run.log.end());
    lines.insert(lines.end(), imported.log.begin(), imported.log.end());
    return lines;
}

std::string legendOf(const SolverRun& run)
{
    const std::string subcase = run.key.subcase ? "SUBCASE " + *run.key.subcase : std::string();
    if (run.label.empty() || subcase.empty())
        return run.label + subcase;
    return run.label + ", " + subcase;
}

Ev2Header headerOf(const SolverOutput& output, const SolverRun& run, const ImportedRun& imported,
                   const UnitChoice& units, const ImportTexts& texts)
{
    Ev2Header header;
    header.programVersion = texts.programVersion;
    header.runningDate = run.date;
    header.solverVersion = run.banner;
    header.flutterMethod = run.key.method;
    header.airplane = texts.airplane.empty() ? run.title : texts.airplane;
    header.script = run.subtitle;
    header.massConfiguration = texts.massConfiguration;
    header.mach = commonMach(imported);
    header.analysisType = "Flutter";
    if (const std::string legend = legendOf(run); !legend.empty())
        header.legends.push_back(legend);
    header.furtherKeys = {
        {"Source", output.path},
        {"Source_lines", std::to_string(run.firstLine) + "-" + std::to_string(run.lastLine)},
        {"Speed_unit", std::string(units.speed.name) + (units.isEquivalent ? " (equivalent)" : "")},
        {"Vref", shortestText(units.vref)},
        {"Density", std::string(units.density.name)},
        {"Import_log", joined(logOf(output, run, imported))}};
    return header;
}

std::string stemOf(std::string_view path)
{
    const std::string name = resolvePath(path).name;
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

} // namespace

SolverOutput readSolverOutput(std::string_view path)
{
    SolverOutput output;
    output.path = std::string(path);
    output.file = readSummaries(path);
    output.runs = runsOf(output.file);
    output.names = runNames(output.runs, stemOf(path));
    output.evidence = unitEvidence(output.runs);
    return output;
}

bool carriesDensity(const SolverRun& run)
{
    return run.key.densityRatio
        || std::any_of(run.roots.begin(), run.roots.end(), [](const PrintedRoot& root) {
               return std::any_of(root.rows.begin(), root.rows.end(),
                                  [](const SummaryRow& row) { return !std::isnan(row.density); });
           });
}

std::string evolutionText(const SolverOutput& output, std::size_t run, const UnitChoice& units,
                          const ImportTexts& texts)
{
    const SolverRun& source = output.runs.at(run);
    if (!units.isEquivalent && !carriesDensity(source))
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "solver",
                           output.path + ", line " + std::to_string(source.firstLine)
                               + ": the summary has no density, so that its speeds cannot be "
                                 "turned into equivalent airspeeds");
    const ImportedRun imported = importRun(source, units);
    return ev2Text(headerOf(output, source, imported, units, texts), imported.modes);
}

} // namespace tarsil::solver
