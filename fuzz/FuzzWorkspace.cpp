// SPDX-License-Identifier: Apache-2.0
#include "FuzzTarget.h"

#include "base/user/RunTimeError.h"
#include "workspace/WorkspaceReader.h"
#include "workspace/WorkspaceWriter.h"

#include <string>
#include <vector>

namespace {

using namespace tarsil;

/// Memory must be proportional to the bytes of the file, whatever it counts. Only missing files can
/// be as many as a count allows.
void requireProportion(const WorkspaceRecord& record, std::size_t bytes)
{
    fuzz::require(record.files.size() <= 32767, "no more files than can be counted");
    fuzz::require(record.edited.size() <= bytes, "edited parameters in proportion to the file");
    fuzz::require(record.plots.capacity() <= bytes + 1, "plots in proportion to the file");
    for (const PlotRecord& plot : record.plots) {
        fuzz::require(plot.series.capacity() <= bytes, "series in proportion to the file");
        fuzz::require(plot.referenceSpeeds.size() + plot.dampingLines.size() <= bytes,
                      "marks in proportion to the file");
    }
}

/// Compares everything except texts, in which line breaks may have become blanks.
void requireSameCurves(std::vector<SeriesRecord> series, const std::vector<SeriesRecord>& others)
{
    fuzz::require(series.size() == others.size(), "series come back");
    for (std::size_t i = 0; i < series.size(); ++i) {
        series[i].markerTag = others[i].markerTag;
        series[i].legendText = others[i].legendText;
    }
    fuzz::require(series == others, "numbers of series come back");
}

/// Compares the values, and with equal bytes the captions too.
void requireSameMarks(const std::vector<ReferenceRecord>& marks,
                      const std::vector<ReferenceRecord>& others)
{
    fuzz::require(marks.size() == others.size(), "marks come back");
    for (std::size_t i = 0; i < marks.size(); ++i)
        fuzz::require(marks[i].value == others[i].value, "values of marks come back");
}

/// What is written must be readable, equal, and written in the same bytes again.
void requireFixedPoint(const WorkspaceRecord& record)
{
    const WrittenWorkspace first = writeWorkspace(record, "fuzz");
    WorkspaceRecord again;
    readWorkspace(first.bytes, "again", again);
    const WrittenWorkspace second = writeWorkspace(again, "fuzz");
    // A text of Windows-1252 can exceed its limit in UTF-8 and is then cut.
    fuzz::require(!first.longValues.empty() || second.bytes == first.bytes,
                  "what is read again is written as it was");
    fuzz::require(again.files.size() == record.files.size(), "files come back");
    fuzz::require(again.plots.size() == record.plots.size(), "plots come back");
    fuzz::require(again.edited.size() == record.edited.size(), "edited parameters come back");
    fuzz::require(again.reference == record.reference, "the reference comes back");
    for (std::size_t j = 0; j < record.plots.size(); ++j) {
        requireSameCurves(again.plots[j].series, record.plots[j].series);
        requireSameMarks(again.plots[j].referenceSpeeds, record.plots[j].referenceSpeeds);
        requireSameMarks(again.plots[j].dampingLines, record.plots[j].dampingLines);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes = fuzz::textOf(data, size);
    WorkspaceRecord record;
    try {
        readWorkspace(bytes, "fuzz", record);
    } catch (const RunTimeError& error) {
        fuzz::require(!error.description().empty(), "an error says what is wrong");
    }
    requireProportion(record, size);
    requireFixedPoint(record);
    return 0;
}
