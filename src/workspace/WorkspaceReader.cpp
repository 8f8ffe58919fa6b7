// SPDX-License-Identifier: Apache-2.0
#include "workspace/WorkspaceReader.h"

#include "base/user/RunTimeError.h"
#include "rtf/RtfStoredValue.h"
#include "workspace/IniText.h"
#include "workspace/ValueFields.h"
#include "workspace/WorkspaceKeys.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <utility>

namespace tarsil {

namespace {

namespace keys = workspacekeys;

constexpr std::int32_t lastLineStyle = 5;
constexpr std::size_t mostMarks = std::numeric_limits<std::int16_t>::max();

[[noreturn]] void throwNotWithin(std::int32_t value, const std::string& what)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, std::string(workspaceModule),
                       what + " " + std::to_string(value));
}

/// Reads the look of a curve: line style, line width, factor index.
void readLook(const ValueFields& values, SeriesRecord& series)
{
    const std::int32_t style = values.integer32(0, "line style");
    const std::int16_t width = values.integer16(1, "line width");
    const std::int32_t factor = values.integer32(2, "factor index");
    if (style < 0 || style > lastLineStyle)
        throwNotWithin(style, "line style");
    if (width < 0)
        throwNotWithin(width, "line width");
    if (factor < 0)
        throwNotWithin(factor, "factor index");
    series.lineStyle = style;
    series.lineWidth = width;
    series.factor = std::max(factor, 1); // 0: never set
}

/// Reads a file into a record.
class WorkspaceReader
{
public:
    WorkspaceReader(std::string_view bytes, const std::string& name, WorkspaceReading& reading)
        : m_ini(bytes), m_name(name), m_reading(reading), m_record(reading.record)
    { }

    /// Stops at the first error, which becomes part of the reading.
    void read();

private:
    void readAll();
    std::string location(std::string_view section, std::string_view key);
    std::string text(std::string_view section, std::string_view key, std::string_view otherwise);
    std::string fields(std::string_view section, std::string_view key);
    void noteCut(std::string_view section, std::string_view key, std::size_t longest);
    int count(std::string_view section, std::string_view key);

    using Take = std::function<void(const ValueFields&)>;
    bool further(std::string_view section, const std::string& key, std::size_t least,
                 const Take& take);

    void readFiles();
    void readEdited();
    void readPlot(const std::string& section, PlotRecord& plot);
    void readSeries(const std::string& section, std::size_t number, PlotRecord& plot);
    std::vector<ReferenceRecord> references(const std::string& section, std::string_view key);
    TextRecord box(std::string_view section, std::string_view textKey,
                   std::string_view positionKey);
    AxisValues axis(std::string_view section, std::string_view key);
    SeriesRecord series(std::string_view section, std::string_view key);

    IniText m_ini;
    const std::string& m_name;
    WorkspaceReading& m_reading;
    WorkspaceRecord& m_record;
};

void WorkspaceReader::read()
{
    try {
        readAll();
    } catch (const RunTimeError& error) {
        m_reading.error = error;
    }
}

void WorkspaceReader::readAll()
{
    m_reading.userName = m_ini.text(keys::general, keys::userName).value_or(std::string());
    m_record.description = text(keys::general, keys::description, keys::noText);
    if (m_record.description.empty())
        m_record.description = keys::noText; // the default, whose blanks IniText removes
    m_record.dateCreated = text(keys::general, keys::dateCreated, keys::noText);
    m_record.dateModified = text(keys::general, keys::dateModified, keys::noText);
    readFiles();
    const int plots = count(keys::plots, keys::plotCount);
    for (int j = 1; j <= plots; ++j) {
        PlotRecord& plot = m_record.plots.emplace_back();
        readPlot(keys::plotSection(static_cast<std::size_t>(j)), plot);
    }
}

/// The name of a value in errors.
std::string WorkspaceReader::location(std::string_view section, std::string_view key)
{
    m_reading.section = section;
    m_reading.key = key;
    return m_name + ", [" + std::string(section) + "], " + std::string(key);
}

/// Records a value of which a part of `longest` bytes exceeds the limit.
void WorkspaceReader::noteCut(std::string_view section, std::string_view key, std::size_t longest)
{
    if (longest > mostStoredBytes)
        m_reading.cutValues.push_back({std::string(section), std::string(key), longest});
}

/// A single text, in which NUL is a line break, as in rich texts.
std::string WorkspaceReader::text(std::string_view section, std::string_view key,
                                  std::string_view otherwise)
{
    if (const auto entry = m_ini.entry(section, key))
        noteCut(section, key, entry->value.size());
    return rtfFromStoredValue(m_ini.text(section, key).value_or(std::string(otherwise)));
}

/// A value of several fields.
std::string WorkspaceReader::fields(std::string_view section, std::string_view key)
{
    if (const auto entry = m_ini.entry(section, key))
        noteCut(section, key, longestField(entry->value));
    return m_ini.fields(section, key).value_or(std::string(keys::absent));
}

int WorkspaceReader::count(std::string_view section, std::string_view key)
{
    const std::string_view value = m_ini.bytes(section, key).value_or(keys::noText);
    return ValueFields(value, 1, location(section, key)).integer16(0, "count");
}

/// Passes the fields of a further key to `take`. A value that does not fit, so that `take` raises
/// an error, is ignored. Returns whether the value is there.
bool WorkspaceReader::further(std::string_view section, const std::string& key, std::size_t least,
                              const Take& take)
{
    const auto entry = m_ini.entry(section, key);
    if (!entry)
        return false;
    try {
        take(ValueFields(*m_ini.fields(section, key), least, key));
        noteCut(section, key, longestField(entry->value));
    } catch (const RunTimeError& error) {
        m_reading.unusedValues.push_back({std::string(section), key, error.description()});
    }
    return true;
}

