// SPDX-License-Identifier: Apache-2.0
#include "WorkspaceTexts.h"
#include "rtf/RtfStoredValue.h"
#include "support/RandomTexts.h"
#include "workspace/WorkspaceWriter.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

using namespace tarsil;
using namespace tarsil::test;
using namespace std::string_literals;

namespace {

/// Sequences that texts cannot contain unchanged.
const std::array<std::string, 5> lost = {"\r", "\n", "\0"s, "\n\r", "\r\r\n"};

enum class Kind { Clean, Wild };

/// Generates the records of a seed.
class Generator : private RandomTexts
{
public:
    Generator(unsigned seed, Kind kind) : RandomTexts(seed), m_isWild(kind == Kind::Wild) { }

    WorkspaceRecord record();

private:
    std::string field();
    std::string text();
    TextRecord box();
    std::vector<ReferenceRecord> marks();
    AxisValues axis() { return {field(), single(), single(), integer<std::int16_t>()}; }
    SeriesRecord series();
    PlotRecord plot();

    bool m_isWild;
};

std::string Generator::field()
{
    std::string text;
    for (std::size_t left = below(30); left > 0; --left)
        text += m_isWild && below(8) == 0 ? lost.at(below(lost.size())) : piece();
    return text;
}

/// A text of possibly several lines.
std::string Generator::text()
{
    std::string text = field();
    for (std::size_t left = below(3); left > 0; --left)
        text += "\r\n" + field();
    return text;
}

TextRecord Generator::box()
{
    TextRecord record;
    if (below(8) != 0)
        record.rtf = "{\\rtf1 " + text() + "\\par\r\n}" + (below(2) == 0 ? "" : "\r\n");
    if (below(8) != 0)
        record.position = {static_cast<double>(integer<std::int16_t>()) / 7, single()};
    return record;
}

SeriesRecord Generator::series()
{
    SeriesRecord record;
    record.evolution = integer<std::int16_t>();
    record.mode = integer<std::int16_t>();
    record.markerTag = field();
    record.markerSize = integer<std::int32_t>();
    record.markerSpacing = integer<std::int32_t>();
    record.markerStyle = integer<std::int32_t>();
    record.legendText = field();
    record.colorIndex = integer<std::int32_t>();
    record.markerForegroundColor = integer<std::int32_t>();
    if (below(2) == 0) {
        record.isHidden = below(3) == 0;
        record.lineStyle = static_cast<std::int32_t>(below(6));
        record.lineWidth = static_cast<std::int16_t>(integer<std::uint16_t>() / 2);
        record.factor = static_cast<std::int32_t>(1 + integer<std::uint32_t>() / 4);
    }
    return record;
}

std::vector<ReferenceRecord> Generator::marks()
{
    std::vector<ReferenceRecord> marks;
    for (std::size_t left = below(4); left > 0; --left)
        marks.push_back({single(), field()});
    return marks;
}

PlotRecord Generator::plot()
{
    PlotRecord record {text(), box(), box(), box(), {axis(), axis(), axis()}, {}, {}, {}};
    for (std::size_t left = below(12); left > 0; --left)
        record.series.push_back(series());
    record.referenceSpeeds = marks();
    record.dampingLines = marks();
    return record;
}

WorkspaceRecord Generator::record()
{
    // An empty description would be read as the default.
    WorkspaceRecord record {"d" + text(), text(), text(), {}, {}, {}, 0};
    for (std::size_t left = below(6); left > 0; --left) {
        record.files.push_back(text());
        if (below(3) == 0)
            record.edited[record.files.size()] = {field(), field(), single()};
    }
    record.reference = static_cast<std::int16_t>(below(record.files.size() + 1));
    for (std::size_t left = below(4); left > 0; --left)
        record.plots.push_back(plot());
    return record;
}

constexpr unsigned records = 500;

std::string bytesOf(const WorkspaceRecord& record)
{
    const WrittenWorkspace workspace = writeWorkspace(record, "rivera");
    EXPECT_TRUE(workspace.longValues.empty()) << "a record of this test is too long";
    return workspace.bytes;
}

} // namespace

TEST(WorkspaceRoundTrip, givesEveryRecordAgain)
{
    for (unsigned seed = 0; seed < records; ++seed) {
        const WorkspaceRecord record = Generator(seed, Kind::Clean).record();
        ASSERT_EQ(readBytes(bytesOf(record)), record) << seed;
    }
}

TEST(WorkspaceRoundTrip, givesTheSameBytesWhateverTheTextsHold)
{
    for (unsigned seed = 0; seed < records; ++seed) {
        const std::string bytes = bytesOf(Generator(seed, Kind::Wild).record());
        ASSERT_EQ(bytesOf(readBytes(bytes)), bytes) << seed;
    }
}

