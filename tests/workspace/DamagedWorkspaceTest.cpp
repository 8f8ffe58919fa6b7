// SPDX-License-Identifier: Apache-2.0
#include "WorkspaceTexts.h"
#include "workspace/WorkspaceWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

// Files that no program saves but that may be opened: they give a record or an error, and never
// crash.

using namespace tarsil;
using namespace tarsil::test;
using testing::HasSubstr;

namespace {

const std::string wholeBytes = drawn(wholeWorkspace);

/// The number of files, plots and series of a record.
std::size_t entries(const WorkspaceRecord& record)
{
    std::size_t sum = static_cast<std::size_t>(
        std::count_if(record.files.begin(), record.files.end(),
                      [](const std::string& file) { return !file.empty(); }));
    for (const PlotRecord& plot : record.plots)
        sum += 1 + plot.series.size();
    return sum;
}

/// Two files, a plot with two series, and a second plot that exists only by a wrong count. A wrong
/// count of files is excluded.
constexpr std::size_t mostEntries = 6;

/// Whether everything in a reading is in the whole file too. Texts may be truncated, lists
/// shorter.
bool isPartOfTheWhole(const WorkspaceRecord& record)
{
    const WorkspaceRecord all = wholeRecord();
    const bool filesAgree = record.files.size() <= all.files.size()
        && std::equal(record.files.begin(), record.files.end(), all.files.begin(),
                      [](const auto& part, const auto& text) { return text.starts_with(part); });
    return filesAgree && record.plots.size() <= all.plots.size()
        && (record.plots.empty() || record.plots[0].series.size() <= 2);
}

} // namespace

TEST(DamagedWorkspace, isAnErrorOrARecordWhereverItIsCut)
{
    // The last series ends in a number, which is valid from its first digit on.
    const std::size_t firstWhole = wholeBytes.rfind('\0') + 2;
    for (std::size_t size = 0; size <= wholeBytes.size(); ++size) {
        const FailedReading reading = failedReading(wholeBytes.substr(0, size));
        ASSERT_TRUE(isPartOfTheWhole(reading.record)) << size;
        ASSERT_EQ(reading.error.has_value(), size < firstWhole) << size;
        if (reading.error) {
            ASSERT_THAT(reading.error->description(), HasSubstr("test.tsw, [")) << size;
        }
    }
}

TEST(DamagedWorkspace, isARecordWithoutItsEndMark)
{
    EXPECT_EQ(readBytes(wholeBytes.substr(0, wholeBytes.find("[END"))), wholeRecord());
    EXPECT_EQ(readBytes(wholeBytes.substr(0, wholeBytes.find("\r\n[END"))), wholeRecord());
}

TEST(DamagedWorkspace, mayLackAnyByte)
{
    for (std::size_t i = 0; i < wholeBytes.size(); ++i) {
        std::string bytes = wholeBytes;
        bytes.erase(i, 1);
        const FailedReading reading = failedReading(bytes);
        ASSERT_LE(entries(reading.record), mostEntries) << i;
    }
}

TEST(DamagedWorkspace, mayHaveAnyByteReplaced)
{
    for (std::size_t i = 0; i < wholeBytes.size(); ++i) {
        for (const char replacement : {'\0', '\n', '9', '\xFF', '"', '='}) {
            std::string bytes = wholeBytes;
            bytes[i] = replacement;
            const FailedReading reading = failedReading(bytes);
            ASSERT_LE(entries(reading.record), mostEntries) << i;
        }
    }
}

TEST(DamagedWorkspace, isAnErrorWhereACountOfPlotsOrSeriesIsTooLarge)
{
    const FailedReading plots = failedReading(with(wholeBytes, "NoOfPlots=1", "NoOfPlots=32767"));
    ASSERT_TRUE(plots.error);
    EXPECT_EQ(plots.error->number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_THAT(plots.error->description(), HasSubstr("test.tsw, [PLOT2], velAxis"));
    EXPECT_EQ(plots.record.plots.size(), 2U);

    const FailedReading series =
        failedReading(with(wholeBytes, "NoOfSeries=2", "NoOfSeries=32767"));
    ASSERT_TRUE(series.error);
    EXPECT_THAT(series.error->description(), HasSubstr("test.tsw, [PLOT1], Serie(3)"));
    EXPECT_EQ(series.record, wholeRecord());
}

TEST(DamagedWorkspace, hasFewerEntriesWhereACountIsTooSmall)
{
    EXPECT_EQ(readBytes(with(wholeBytes, "NoOfFiles=2", "NoOfFiles=1")).files.size(), 1U);
    EXPECT_EQ(readBytes(with(wholeBytes, "NoOfSeries=2", "NoOfSeries=-7")).plots[0].series.size(),
              0U);
}

TEST(DamagedWorkspace, isAnErrorWhereItIsNoWorkspaceAtAll)
{
    std::mt19937 engine(1);
    for (int round = 0; round < 50; ++round) {
        std::string noise;
        for (int i = 0; i < 20'000; ++i)
            noise += static_cast<char>(engine() & 0xFFU);
        const FailedReading reading = failedReading(noise);
        ASSERT_TRUE(reading.error);
        EXPECT_EQ(reading.error->number(), ErrorNumber::TypeMismatch);
        EXPECT_EQ(entries(reading.record), 0U);
    }
    EXPECT_TRUE(failedReading("").error);
    EXPECT_TRUE(failedReading(std::string(1'000'000, '\0')).error);
}

TEST(DamagedWorkspace, returnsFromNamesAndLinesWithoutEnd)
{
    const std::string million(1'000'000, 'x');
    std::string many = "[" + million + "]\r\n";
    for (int i = 0; i < 100'000; ++i)
        many += std::to_string(i) + "=1\r\n";
    EXPECT_EQ(readBytes(many + wholeBytes), wholeRecord());
    EXPECT_EQ(readBytes("[X]\r\n" + million + "=" + million + "\r\n" + wholeBytes), wholeRecord());
    std::string sections;
    for (int i = 0; i < 100'000; ++i)
        sections += "[S" + std::to_string(i) + "]\r\n";
    EXPECT_EQ(readBytes(sections + wholeBytes), wholeRecord());
}
