// SPDX-License-Identifier: Apache-2.0
#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/text/QuotedText.h"
#include "base/text/TextCodec.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/JsonWriter.h"
#include "solver/ImportPlan.h"

#include <array>
#include <filesystem>
#include <ostream>
#include <system_error>

namespace tarsil::batch {

namespace {

using solver::SolverOutput;
using solver::SolverRun;
using solver::UnitChoice;

template <typename Units>
std::string namesOf(const Units& units)
{
    std::string names;
    for (const solver::Unit& unit : units)
        names += (names.empty() ? "" : ", ") + std::string(unit.name);
    return names;
}

template <typename Units>
UsageError notAUnit(std::string_view option, std::string_view text, const Units& units)
{
    return UsageError(std::string(option) + ": " + quotedText(text) + " is not one of "
                      + namesOf(units));
}

/// The units on the command line; empty without --speed-unit.
std::optional<UnitChoice> unitChoice(const CommandLine& line)
{
    UnitChoice choice;
    if (const auto vref = line.number("--vref")) {
        if (!(*vref > 0))
            throw UsageError("--vref: " + quotedText(*line.value("--vref"))
                             + " is not a number greater than 0");
        choice.vref = *vref;
    }
    if (const auto density = line.value("--density")) {
        const auto unit = solver::densityUnit(*density);
        if (!unit)
            throw notAUnit("--density", *density, solver::densityUnits);
        choice.density = *unit;
    }
    choice.isEquivalent = line.has("--equivalent");
    const auto speed = line.value("--speed-unit");
    if (!speed)
        return std::nullopt;
    const auto unit = solver::speedUnit(*speed);
    if (!unit)
        throw notAUnit("--speed-unit", *speed, solver::speedUnits);
    choice.speed = *unit;
    return choice;
}

/// "subcase 1, PK, Mach 0.3, 10 roots, 21 rows, lines 800-1200".
std::string describe(const SolverRun& run)
{
    std::string text;
    if (run.key.subcase)
        text += "subcase " + *run.key.subcase + ", ";
    text += run.key.method;
    if (run.key.mach)
        text += ", Mach " + shortestText(*run.key.mach);
    if (run.key.densityRatio)
        text += ", density ratio " + shortestText(*run.key.densityRatio);
    if (run.cycle > 1)
        text += ", pass " + std::to_string(run.cycle);
    return text + ", " + std::to_string(run.roots.size()) + " roots, "
        + std::to_string(run.roots.front().rows.size()) + " rows, lines "
        + std::to_string(run.firstLine) + "-" + std::to_string(run.lastLine);
}

void printProposals(std::ostream& out, const SolverOutput& output)
{
    out << printableText(output.path) << '\n';
    for (std::size_t i = 0; i < output.runs.size(); ++i)
        out << "  " << printableText(output.names[i]) << ": "
            << printableText(describe(output.runs[i])) << '\n';
    for (const std::string& line : solver::evidenceText(output.evidence, output.file))
        out << "  " << printableText(line) << '\n';
    for (const solver::LogEntry& entry : output.file.log)
        out << "  line " << entry.line << ": " << printableText(entry.text) << '\n';
}

void writeNumber(JsonWriter& json, std::string_view name, const std::optional<double>& value)
{
    json.key(name);
    if (value)
        json.number(shortestText(*value));
    else
        json.null();
}

void writeSolverRun(JsonWriter& json, const SolverOutput& output, std::size_t index)
{
    const SolverRun& run = output.runs[index];
    json.beginObject();
    json.text("name", output.names[index]);
    json.key("subcase");
    if (run.key.subcase)
        json.text(*run.key.subcase);
    else
        json.null();
    json.text("method", run.key.method);
    writeNumber(json, "mach", run.key.mach);
    writeNumber(json, "sigma_value", run.key.sigmaValue);
    writeNumber(json, "density_ratio", run.key.densityRatio);
    json.number("cycle", std::to_string(run.cycle));
    json.text("banner", run.banner);
    json.text("title", run.title);
    json.text("subtitle", run.subtitle);
    json.text("label", run.label);
    json.number("first_line", std::to_string(run.firstLine));
    json.number("last_line", std::to_string(run.lastLine));
    json.boolean("cut_to_shortest", run.wasCut);
    json.key("modes");
    json.beginArray();
    for (const solver::PrintedRoot& root : run.roots)
        json.number(std::to_string(root.id));
    json.endArray();
    json.number("rows", std::to_string(run.roots.front().rows.size()));
    json.endObject();
}

void writeTables(JsonWriter& json, const SolverOutput& output)
{
    json.key("tables");
    json.beginArray();
    for (const solver::SummaryTable& table : output.file.tables) {
        json.beginObject();
        json.number("point", std::to_string(table.point));
        json.text("method", table.key.method);
        json.number("rows", std::to_string(table.rows.size()));
        json.boolean("density", table.carriesDensity);
        json.number("first_line", std::to_string(table.firstLine));
        json.number("last_line", std::to_string(table.lastLine));
        json.endObject();
    }
    json.endArray();
}

void writeUnit(JsonWriter& json, std::string_view name, const std::optional<solver::Unit>& unit)
{
    json.key(name);
    if (unit)
        json.text(unit->name);
    else
        json.null();
}

void writeProposals(JsonWriter& json, const SolverOutput& output)
{
    const solver::UnitEvidence& evidence = output.evidence;
    json.key("proposals");
    json.beginObject();
    writeUnit(json, "speed_unit", evidence.speed);
    writeUnit(json, "density", evidence.density);
    writeNumber(json, "chord", evidence.chord);
    json.boolean("chord_consistent", evidence.isChordConsistent);
    writeNumber(json, "speed_of_sound", evidence.speedOfSound);
    json.key("evidence");
    json.beginArray();
    for (const std::string& line : solver::evidenceText(evidence, output.file))
        json.text(line);
    json.endArray();
    json.endObject();
}

void writeFile(JsonWriter& json, const SolverOutput& output)
{
    json.beginObject();
    json.text("file", output.path);
    json.number("lines", std::to_string(output.file.lines));
    writeTables(json, output);
    json.key("groups");
    json.beginArray();
    for (std::size_t i = 0; i < output.runs.size(); ++i)
        writeSolverRun(json, output, i);
    json.endArray();
    writeProposals(json, output);
    json.key("log");
    json.beginArray();
    for (const solver::LogEntry& entry : output.file.log) {
        json.beginObject();
        json.number("line", std::to_string(entry.line));
        json.text("text", entry.text);
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

int printSolverJson(const std::vector<SolverOutput>& outputs, std::ostream& out)
{
    JsonWriter json(out);
    json.beginObject();
    json.key("files");
    json.beginArray();
    for (const SolverOutput& output : outputs)
        writeFile(json, output);
    json.endArray();
    json.endObject();
    out << '\n';
    return done;
}

/// Writes the evolutions. The status is 1 if one could not be written.
int writeEvolutions(const solver::ImportPlan& plan, BatchRun& run)
{
    const solver::WrittenFiles written = plan.write();
    for (const std::string& path : written.paths)
        run.out() << printableText(shownPath(path)) << '\n';
    for (const std::string& failure : written.failures)
        run.complain(failure);
    for (const std::string& doubt : plan.doubts())
        run.complain(doubt);
    for (const std::string& finding : plan.findings())
        run.complain(finding);
    return written.failures.empty() ? done : failed;
}

/// A folder whose state is unknown shows it when the first file is written.
std::string existingFolder(const CommandLine& line)
{
    const auto folder = line.value("--output");
    if (!folder)
        throw UsageError("--output is missing: the folder to write to");
    std::error_code unknown;
    const auto status = std::filesystem::status(nativePath(*folder), unknown);
    if (std::filesystem::status_known(status) && !std::filesystem::is_directory(status))
        throw Failure(quotedText(*folder) + " is not a folder");
    return *folder;
}

std::vector<SolverOutput> readAll(const CommandLine& line)
{
    std::vector<SolverOutput> outputs;
    for (const std::string& path : line.operands())
        outputs.push_back(solver::readSolverOutput(path));
    return outputs;
}

solver::ImportPlan planOf(const CommandLine& line)
{
    solver::ImportPlan plan;
    for (const std::string& path : line.operands()) {
        plan.add(path);
        if (!plan.refusals().empty())
            throw Failure(plan.refusals().front());
    }
    plan.setTexts({"tarsil-batch " TARSIL_VERSION, line.value("--airplane").value_or(std::string()),
                   line.value("--mass").value_or(std::string())});
    return plan;
}

int runImport(const CommandLine& line, BatchRun& run)
{
    const std::optional<UnitChoice> units = unitChoice(line);
    if (line.has("--json"))
        return printSolverJson(readAll(line), run.out());
    const std::string folder = units ? existingFolder(line) : std::string();
    solver::ImportPlan plan = planOf(line);
    if (!units) {
        for (const SolverOutput& output : plan.outputs())
            printProposals(run.out(), output);
        throw UsageError("--speed-unit is missing: one of " + namesOf(solver::speedUnits));
    }
    plan.setUnits(*units);
    plan.setFolder(folder);
    return writeEvolutions(plan, run);
}

constexpr std::array<OptionDescription, 8> importOptions = {
    {{"--speed-unit", "UNIT", "unit of the printed speeds: m/s, ft/s, in/s, mm/s or kt"},
     {"--vref", "X", "divisor of the printed speeds (PARAM,VREF); default 1"},
     {"--density", "UNIT",
      "unit of the printed densities: ratio (default), kg/m3,\nslug/ft3, lbf.s2/in4 or t/mm3"},
     {"--equivalent", "", "the printed speeds are equivalent airspeeds"},
     {"--airplane", "TEXT", "airplane; default is the title of the analysis"},
     {"--mass", "TEXT", "mass configuration"},
     {"--json", "", "prints the contents of the files, and writes nothing"},
     {"--output", "FOLDER", "folder for the evolutions"}}};

} // namespace

constinit const Command importCommand {
    {"import", "FILE...", anyNumber, "converts printed flutter summaries to evolutions",
     "Reads the flutter summaries that solvers print (.f06, .out and others) and writes\n"
     "each analysis as an evolution (.ev2). The files do not contain the unit of the\n"
     "printed speeds: without --speed-unit the command prints what the numbers prove,\n"
     "writes nothing, and exits with status 2.",
     importOptions},
    runImport};

} // namespace tarsil::batch