TEST(WorkspaceRoundTrip, givesAWrittenWorkspaceAgain)
{
    EXPECT_EQ(bytesOf(readDrawn(wholeWorkspace)), drawn(wholeWorkspace));
}

TEST(WorkspaceRoundTrip, losesNothingWhereOnlyAllFieldsTogetherAreLong)
{
    WorkspaceRecord record = readDrawn(wholeWorkspace);
    record.plots[0].axes.speed.title = std::string(mostStoredBytes, 'v');
    record.plots[0].series[0].markerTag = std::string(mostStoredBytes, 't');
    record.plots[0].series[0].legendText = std::string(mostStoredBytes, 'l');
    const WrittenWorkspace written = writeWorkspace(record, "rivera");
    EXPECT_EQ(written.longValues.size(), 2U) << "others may read less of them";
    EXPECT_TRUE(tryToReadWorkspace(written.bytes, "case.tsw").cutValues.empty());
    EXPECT_EQ(readBytes(written.bytes), record);
}

TEST(WorkspaceRoundTrip, losesOnlyTheEndOfAFieldThatIsTooLong)
{
    const std::string longest(mostStoredBytes, 'x');
    WorkspaceRecord record = readDrawn(wholeWorkspace);
    PlotRecord& plot = record.plots[0];
    for (std::string* const text :
         {&plot.axes.speed.title, &plot.axes.frequency.title, &plot.axes.damping.title,
          &plot.series[0].markerTag, &plot.series[1].legendText})
        *text = longest;
    const WorkspaceRecord cut = record;
    for (std::string* const text :
         {&plot.axes.speed.title, &plot.axes.frequency.title, &plot.axes.damping.title,
          &plot.series[0].markerTag, &plot.series[1].legendText})
        *text += "beyond";
    const WrittenWorkspace written = writeWorkspace(record, "rivera");
    std::vector<std::string> keys;
    for (const LongValue& value : written.longValues)
        keys.push_back(value.key);
    EXPECT_EQ(keys,
              (std::vector<std::string> {"velAxis", "freqAxis", "gAxis", "Serie(1)", "Serie(2)"}));
    EXPECT_EQ(tryToReadWorkspace(written.bytes, "case.tsw").cutValues,
              (std::vector<LongValue> {{"PLOT1", "velAxis", 1029},
                                       {"PLOT1", "freqAxis", 1029},
                                       {"PLOT1", "gAxis", 1029},
                                       {"PLOT1", "Serie(1)", 1029},
                                       {"PLOT1", "Serie(2)", 1029}}));
    EXPECT_EQ(readBytes(written.bytes), cut);
}

TEST(WorkspaceRoundTrip, keepsEveryNumberHoweverLongTheTextsAre)
{
    for (unsigned seed = 0; seed < records; ++seed) {
        WorkspaceRecord record = Generator(seed, Kind::Clean).record();
        for (PlotRecord& plot : record.plots) {
            plot.axes.damping.title.insert(0, seed * 7, 'g');
            for (ReferenceRecord& mark : plot.referenceSpeeds)
                mark.caption.insert(0, seed * 7, 'm');
            for (SeriesRecord& series : plot.series)
                series.legendText.insert(0, seed * 7, 'l');
        }
        WorkspaceRecord again = readBytes(writeWorkspace(record, "rivera").bytes);
        ASSERT_EQ(again.plots.size(), record.plots.size()) << seed;
        for (std::size_t j = 0; j < record.plots.size(); ++j) {
            again.plots[j].axes.damping.title = record.plots[j].axes.damping.title;
            ASSERT_EQ(again.plots[j].referenceSpeeds.size(),
                      record.plots[j].referenceSpeeds.size());
            for (std::size_t i = 0; i < record.plots[j].referenceSpeeds.size(); ++i)
                again.plots[j].referenceSpeeds[i].caption =
                    record.plots[j].referenceSpeeds[i].caption;
            ASSERT_EQ(again.plots[j].series.size(), record.plots[j].series.size()) << seed;
            for (std::size_t i = 0; i < record.plots[j].series.size(); ++i)
                again.plots[j].series[i].legendText = record.plots[j].series[i].legendText;
        }
        ASSERT_EQ(again, record) << seed;
    }
}

TEST(WorkspaceRoundTrip, keepsTheDateOfCreation)
{
    WorkspaceRecord record = readDrawn(wholeWorkspace);
    record.dateModified = "09-Mar-2024 10:00:00";
    const WorkspaceRecord again = readBytes(bytesOf(record));
    EXPECT_EQ(again.dateCreated, "07-Mar-2024 14:05:31");
    EXPECT_EQ(again.dateModified, "09-Mar-2024 10:00:00");
}
