#include "analysis/Sheet.h"
#include "analysis/SheetWriter.h"
#include "analysis/Stability.h"
#include "analysis/StabilitySheet.h"
#include "base/files/AtomicFile.h"
#include "base/numbers/Numbers.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/JsonWriter.h"
#include "batch/WorkspaceInput.h"

#include <array>
#include <sstream>

namespace tarsil::batch {

namespace {

constexpr std::array<std::string_view, 3> extensions = {".json", ".csv", ".xlsx"};
constexpr std::array<std::string_view, 1> jsonExtension = {".json"};

double atLeastZero(const CommandLine& line, std::string_view option, double usual)
{
    const double value = line.number(option).value_or(usual);
    if (!(value >= 0))
        throw UsageError(std::string(option) + ": a number of at least 0 is wanted");
    return value;
}

std::vector<float> levelsOf(const std::string& text)
{
    std::vector<float> levels;
    for (const std::string_view part : split(text, ','))
        levels.push_back(static_cast<float>(numberOf(part, "--levels")));
    return levels;
}

StabilitySettings settingsOf(const CommandLine& line)
{
    StabilitySettings settings;
    if (const auto levels = line.value("--levels"))
        settings.levels = levelsOf(*levels);
    StretchLimits& limits = settings.limits;
    limits.tolerance = atLeastZero(line, "--tolerance", limits.tolerance);
    limits.noise = atLeastZero(line, "--noise", limits.noise);
    limits.staticFrequency = atLeastZero(line, "--static", limits.staticFrequency);
    settings.isTracked = line.has("--tracked");
    return settings;
}

void number(JsonWriter& json, std::string_view name, double value)
{
    json.number(name, shortestText(value));
}

void writeCrossing(JsonWriter& json, std::string_view name, const std::optional<Crossing>& crossing)
{
    json.key(name);
    if (!crossing) {
        json.null();
        return;
    }
    json.beginObject();
    number(json, "speed", crossing->speed);
    number(json, "frequency", crossing->frequency);
    number(json, "from_speed", crossing->fromSpeed);
    number(json, "to_speed", crossing->toSpeed);
    json.text("kind", nameOf(crossing->kind));
    json.text("confidence", nameOf(crossing->confidence));
    json.boolean("jump", crossing->jumps);
    number(json, "speed_curve", crossing->speedOnCurve);
    json.endObject();
}

void writeStretch(JsonWriter& json, const RootStretches& root, const Stretch& stretch)
{
    json.beginObject();
    json.number("mode", std::to_string(root.mode));
    json.number("level", shortestText(root.level));
    writeCrossing(json, "start", stretch.start);
    writeCrossing(json, "end", stretch.end);
    number(json, "peak", stretch.peak);
    number(json, "peak_speed", stretch.peakSpeed);
    number(json, "peak_frequency", stretch.peakFrequency);
    json.text("height_class", nameOf(stretch.height));
    json.boolean("hump", stretch.end.has_value());
    json.boolean("static", stretch.isStatic);
    json.endObject();
}

void writeEvolution(JsonWriter& json, const EVM& evolution, const StabilitySettings& settings)
{
    const std::vector<RootStretches> roots = stabilityOf(evolution, settings);
    json.beginObject();
    json.text("name", evolution.FileName);
    json.key("stretches");
    json.beginArray();
    for (const RootStretches& root : roots) {
        for (const Stretch& stretch : root.found.stretches)
            writeStretch(json, root, stretch);
    }
    json.endArray();
    json.key("touches");
    json.beginArray();
    for (const RootStretches& root : roots) {
        for (const Touch& touch : root.found.touches) {
            json.beginObject();
            json.number("mode", std::to_string(root.mode));
            json.number("level", shortestText(root.level));
            number(json, "speed", touch.speed);
            json.endObject();
        }
    }
    json.endArray();
    json.endObject();
}

std::string jsonText(const std::vector<const EVM*>& evolutions, const StabilitySettings& settings)
{
    std::ostringstream text;
    JsonWriter json(text);
    json.beginObject();
    json.key("evolutions");
    json.beginArray();
    for (const EVM* evolution : evolutions)
        writeEvolution(json, *evolution, settings);
    json.endArray();
    json.endObject();
    text << '\n';
    return text.str();
}

int runCrossings(const CommandLine& line, BatchRun& run)
{
    const std::string output = outputOf(line, extensions);
    const StabilitySettings settings = settingsOf(line);
    if (hasWorkspace(line.operands()))
        throw UsageError("a workspace is given; modal evolutions are wanted");
    std::vector<const EVM*> evolutions;
    for (const std::string& path : line.operands()) {
        refuseOutputOverInput(output, path);
        evolutions.push_back(&run.open(path));
    }
    if (hasExtension(output, jsonExtension)) {
        writeFile(output, jsonText(evolutions, settings));
        return done;
    }
    Sheet sheet;
    writeStability(evolutions, settings, sheet);
    writeSheet(sheet, output);
    return done;
}

constexpr std::array<OptionDescription, 6> options = {
    {{"--levels", "LIST",
      "levels of damping, with commas between them; 0,0.01,0.02,0.03\nwithout this option"},
     {"--tolerance", "G", "a stretch that rises no higher above its level is weak; 0.001"},
     {"--noise", "G", "a stretch that rises no higher is numerical noise; 1e-6"},
     {"--static", "F", "a root is static below this frequency in Hz; 0.1"},
     {"--tracked", "", "follows the roots instead of the printed modes"},
     {"--output", "OUTPUT", "the file to write, which ends in .json, .csv or .xlsx", true}}};

} // namespace

constinit const Command crossingsCommand {
    {"crossings", "FILE...", anyNumber, "says where modes are unstable, and how sure that is",
     "Lists each stretch of speed in which a mode is above a level of damping: where it\n"
     "begins and ends, whether that is flutter or divergence, how high it rises, and how\n"
     "well the points tell it. Tables list the real ones and count noise and weak ones;\n"
     "JSON has all.",
     options},
    runCrossings};

} // namespace tarsil::batch
