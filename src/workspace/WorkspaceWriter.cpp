// SPDX-License-Identifier: Apache-2.0
#include "workspace/WorkspaceWriter.h"

#include "base/numbers/Numbers.h"
#include "base/text/AsciiText.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"
#include "rtf/RtfStoredValue.h"
#include "workspace/ValueFields.h"
#include "workspace/WorkspaceKeys.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <utility>

namespace tarsil {

namespace {

namespace keys = workspacekeys;

enum class Encoding { Windows1252, Utf8 };

/// Replaces every kind of line break by NUL, the stored form of CR LF, so that a value stays on one
/// line.
std::string oneLine(std::string_view text)
{
    std::string value = storedValueFromRtf(text);
    std::replace_if(
        value.begin(), value.end(), [](char c) { return c == '\r' || c == '\n'; }, '\0');
    return value;
}

/// Whether a reader would remove something from the ends.
bool needsQuotes(std::string_view value)
{
    if (value.empty())
        return false;
    const bool isQuoted = value.size() >= 2 && value.front() == '"' && value.back() == '"';
    return isQuoted || isBlank(value.front()) || isBlank(value.back());
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Joins the fields of a value.
std::string joined(std::initializer_list<std::string> fields)
{
    std::string value;
    for (const std::string& field : fields) {
        if (&field != fields.begin())
            value += '\0';
        value += field;
    }
    return value;
}

/// Writes a record once, in the given encoding.
class WorkspaceWriter
{
public:
    explicit WorkspaceWriter(Encoding encoding) : m_encoding(encoding) { }

    void write(const WorkspaceRecord& record, std::string_view userName);

    /// Whether a text did not fit into Windows-1252.
    bool needsUtf8() const { return m_needsUtf8; }
    WrittenWorkspace result() { return std::move(m_result); }

private:
    void begin(std::string_view section);
    void add(std::string_view key, std::string_view value);
    void addLine(std::string_view key, std::string_view value);
    void addFurther(std::string_view key, const std::string& value);
    void addText(std::string_view key, std::string_view text) { add(key, encoded(oneLine(text))); }
    void addDescription(const std::string& text);
    void addCount(std::string_view key, std::size_t count);
    void addFiles(const WorkspaceRecord& record);
    void addPlot(const PlotRecord& plot);
    void addRichText(std::string_view key, const TextRecord& box);
    void addPosition(std::string_view key, const TextRecord& box);
    void addAxis(std::string_view key, const AxisValues& axis);
    void addSeries(std::string_view key, const SeriesRecord& series);
    void addReferences(std::string_view key, const std::vector<ReferenceRecord>& references);
    void addLooks(const std::vector<SeriesRecord>& series);
    void addHidden(const std::vector<SeriesRecord>& series);

    std::string encoded(const std::string& text);
    std::string field(std::string_view text);
    template <typename Number>
    std::string number(std::string_view key, Number value) const;

    Encoding m_encoding;
    bool m_needsUtf8 = false;
    std::string m_section;
    WrittenWorkspace m_result;
};

void WorkspaceWriter::write(const WorkspaceRecord& record, std::string_view userName)
{
    begin(keys::general);
    addText(keys::userName, userName.substr(0, userName.find('\0')));
    add(keys::version, "1.1.0");
    addDescription(record.description);
    addText(keys::dateCreated, record.dateCreated);
    addText(keys::dateModified, record.dateModified);
    addFiles(record);
    begin(keys::plots);
    addCount(keys::plotCount, record.plots.size());
    for (std::size_t j = 0; j < record.plots.size(); ++j) {
        begin(keys::plotSection(j + 1));
        addPlot(record.plots[j]);
    }
    begin(keys::endOfFile);
}

void WorkspaceWriter::begin(std::string_view section)
{
    m_section = section;
    m_result.bytes.append("[").append(section).append("]\r\n");
}

void WorkspaceWriter::add(std::string_view key, std::string_view value)
{
    if (value.size() > mostStoredBytes)
        m_result.longValues.push_back({m_section, std::string(key), value.size()});
    addLine(key, value);
}

void WorkspaceWriter::addLine(std::string_view key, std::string_view value)
{
    const std::string_view quote = needsQuotes(value) ? "\"" : "";
    m_result.bytes.append(key).append("=");
    m_result.bytes.append(quote).append(value).append(quote).append("\r\n");
}

/// Adds a further value, which only this program's reader can cut.
void WorkspaceWriter::addFurther(std::string_view key, const std::string& value)
{
    const std::size_t longest = longestField(value);
    if (longest > mostStoredBytes)
        m_result.longValues.push_back({m_section, std::string(key), longest});
    addLine(key, value);
}

/// The default blanks of a description are not quoted: a reader removes them and restores the
/// default.
void WorkspaceWriter::addDescription(const std::string& text)
{
    if (text == keys::noText)
        m_result.bytes.append(keys::description).append("=").append(text).append("\r\n");
    else
        addText(keys::description, text);
}

void WorkspaceWriter::addCount(std::string_view key, std::size_t count)
{
    if (std::cmp_greater(count, std::numeric_limits<std::int16_t>::max()))
        throwNumberError(NumberStatus::Overflow, std::to_string(count), workspaceModule,
                         "[" + m_section + "], " + std::string(key));
    add(key, std::to_string(count));
}

void WorkspaceWriter::addFiles(const WorkspaceRecord& record)
{
    begin(keys::evolutionFiles);
    addCount(keys::fileCount, record.files.size());
    for (std::size_t i = 0; i < record.files.size(); ++i)
        addText(keys::numbered(keys::file, i + 1), record.files[i]);
    for (const auto& [position, edited] : record.edited) {
        const std::string key = keys::numbered(keys::edited, position);
        addFurther(key,
                   joined({field(edited.airplane), field(edited.mass), number(key, edited.mach)}));
    }
    if (record.reference > 0)
        addFurther(keys::reference, std::to_string(record.reference));
}

void WorkspaceWriter::addPlot(const PlotRecord& plot)
{
    addText(keys::caption, plot.caption);
    addRichText(keys::header, plot.header);
    addPosition(keys::headerPosition, plot.header);
    addRichText(keys::mechanism, plot.mechanism);
    addPosition(keys::mechanismPosition, plot.mechanism);
    addRichText(keys::legend, plot.legend);
    addPosition(keys::legendPosition, plot.legend);
    addAxis(keys::velAxis, plot.axes.speed);
    addAxis(keys::freqAxis, plot.axes.frequency);
    addAxis(keys::gAxis, plot.axes.damping);
    addCount(keys::seriesCount, plot.series.size());
    for (std::size_t i = 0; i < plot.series.size(); ++i)
        addSeries(keys::numbered(keys::series, i + 1), plot.series[i]);
    addReferences(keys::referenceSpeed, plot.referenceSpeeds);
    addReferences(keys::dampingLine, plot.dampingLines);
    addLooks(plot.series);
    addHidden(plot.series);
    if (plot.breaksAtJumps)
        addFurther(keys::breakAtJumps, "1");
}

void WorkspaceWriter::addRichText(std::string_view key, const TextRecord& box)
{
    add(key, box.rtf ? oneLine(*box.rtf) : std::string(keys::absent));
}

void WorkspaceWriter::addPosition(std::string_view key, const TextRecord& box)
{
    if (box.position)
        add(key, joined({number(key, box.position->left), number(key, box.position->top)}));
    else
        add(key, keys::absent);
}

void WorkspaceWriter::addAxis(std::string_view key, const AxisValues& axis)
{
    add(key,
        joined({field(axis.title), number(key, axis.min), number(key, axis.max),
                std::to_string(axis.ticks)}));
}

void WorkspaceWriter::addSeries(std::string_view key, const SeriesRecord& series)
{
    add(key,
        joined({std::to_string(series.evolution), std::to_string(series.mode),
                field(series.markerTag), std::to_string(series.markerSize),
                std::to_string(series.markerSpacing), std::to_string(series.markerStyle),
                field(series.legendText), std::to_string(series.colorIndex),
                std::to_string(series.markerForegroundColor)}));
}

void WorkspaceWriter::addReferences(std::string_view key,
                                    const std::vector<ReferenceRecord>& references)
{
    for (std::size_t i = 0; i < references.size(); ++i) {
        const std::string one = keys::numbered(key, i + 1);
        addFurther(one, joined({number(one, references[i].value), field(references[i].caption)}));
    }
}

/// Omits curves of the default look.
void WorkspaceWriter::addLooks(const std::vector<SeriesRecord>& series)
{
    const SeriesRecord usual;
    for (std::size_t i = 0; i < series.size(); ++i) {
        const SeriesRecord& one = series[i];
        if (one.lineStyle == usual.lineStyle && one.lineWidth == usual.lineWidth
            && one.factor == usual.factor)
            continue;
        addFurther(keys::numbered(keys::seriesLook, i + 1),
                   joined({std::to_string(one.lineStyle), std::to_string(one.lineWidth),
                           std::to_string(one.factor)}));
    }
}

void WorkspaceWriter::addHidden(const std::vector<SeriesRecord>& series)
{
    for (std::size_t i = 0; i < series.size(); ++i) {
        if (series[i].isHidden)
            addFurther(keys::numbered(keys::seriesHidden, i + 1), "1");
    }
}

std::string WorkspaceWriter::encoded(const std::string& text)
{
    if (m_encoding == Encoding::Utf8 || isAscii(text))
        return text;
    std::string bytes = encodeText(text);
    m_needsUtf8 = m_needsUtf8 || bytes == text;
    return bytes;
}

/// A text as one of several fields.
std::string WorkspaceWriter::field(std::string_view text)
{
    std::string value = oneLine(text);
    std::replace(value.begin(), value.end(), '\0', ' ');
    return encoded(value);
}

template <typename Number>
std::string WorkspaceWriter::number(std::string_view key, Number value) const
{
    if (!std::isfinite(value))
        throwNumberError(NumberStatus::Overflow, shortestText(value), workspaceModule,
                         "[" + m_section + "], " + std::string(key));
    return shortestText(value);
}

} // namespace

WrittenWorkspace writeWorkspace(const WorkspaceRecord& record, std::string_view userName)
{
    WorkspaceWriter writer(Encoding::Windows1252);
    writer.write(record, userName);
    if (!writer.needsUtf8())
        return writer.result();
    // Two encodings in one file would be confusing.
    WorkspaceWriter unicode(Encoding::Utf8);
    unicode.write(record, userName);
    return unicode.result();
}

} // namespace tarsil