void WorkspaceReader::readFiles()
{
    const int files = count(keys::evolutionFiles, keys::fileCount);
    for (int i = 1; i <= files; ++i) {
        const std::string key = keys::numbered(keys::file, static_cast<std::size_t>(i));
        m_record.files.push_back(text(keys::evolutionFiles, key, {}));
    }
    readEdited();
}

void WorkspaceReader::readEdited()
{
    const std::size_t files = m_record.files.size();
    for (std::size_t i = 1; i <= files; ++i)
        further(keys::evolutionFiles, keys::numbered(keys::edited, i), 3,
                [&](const ValueFields& values) {
                    m_record.edited[i] = {values.text(0), values.text(1),
                                          values.single(2, "Mach number")};
                });
    further(keys::evolutionFiles, std::string(keys::reference), 1, [&](const ValueFields& values) {
        const std::int16_t position = values.integer16(0, "number of a file");
        if (position < 1 || std::cmp_greater(position, files))
            throwNotWithin(position, "there is no file");
        m_record.reference = position;
    });
}

void WorkspaceReader::readPlot(const std::string& section, PlotRecord& plot)
{
    plot.caption = text(section, keys::caption, keys::absent);
    plot.header = box(section, keys::header, keys::headerPosition);
    plot.mechanism = box(section, keys::mechanism, keys::mechanismPosition);
    plot.legend = box(section, keys::legend, keys::legendPosition);
    // The three axes belong together: if one is damaged, none is used.
    plot.axes = {axis(section, keys::velAxis), axis(section, keys::freqAxis),
                 axis(section, keys::gAxis)};
    const int seriesCount = count(section, keys::seriesCount);
    for (int i = 1; i <= seriesCount; ++i)
        readSeries(section, static_cast<std::size_t>(i), plot);
    plot.referenceSpeeds = references(section, keys::referenceSpeed);
    plot.dampingLines = references(section, keys::dampingLine);
    further(section, std::string(keys::breakAtJumps), 1, [&plot](const ValueFields& values) {
        plot.breaksAtJumps = values.integer16(0, "switch") != 0;
    });
}

/// Reads the series with a number, counted from 1.
void WorkspaceReader::readSeries(const std::string& section, std::size_t number, PlotRecord& plot)
{
    plot.series.push_back(series(section, keys::numbered(keys::series, number)));
    SeriesRecord& one = plot.series.back();
    further(section, keys::numbered(keys::seriesLook, number), 3,
            [&one](const ValueFields& values) { readLook(values, one); });
    further(
        section, keys::numbered(keys::seriesHidden, number), 1,
        [&one](const ValueFields& values) { one.isHidden = values.integer16(0, "switch") != 0; });
}

/// The references of one kind, up to the first missing number.
std::vector<ReferenceRecord> WorkspaceReader::references(const std::string& section,
                                                         std::string_view key)
{
    std::vector<ReferenceRecord> list;
    const auto take = [&list](const ValueFields& values) {
        list.push_back({values.single(0, "number"), values.text(1)});
    };
    for (std::size_t i = 1; i <= mostMarks; ++i) {
        if (!further(section, keys::numbered(key, i), 2, take))
            break;
    }
    return list;
}

TextRecord WorkspaceReader::box(std::string_view section, std::string_view textKey,
                                std::string_view positionKey)
{
    TextRecord record;
    const std::string_view rtf = m_ini.bytes(section, textKey).value_or(keys::absent);
    if (rtf != keys::absent) {
        record.rtf = rtfFromStoredValue(rtf);
        noteCut(section, textKey, m_ini.entry(section, textKey)->value.size());
    }
    const std::string position = fields(section, positionKey);
    if (position != keys::absent) {
        const ValueFields values(position, 2, location(section, positionKey));
        record.position = {values.number(0, "left"), values.number(1, "top")};
    }
    return record;
}

AxisValues WorkspaceReader::axis(std::string_view section, std::string_view key)
{
    const ValueFields values(fields(section, key), 4, location(section, key));
    return {values.text(0), values.single(1, "minimum"), values.single(2, "maximum"),
            values.integer16(3, "tick count")};
}

SeriesRecord WorkspaceReader::series(std::string_view section, std::string_view key)
{
    const ValueFields values(fields(section, key), 9, location(section, key));
    SeriesRecord record;
    record.evolution = values.integer16(0, "evolution");
    record.mode = values.integer16(1, "mode");
    record.markerTag = values.text(2);
    record.markerSize = values.integer32(3, "marker size");
    record.markerSpacing = values.integer32(4, "marker spacing");
    record.markerStyle = values.integer32(5, "marker style");
    record.legendText = values.text(6);
    record.colorIndex = values.integer32(7, "colour");
    record.markerForegroundColor = values.integer32(8, "marker colour");
    return record;
}

} // namespace

void readWorkspace(std::string_view bytes, const std::string& name, WorkspaceRecord& record)
{
    WorkspaceReading reading = tryToReadWorkspace(bytes, name);
    record = std::move(reading.record);
    if (reading.error)
        throw RunTimeError(*reading.error);
}

WorkspaceReading tryToReadWorkspace(std::string_view bytes, const std::string& name)
{
    WorkspaceReading reading;
    WorkspaceReader(bytes, name, reading).read();
    return reading;
}

} // namespace tarsil
