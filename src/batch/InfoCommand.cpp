// SPDX-License-Identifier: Apache-2.0
#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/text/TextCodec.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/InfoText.h"
#include "batch/JsonWriter.h"
#include "batch/WorkspaceInfo.h"
#include "batch/WorkspaceInput.h"
#include "document/WorkspaceSource.h"
#include "formats/FormatTable.h"
#include "solver/SolverImport.h"

#include <array>
#include <ostream>

namespace tarsil::batch {

namespace {

void writeTexts(JsonWriter& json, std::string_view name, const KeyedTexts& texts)
{
    json.key(name);
    json.beginArray();
    for (const KeyedTexts::Entry& entry : texts) {
        json.beginObject();
        json.text("key", entry.key);
        json.text("text", entry.text);
        json.endObject();
    }
    json.endArray();
}

/// Writes where an imported evolution comes from.
void writeProvenance(JsonWriter& json, const Provenance& provenance)
{
    json.key("imported");
    json.beginObject();
    json.text("source", provenance.source);
    json.text("source_lines", provenance.sourceLines);
    json.text("speed_unit", provenance.speedUnit);
    json.text("vref", provenance.vref);
    json.text("density", provenance.density);
    json.key("log");
    json.beginArray();
    for (const std::string& entry : provenance.logEntries())
        json.text(entry);
    json.endArray();
    json.endObject();
}

void writePoint(JsonWriter& json, const Point& point, bool isImported)
{
    json.beginObject();
    json.number("speed", point.speed);
    json.number("g", point.G);
    json.number("f", point.f);
    json.number("kfreq", point.kfreq);
    json.number("re", point.re);
    json.number("im", point.im);
    if (isImported) {
        json.number("mach", point.mach);
        json.number("sigma", point.sigma);
    }
    json.key("mpf");
    json.beginArray();
    for (const float factor : point.mpf)
        json.number(shortestText(factor));
    json.endArray();
    json.endObject();
}

void writeModes(JsonWriter& json, const EVM& evolution, bool withPoints)
{
    json.key("modes");
    json.beginArray();
    for (const auto& mode : evolution.Modes) {
        json.beginObject();
        json.number("id", std::to_string(mode->Id));
        json.key("points");
        if (withPoints) {
            json.beginArray();
            for (const Point& point : mode->Points)
                writePoint(json, point, evolution.provenance.isImported());
            json.endArray();
        } else {
            json.number(std::to_string(mode->Points.size()));
        }
        json.endObject();
    }
    json.endArray();
}

void writeEvolution(JsonWriter& json, const EVM& evolution, bool withPoints)
{
    json.beginObject();
    json.text("file", evolution.FileName);
    json.text("folder", evolution.Folder);
    json.text("format", formatOf(evolution.FileName).name);
    json.text("airplane", evolution.Param.Airplane);
    json.text("mass", evolution.Param.Mass);
    json.number("mach", evolution.Param.Mach);
    json.text("analysis_type", evolution.Param.AnalysisType);
    json.text("script", evolution.Param.Script);
    json.text("method", evolution.flutterMethod);
    json.text("solver_version", evolution.solverVersion);
    json.text("program_version", evolution.programVersion);
    json.text("ev2_version", evolution.ev2Version);
    json.text("running_date", evolution.runningDate);
    json.number("struct_modes", std::to_string(evolution.numberOfStructuralModes));
    json.number("aeroel_modes", std::to_string(evolution.na));
    json.number("speeds", std::to_string(evolution.numberOfSpeeds));
    json.boolean("participation_factors", evolution.hasParticipationFactors);
    if (evolution.provenance.isImported())
        writeProvenance(json, evolution.provenance);
    writeTexts(json, "modifications", evolution.Param.modifications);
    writeTexts(json, "legends", evolution.Param.legends);
    writeModes(json, evolution, withPoints);
    json.endObject();
}

void printInfoJson(const std::vector<const EVM*>& evolutions, bool withPoints, std::ostream& out)
{
    JsonWriter json(out);
    json.beginObject();
    json.key("files");
    json.beginArray();
    for (const EVM* evolution : evolutions)
        writeEvolution(json, *evolution, withPoints);
    json.endArray();
    json.endObject();
    out << '\n';
}

void printProvenance(const Provenance& provenance, std::ostream& out)
{
    printLine(out, "imported from", provenance.source);
    printLine(out, "its lines", provenance.sourceLines);
    printLine(out, "printed speeds", provenance.speedUnit + ", vref " + provenance.vref);
    printLine(out, "printed densities", provenance.density);
    for (const std::string& entry : provenance.logEntries())
        printLine(out, "import", entry);
}

void printHeader(const EVM& evolution, std::ostream& out)
{
    printLine(out, "folder", evolution.Folder);
    printLine(out, "format", std::string(formatOf(evolution.FileName).title));
    printLine(out, "airplane", evolution.Param.Airplane);
    printLine(out, "mass configuration", evolution.Param.Mass);
    printLine(out, "Mach number",
              evolution.Param.Mach > 0 ? shortestText(evolution.Param.Mach) : "not given");
    printLine(out, "analysis type", evolution.Param.AnalysisType);
    printLine(out, "script", evolution.Param.Script);
    printLine(out, "flutter method", evolution.flutterMethod);
    printLine(out, "solver version", evolution.solverVersion);
    printLine(out, "program version", evolution.programVersion);
    printLine(out, "EV2 version", evolution.ev2Version);
    printLine(out, "running date", evolution.runningDate);
    if (evolution.isNewFormat)
        printLine(out, "structural modes", std::to_string(evolution.numberOfStructuralModes));
    printLine(out, "modes declared", std::to_string(evolution.na));
    printLine(out, "speeds declared", std::to_string(evolution.numberOfSpeeds));
    printLine(out, "participation factors", evolution.hasParticipationFactors ? "yes" : "no");
    if (evolution.provenance.isImported())
        printProvenance(evolution.provenance, out);
    for (const KeyedTexts::Entry& entry : evolution.Param.modifications)
        printLine(out, "modification " + entry.key, entry.text);
    for (const KeyedTexts::Entry& entry : evolution.Param.legends)
        printLine(out, "legend " + entry.key, entry.text);
}

void printPoints(const EVM& evolution, const AeMode& mode, std::ostream& out)
{
    const bool isImported = evolution.provenance.isImported();
    std::vector<std::string> headings = {"speed (KEAS)",  "g",         "f (Hz)",
                                         "reduced freq.", "real part", "imag. part"};
    if (isImported)
        headings.insert(headings.end(), {"Mach number", "density ratio"});
    if (evolution.hasParticipationFactors)
        headings.insert(headings.end(), {"MPF(1)", "MPF(2)", "MPF(3)", "MPF(4)", "MPF(5)"});
    printRow(out, wideColumn, headings);
    for (const Point& point : mode.Points) {
        std::vector<std::string> cells;
        for (const float value : {point.speed, point.G, point.f, point.kfreq, point.re, point.im})
            cells.push_back(shortestText(value));
        if (isImported)
            cells.insert(cells.end(), {shortestText(point.mach), shortestText(point.sigma)});
        for (const float factor : point.mpf)
            cells.push_back(shortestText(factor));
        printRow(out, wideColumn, cells);
    }
}

/// Prints the modes as a table, or each mode with a table of its points.
void printModes(const EVM& evolution, bool withPoints, std::ostream& out)
{
    const std::vector<std::string> headings = {"position", "number", "points"};
    if (!withPoints)
        printRow(out, narrowColumn, headings);
    std::size_t position = 0;
    for (const auto& mode : evolution.Modes) {
        const std::string number = std::to_string(mode->Id);
        const std::string count = std::to_string(mode->Points.size());
        if (!withPoints) {
            printRow(out, narrowColumn, {std::to_string(++position), number, count});
            continue;
        }
        out << "\n  position " << ++position << ", mode " << number << ", " << count
            << (count == "1" ? " point\n" : " points\n");
        printPoints(evolution, *mode, out);
    }
}

void printTexts(const std::vector<const EVM*>& evolutions, bool withPoints, std::ostream& out)
{
    bool isFirst = true;
    for (const EVM* evolution : evolutions) {
        out << (isFirst ? "" : "\n") << printableText(evolution->FileName) << '\n';
        isFirst = false;
        printHeader(*evolution, out);
        printModes(*evolution, withPoints, out);
    }
}

/// Refuses options and operands that cannot be combined with a workspace.
void refuseBesideWorkspace(const CommandLine& line)
{
    if (line.operands().size() > 1)
        throw UsageError("a workspace must be the only file");
    if (line.has("--points"))
        throw UsageError("--points: a workspace has no points");
}

/// Whether a file whose name is not that of an evolution contains printed flutter summaries.
bool isSolverOutput(const std::string& path)
{
    return findFormat(resolvePath(path).name) == nullptr && fileExists(path)
        && !solver::readSolverOutput(path).runs.empty();
}

/// Prints what solver outputs are and how to convert them.
int printSolverOutputs(const CommandLine& line, std::ostream& out)
{
    if (line.has("--json") || line.has("--points"))
        throw UsageError(
            "a printed flutter summary has no modes yet: use import, or import --json");
    for (const std::string& path : line.operands()) {
        const std::size_t count = solver::readSolverOutput(path).runs.size();
        if (count == 0)
            throw Failure(path + " is not a printed flutter summary like the other files");
        out << printableText(resolvePath(path).name) << '\n';
        printLine(out, "format", "printed flutter summary");
        printLine(out, "analyses", std::to_string(count));
        printLine(out, "to import it", "tarsil-batch import " + path);
    }
    return done;
}

int runInfo(const CommandLine& line, BatchRun& run)
{
    if (isSolverOutput(line.operands().front()))
        return printSolverOutputs(line, run.out());
    if (hasWorkspace(line.operands())) {
        refuseBesideWorkspace(line);
        const std::string& path = line.operands().front();
        const WorkspaceRecord record = readWorkspaceFile(path);
        if (line.has("--json"))
            printWorkspaceJson(record, run.out());
        else
            printWorkspaceText(record, resolvePath(path).name, run.out());
        return done;
    }
    // Reads all files before it prints anything, so that an error prints no partial answer.
    std::vector<const EVM*> evolutions;
    for (const std::string& path : line.operands())
        evolutions.push_back(&run.open(path));
    const auto print = line.has("--json") ? printInfoJson : printTexts;
    print(evolutions, line.has("--points"), run.out());
    return done;
}

constexpr std::array<OptionDescription, 2> infoOptions = {
    {{"--json", "", "prints JSON for other programs"},
     {"--points", "", "includes every point of every mode"}}};

} // namespace

constinit const Command infoCommand {
    {"info", "FILE...", anyNumber, "prints the contents of files",
     "Prints the contents of the files: airplane, mass configuration, Mach number,\n"
     "method, legends, and the modes with their numbers of points.\n"
     "\n"
     "For a workspace, which must be the only FILE: description, dates, files, and\n"
     "the texts, axes and series of every plot. Its evolutions are not needed.",
     infoOptions},
    runInfo};

} // namespace tarsil::batch
