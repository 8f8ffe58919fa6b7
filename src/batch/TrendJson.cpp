// SPDX-License-Identifier: Apache-2.0
#include "batch/TrendJson.h"

#include "analysis/StabilityTexts.h"
#include "analysis/TrendSheet.h"
#include "base/numbers/Numbers.h"
#include "batch/JsonWriter.h"
#include "model/EVM.h"

#include <sstream>

namespace tarsil::batch {

namespace {

void writeOptional(JsonWriter& json, std::string_view name, const std::optional<double>& value)
{
    json.key(name);
    if (value)
        json.number(shortestText(*value));
    else
        json.null();
}

void writeUnstableModes(JsonWriter& json, const TrendPoint& point)
{
    json.key("modes");
    json.beginArray();
    for (const std::int16_t mode : point.modes)
        json.number(std::to_string(mode));
    json.endArray();
}

/// Only a start has a speed; a limit has the speeds from or up to which it is known.
void writeOnset(JsonWriter& json, const TrendPoint& point)
{
    const bool isStart = point.onset == TrendOnset::Start;
    const bool hasFrom = point.onset == TrendOnset::Interval || point.onset == TrendOnset::None;
    const bool hasTo = point.onset == TrendOnset::Interval || point.onset == TrendOnset::FirstSpeed;
    const auto when = [](bool is, double value) {
        return is ? std::optional<double>(value) : std::nullopt;
    };
    json.text("finding", findingOf(point));
    writeOptional(json, "speed", when(isStart, point.speed));
    writeOptional(json, "frequency", when(isStart, isStart ? point.start->frequency : 0));
    writeOptional(json, "from_speed", when(hasFrom, point.speed));
    writeOptional(json, "to_speed", when(hasTo, point.toSpeed));
    if (point.start) {
        json.text("kind", nameOf(point.start->kind));
        json.text("confidence", nameOf(point.start->confidence));
    }
}

void writeTrendPoint(JsonWriter& json, const TrendPoint& point)
{
    json.beginObject();
    json.text("name", point.evolution->FileName);
    json.text("mass", point.evolution->Param.Mass);
    json.number("level", point.level);
    writeOnset(json, point);
    writeUnstableModes(json, point);
    writeOptional(json, "mach", point.condition.mach);
    writeOptional(json, "altitude", point.condition.altitude);
    writeOptional(json, "required_speed", point.required);
    writeOptional(json, "abscissa", point.abscissa);
    if (!point.whyNotDrawn.empty())
        json.text("not_drawn", point.whyNotDrawn);
    json.endObject();
}

} // namespace

std::string trendJson(const FlutterTrend& trend, std::string_view program)
{
    std::ostringstream text;
    JsonWriter json(text);
    json.beginObject();
    json.text("program", program);
    json.text("settings", settingsText(trend.settings));
    json.text("against", nameOf(trend.abscissa));
    json.key("categories");
    json.beginArray();
    for (const std::string& category : trend.categories)
        json.text(category);
    json.endArray();
    json.key("points");
    json.beginArray();
    for (const TrendPoint& point : trend.points)
        writeTrendPoint(json, point);
    json.endArray();
    json.endObject();
    text << '\n';
    return text.str();
}

} // namespace tarsil::batch
