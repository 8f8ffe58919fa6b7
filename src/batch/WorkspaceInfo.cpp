// SPDX-License-Identifier: Apache-2.0
#include "batch/WorkspaceInfo.h"

#include "base/numbers/Numbers.h"
#include "base/text/TextCodec.h"
#include "batch/InfoText.h"
#include "batch/JsonWriter.h"
#include "rtf/RtfReader.h"
#include "workspace/WorkspaceRecord.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <ostream>

namespace tarsil::batch {

namespace {

/// The text with "\n" for each line break.
std::string plainLines(const std::string& text)
{
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isFirstOfPair = text.compare(i, 2, "\r\n") == 0;
        if (!isFirstOfPair)
            lines += text[i];
    }
    return lines;
}

/// "#rrggbb" of a colour with red in its low byte.
std::string colorText(ColorValue color)
{
    constexpr std::string_view digits = "0123456789abcdef";
    const auto bits = static_cast<std::uint32_t>(color);
    std::string text = "#";
    for (const unsigned shift : {4U, 0U, 12U, 8U, 20U, 16U})
        text += digits[(bits >> shift) & 0xFU];
    return text;
}

/// Converts the text of a box as the plot does: text without a font gets the font of the box.
RichText richTextOf(const TextRecord& box)
{
    return box.rtf ? readRtf(*box.rtf, TextFormat {}) : RichText {};
}

std::string charactersOf(const RichText& text)
{
    std::u16string characters;
    for (const TextRun& run : text.runs)
        characters += run.text;
    return utf8FromUtf16(characters);
}

void writeTextRun(JsonWriter& json, const TextRun& run)
{
    json.beginObject();
    json.text("text", utf8FromUtf16(run.text));
    json.text("font", run.format.family);
    json.number("size", shortestText(run.format.points));
    json.boolean("bold", run.format.bold);
    json.boolean("italic", run.format.italic);
    json.boolean("underline", run.format.underline);
    json.boolean("strikeout", run.format.strikeOut);
    json.key("color");
    if (run.format.color)
        json.text(colorText(*run.format.color));
    else
        json.null();
    json.endObject();
}

void writeCoordinate(JsonWriter& json, std::string_view name, const TextRecord& box,
                     double BoxPosition::*coordinate)
{
    json.key(name);
    if (box.position)
        json.number(shortestText((*box.position).*coordinate));
    else
        json.null();
}

void writeText(JsonWriter& json, std::string_view name, const TextRecord& box)
{
    const RichText text = richTextOf(box);
    json.key(name);
    json.beginObject();
    json.text("text", charactersOf(text));
    json.key("runs");
    json.beginArray();
    for (const TextRun& run : text.runs)
        writeTextRun(json, run);
    json.endArray();
    writeCoordinate(json, "left", box, &BoxPosition::left);
    writeCoordinate(json, "top", box, &BoxPosition::top);
    json.endObject();
}

void writeAxis(JsonWriter& json, std::string_view name, const AxisValues& axis)
{
    json.key(name);
    json.beginObject();
    json.text("label", axis.title);
    json.number("min", axis.min);
    json.number("max", axis.max);
    json.number("ticks", std::to_string(axis.ticks));
    json.endObject();
}

void writeSeries(JsonWriter& json, const SeriesRecord& series)
{
    json.beginObject();
    json.number("evolution", std::to_string(series.evolution));
    json.number("mode", std::to_string(series.mode));
    json.text("tag", series.markerTag);
    json.number("marker_size", std::to_string(series.markerSize));
    json.number("marker_spacing", std::to_string(series.markerSpacing));
    json.number("marker_style", std::to_string(series.markerStyle));
    json.text("legend", series.legendText);
    json.text("color", colorText(series.colorIndex));
    json.text("marker_color", colorText(series.markerForegroundColor));
    json.number("line_style", std::to_string(series.lineStyle));
    json.number("line_width", std::to_string(series.lineWidth));
    json.number("factor", std::to_string(series.factor));
    if (series.isHidden)
        json.boolean("hidden", true);
    json.endObject();
}

void writeReferences(JsonWriter& json, std::string_view name, std::string_view value,
                     const std::vector<ReferenceRecord>& references)
{
    json.key(name);
    json.beginArray();
    for (const ReferenceRecord& reference : references) {
        json.beginObject();
        json.number(value, reference.value);
        json.text("caption", reference.caption);
        json.endObject();
    }
    json.endArray();
}

void writePlot(JsonWriter& json, const PlotRecord& plot)
{
    json.beginObject();
    json.text("caption", plainLines(plot.caption));
    writeText(json, "header", plot.header);
    writeText(json, "legend", plot.legend);
    writeText(json, "mechanism", plot.mechanism);
    writeAxis(json, "speed_axis", plot.axes.speed);
    writeAxis(json, "frequency_axis", plot.axes.frequency);
    writeAxis(json, "damping_axis", plot.axes.damping);
    json.key("series");
    json.beginArray();
    for (const SeriesRecord& series : plot.series)
        writeSeries(json, series);
    json.endArray();
    writeReferences(json, "reference_speeds", "speed", plot.referenceSpeeds);
    writeReferences(json, "damping_lines", "damping", plot.dampingLines);
    if (plot.breaksAtJumps)
        json.boolean("breaks_at_jumps", true);
    json.endObject();
}

void writeFiles(JsonWriter& json, const std::vector<std::string>& files)
{
    json.key("files");
    json.beginArray();
    for (const std::string& file : files) {
        if (file.empty())
            json.null();
        else
            json.text(plainLines(file));
    }
    json.endArray();
}

void writeEdited(JsonWriter& json, const std::map<std::size_t, EditedRecord>& edited)
{
    json.key("edited");
    json.beginArray();
    for (const auto& [position, record] : edited) {
        json.beginObject();
        json.number("evolution", std::to_string(position));
        json.text("airplane", record.airplane);
        json.text("mass", record.mass);
        json.number("mach", record.mach);
        json.endObject();
    }
    json.endArray();
}

void writeReference(JsonWriter& json, std::int16_t reference)
{
    json.key("reference");
    if (reference > 0)
        json.number(std::to_string(reference));
    else
        json.null();
}

std::string axisText(const AxisValues& axis)
{
    return axis.title + " from " + shortestText(axis.min) + " to " + shortestText(axis.max) + ", "
        + std::to_string(axis.ticks) + (axis.ticks == 1 ? " tick" : " ticks");
}

void printSeries(const std::vector<SeriesRecord>& list, std::ostream& out)
{
    const auto print = [&out](const std::vector<std::string>& cells, const std::string& legend) {
        for (const std::string& cell : cells)
            out << rightAligned(printableText(cell), narrowColumn);
        out << (legend.empty() ? "" : "  ") << printableText(legend) << '\n';
    };
    if (!list.empty())
        print({"evolution", "mode", "tag", "colour"}, "legend");
    for (const SeriesRecord& series : list)
        print({std::to_string(series.evolution), std::to_string(series.mode), series.markerTag,
               colorText(series.colorIndex)},
              series.legendText);
}

void printReferences(const std::vector<ReferenceRecord>& references, std::string_view name,
                     std::ostream& out)
{
    for (const ReferenceRecord& reference : references)
        printLine(out, name,
                  shortestText(reference.value)
                      + (reference.caption.empty() ? "" : "  " + reference.caption));
}

/// Prints the lines of the curves that differ from the default, and which curves are hidden.
void printLooks(const std::vector<SeriesRecord>& list, std::ostream& out)
{
    const SeriesRecord usual;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const SeriesRecord& one = list[i];
        if (one.lineStyle != usual.lineStyle || one.lineWidth != usual.lineWidth)
            printLine(out, "line of series " + std::to_string(i + 1),
                      "style " + std::to_string(one.lineStyle) + ", "
                          + std::to_string(one.lineWidth) + " px");
        if (one.isHidden)
            printLine(out, "series " + std::to_string(i + 1), "hidden");
    }
}

