// SPDX-License-Identifier: Apache-2.0
#include "solver/SolverImport.h"

#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"
#include "model/Provenance.h"
#include "solver/Ev2Text.h"
#include "solver/PageHeader.h"
#include "solver/RunNames.h"
#include "solver/SummaryReader.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tarsil::solver {

namespace {

/// The log entries of the lines of a run, followed by those of its import.
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

void fillHeader(const SolverRun& run, const ImportTexts& texts, EVM& header)
{
    header.programVersion = texts.programVersion;
    header.ev2Version = "2";
    header.runningDate = run.date;
    header.solverVersion = run.banner;
    header.flutterMethod = run.key.method;
    header.Param.Airplane = texts.airplane.empty() ? run.title : texts.airplane;
    header.Param.Script = run.subtitle;
    header.Param.Mass = texts.massConfiguration;
    header.Param.AnalysisType = "Flutter";
    if (const std::string legend = legendOf(run); !legend.empty())
        header.Param.legends.add("1", legend);
}

Provenance provenanceOf(const SolverOutput& output, const SolverRun& run,
                        const ImportedRun& imported, const UnitChoice& units)
{
    Provenance provenance;
    provenance.source = wholePath(output.path);
    provenance.sourceLines = std::to_string(run.firstLine) + "-" + std::to_string(run.lastLine);
    provenance.speedUnit = units.speed.name;
    if (units.isEquivalent)
        provenance.speedUnit += " (equivalent)";
    provenance.vref = shortestText(units.vref);
    provenance.density = units.density.name;
    provenance.setLogEntries(logOf(output, run, imported));
    return provenance;
}

std::string stemOf(std::string_view path)
{
    const std::string name = resolvePath(path).name;
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

} // namespace

SolverOutput readSolverOutput(std::string_view path, const Progress& progress)
{
    SolverOutput output;
    output.path = std::string(path);
    output.file = readSummaries(path, progress);
    output.runs = runsOf(output.file);
    output.names = runNames(output.runs, stemOf(path));
    output.evidence = unitEvidence(output.runs);
    return output;
}

bool carriesDensity(const SolverRun& run)
{
    return run.key.densityRatio || printsDensities(run);
}

bool printsDensities(const SolverRun& run)
{
    return std::any_of(run.roots.begin(), run.roots.end(), [](const PrintedRoot& root) {
        return std::any_of(root.rows.begin(), root.rows.end(),
                           [](const SummaryRow& row) { return !std::isnan(row.density); });
    });
}

std::optional<std::string> refusalOf(const SolverOutput& output)
{
    if (!output.runs.empty())
        return std::nullopt;
    const std::string path = shownPath(output.path);
    if (output.file.isBinary)
        return path + " contains no flutter summary: it is a binary file and no printed output";
    if (output.file.lines == 0)
        return path + " is empty";
    if (output.file.log.empty())
        return path + " contains no flutter summary: no line ends in \"" + std::string(summaryTitle)
            + "\"";
    const LogEntry& first = output.file.log.front();
    return path + " contains no flutter summary that can be read: line "
        + std::to_string(first.line) + ": " + first.text;
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
    EVM header;
    fillHeader(source, texts, header);
    header.provenance = provenanceOf(output, source, imported, units);
    return ev2Text(header, imported.modes);
}

} // namespace tarsil::solver
