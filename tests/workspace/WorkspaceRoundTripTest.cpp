#include "WorkspaceTexts.h"
#include "support/RandomTexts.h"
#include "workspace/WorkspaceWriter.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

using namespace tarsil;
using namespace tarsil::test;
using namespace std::string_literals;

namespace {

/// What cannot stand in the texts as it is.
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
    AxisRecord axis() { return {field(), single(), single(), integer<std::int16_t>()}; }
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

/// A text that may have several lines.
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
    return record;
}

PlotRecord Generator::plot()
{
    PlotRecord record {text(), box(), box(), box(), axis(), axis(), axis(), {}};
    for (std::size_t left = below(12); left > 0; --left)
        record.series.push_back(series());
    return record;
}

WorkspaceRecord Generator::record()
{
    // An empty description would be read as one that nobody gave.
    WorkspaceRecord record {"d" + text(), text(), text(), {}, {}};
    for (std::size_t left = below(6); left > 0; --left)
        record.files.push_back(text());
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

TEST(WorkspaceRoundTrip, keepsTheDateOfCreation)
{
    WorkspaceRecord record = readDrawn(wholeWorkspace);
    record.dateModified = "09-Mar-2024 10:00:00";
    const WorkspaceRecord again = readBytes(bytesOf(record));
    EXPECT_EQ(again.dateCreated, "07-Mar-2024 14:05:31");
    EXPECT_EQ(again.dateModified, "09-Mar-2024 10:00:00");
}