void printFiles(const WorkspaceRecord& record, std::ostream& out)
{
    for (std::size_t i = 0; i < record.files.size(); ++i) {
        const std::string& file = record.files[i];
        printLine(out, "file " + std::to_string(i + 1),
                  file.empty() ? "not in the list" : plainLines(file));
    }
    for (const auto& [position, edited] : record.edited)
        printLine(out, "edited, file " + std::to_string(position),
                  edited.airplane + ", " + edited.mass + ", Mach " + shortestText(edited.mach));
    if (record.reference > 0)
        printLine(out, "reference", "file " + std::to_string(record.reference));
}

void printPlot(const PlotRecord& plot, std::size_t number, std::ostream& out)
{
    out << '\n';
    printLine(out, "plot " + std::to_string(number), plainLines(plot.caption));
    printLine(out, "header", charactersOf(richTextOf(plot.header)));
    printLine(out, "legend", charactersOf(richTextOf(plot.legend)));
    printLine(out, "mechanism", charactersOf(richTextOf(plot.mechanism)));
    printLine(out, "speed axis", axisText(plot.axes.speed));
    printLine(out, "frequency axis", axisText(plot.axes.frequency));
    printLine(out, "damping axis", axisText(plot.axes.damping));
    printReferences(plot.referenceSpeeds, "reference speed", out);
    printReferences(plot.dampingLines, "damping line", out);
    if (plot.breaksAtJumps)
        printLine(out, "curves", "break at jumps");
    printSeries(plot.series, out);
    printLooks(plot.series, out);
}

} // namespace

void printWorkspaceJson(const WorkspaceRecord& record, std::ostream& out)
{
    JsonWriter json(out);
    json.beginObject();
    json.key("workspace");
    json.beginObject();
    json.text("description", plainLines(record.description));
    json.text("created", plainLines(record.dateCreated));
    json.text("modified", plainLines(record.dateModified));
    writeFiles(json, record.files);
    writeEdited(json, record.edited);
    writeReference(json, record.reference);
    json.key("plots");
    json.beginArray();
    for (const PlotRecord& plot : record.plots)
        writePlot(json, plot);
    json.endArray();
    json.endObject();
    json.endObject();
    out << '\n';
}

void printWorkspaceText(const WorkspaceRecord& record, const std::string& name, std::ostream& out)
{
    out << printableText(name) << '\n';
    printLine(out, "description", plainLines(record.description));
    printLine(out, "created", plainLines(record.dateCreated));
    printLine(out, "modified", plainLines(record.dateModified));
    printFiles(record, out);
    for (std::size_t i = 0; i < record.plots.size(); ++i)
        printPlot(record.plots[i], i + 1, out);
}

} // namespace tarsil::batch
