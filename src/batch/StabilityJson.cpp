// SPDX-License-Identifier: Apache-2.0
#include "batch/StabilityJson.h"

#include "analysis/StabilitySheet.h"
#include "analysis/StabilityTexts.h"
#include "base/files/FileFacts.h"
#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "batch/JsonWriter.h"
#include "model/EVM.h"

#include <sstream>

namespace tarsil::batch {

namespace {

void number(JsonWriter& json, std::string_view name, double value)
{
    json.number(name, shortestText(value));
}

void number(JsonWriter& json, std::string_view name, const std::optional<double>& value)
{
    json.key(name);
    if (value)
        json.number(shortestText(*value));
    else
        json.null();
}

void count(JsonWriter& json, std::string_view name, std::size_t value)
{
    json.number(name, std::to_string(value));
}

void writeDominant(JsonWriter& json, const std::optional<DominantFactor>& dominant)
{
    json.key("largest_factor");
    if (!dominant) {
        json.null();
        return;
    }
    json.beginObject();
    count(json, "number", dominant->number);
    number(json, "value", dominant->value);
    json.endObject();
}

void writeCondition(JsonWriter& json, const FlightCondition& condition)
{
    number(json, "mach", condition.mach);
    number(json, "altitude", condition.altitude);
    if (!condition.altitude)
        return;
    json.text("altitude_from", condition.isFromDensity ? "density" : "mach");
    json.boolean("altitude_outside", isOutsideAtmosphere(*condition.altitude));
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
    writeCondition(json, crossing->condition);
    writeDominant(json, crossing->dominant);
    json.endObject();
}

void writeStretch(JsonWriter& json, const RootStretches& root, const Stretch& stretch)
{
    json.beginObject();
    json.number("mode", std::to_string(root.mode));
    json.number("level", root.level);
    json.text("direction", directionText(stretch));
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

void writeTouch(JsonWriter& json, const RootStretches& root, const Touch& touch)
{
    json.beginObject();
    json.number("mode", std::to_string(root.mode));
    json.number("level", root.level);
    number(json, "speed", touch.speed);
    json.endObject();
}

void writeVerdict(JsonWriter& json, const StabilityVerdict& verdict, float lastSpeed)
{
    json.beginObject();
    json.number("level", verdict.level);
    json.text("text", verdictText(verdict, lastSpeed));
    json.key("unstable_from_first_speed");
    json.beginArray();
    for (const std::int16_t mode : verdict.unstableFromFirst)
        json.number(std::to_string(mode));
    json.endArray();
    if (verdict.lowest)
        json.number("lowest_mode", std::to_string(verdict.lowestMode));
    writeCrossing(json, "lowest_start", verdict.lowest);
    json.endObject();
}

void writeMargin(JsonWriter& json, const Margin& margin)
{
    json.key("margin");
    json.beginObject();
    json.text("text", marginText(margin));
    json.boolean("pass", margin.passes);
    number(json, "factor", margin.required.requirement.factor);
    json.number("level", margin.required.requirement.level);
    if (margin.required.diveSpeed) {
        json.number("dive_speed", *margin.required.diveSpeed);
        number(json, "required_speed", margin.required.speed());
    }
    number(json, "margin", margin.value());
    json.endObject();
}

/// Writes a list with an item for each element of each root.
template <typename Items, typename Write>
void writeList(JsonWriter& json, std::string_view name, const EvolutionStability& stability,
               Items LevelStretches::*items, Write write)
{
    json.key(name);
    json.beginArray();
    for (const RootStretches& root : stability.roots) {
        for (const auto& item : root.found.*items)
            write(json, root, item);
    }
    json.endArray();
}

void writeStability(JsonWriter& json, const EvolutionStability& stability)
{
    json.beginObject();
    json.text("name", stability.evolution->FileName);
    json.key("verdicts");
    json.beginArray();
    for (const StabilityVerdict& verdict : stability.verdicts)
        writeVerdict(json, verdict, stability.lastSpeed);
    json.endArray();
    if (stability.margin)
        writeMargin(json, *stability.margin);
    count(json, "noise", stability.noise);
    count(json, "weak", stability.weak);
    writeList(json, "stretches", stability, &LevelStretches::stretches, writeStretch);
    writeList(json, "touches", stability, &LevelStretches::touches, writeTouch);
    json.endObject();
}

void writeSettings(JsonWriter& json, const StabilitySettings& settings)
{
    json.key("settings");
    json.beginObject();
    json.key("levels");
    json.beginArray();
    for (const float level : settings.levels)
        json.number(shortestText(level));
    json.endArray();
    number(json, "tolerance", settings.limits.tolerance);
    number(json, "noise", settings.limits.noise);
    number(json, "static", settings.limits.staticFrequency);
    json.boolean("tracked", settings.isTracked);
    json.endObject();
}

void writeSource(JsonWriter& json, const EVM& evolution)
{
    json.beginObject();
    json.text("name", evolution.FileName);
    json.text("path", wholePath(evolution.path()));
    const FileFacts facts = factsOf(evolution.path());
    count(json, "size", facts.size);
    json.text("modified", facts.modified);
    json.text("sha256", facts.sha256);
    json.endObject();
}

} // namespace

std::string stabilityJson(const StabilityReport& report)
{
    std::ostringstream text;
    JsonWriter json(text);
    json.beginObject();
    json.text("program", report.program);
    writeSettings(json, report.settings);
    json.key("sources");
    json.beginArray();
    for (const EvolutionStability& stability : report.evolutions)
        writeSource(json, *stability.evolution);
    json.endArray();
    json.key("evolutions");
    json.beginArray();
    for (const EvolutionStability& stability : report.evolutions)
        writeStability(json, stability);
    json.endArray();
    json.endObject();
    text << '\n';
    return text.str();
}

} // namespace tarsil::batch
