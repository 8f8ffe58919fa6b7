// SPDX-License-Identifier: Apache-2.0
#include "WorkspaceTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using namespace tarsil;
using namespace tarsil::test;
using namespace std::string_literals;
using testing::HasSubstr;

namespace {

const std::string whole(wholeWorkspace);

/// The error of reading the whole workspace with one part replaced.
FailedReading failedWith(std::string_view part, std::string_view replacement)
{
    return failedReading(drawn(with(whole, part, replacement)));
}

void expectError(const FailedReading& reading, ErrorNumber number, const std::string& details)
{
    ASSERT_TRUE(reading.error);
    EXPECT_EQ(reading.error->number(), number);
    EXPECT_EQ(reading.error->source(), "mdlWorkSpace");
    EXPECT_THAT(reading.error->description(), HasSubstr("test.tsw, " + details));
}

} // namespace

TEST(WorkspaceReader, readsEveryValue)
{
    EXPECT_EQ(readDrawn(whole), wholeRecord());
}

TEST(WorkspaceReader, findsValuesInAnyOrder)
{
    // The same sections in reverse order, and the keys of the plot too.
    const std::string_view plot = wholeWorkspace.substr(wholeWorkspace.find("[PLOT1]\n") + 8);
    std::string lines;
    for (std::size_t start = 0; !plot.substr(start).starts_with('[');) {
        const std::size_t end = plot.find('\n', start) + 1;
        lines.insert(0, plot.substr(start, end - start));
        start = end;
    }
    const std::size_t files = whole.find("[MODAL");
    const std::size_t plots = whole.find("[PLOTS]");
    EXPECT_EQ(readDrawn("[END OF FILE]\n[PLOT1]\n" + lines + "[PLOTS]\nNoOfPlots=1\n"
                        + whole.substr(files, plots - files) + whole.substr(0, files)),
              wholeRecord());
}

TEST(WorkspaceReader, passesOverWhatItDoesNotKnow)
{
    const std::string more = with(with(whole, "[PLOT1]\n", "\n[PLOT1]\nGrid=1\n"), "[PLOTS]",
                                  "[WINDOWS]\nNoOfPlots=9\n\n[PLOTS]");
    EXPECT_EQ(readDrawn(more), wholeRecord());
}

TEST(WorkspaceReader, readsNeitherUserNorVersion)
{
    EXPECT_EQ(readDrawn(with(whole, "1.1.0", "9.x")), wholeRecord());
    EXPECT_EQ(readDrawn(with(whole, "Username=rivera\ntsw_Version=1.1.0\n", "")), wholeRecord());
}

TEST(WorkspaceReader, hasThreeBlanksForMissingGeneralTexts)
{
    const WorkspaceRecord record =
        readDrawn("[MODAL EVOLUTION FILES]\nNoOfFiles=0\n[PLOTS]\nNoOfPlots=0\n");
    EXPECT_EQ(record, (WorkspaceRecord {"   ", "   ", "   "}));
}

TEST(WorkspaceReader, opensFilesWithoutPlots)
{
    const WorkspaceRecord record = readDrawn(with(whole, "NoOfPlots=1", "NoOfPlots=0"));
    EXPECT_EQ(record.files, wholeRecord().files);
    EXPECT_TRUE(record.plots.empty());
    EXPECT_TRUE(readDrawn(with(whole, "NoOfPlots=1", "NoOfPlots=-1")).plots.empty());
}

TEST(WorkspaceReader, leavesABoxAsItIsWhereItsKeysAreMissing)
{
    WorkspaceRecord expected = wholeRecord();
    expected.plots[0].header.rtf.reset();
    expected.plots[0].legend.position.reset();
    EXPECT_EQ(
        readDrawn(with(with(whole, "Header={\\rtf1 Wing\\par|}|\n", ""), "LegPos=9000|600\n", "")),
        expected);
    EXPECT_EQ(readDrawn(with(with(whole, "{\\rtf1 Wing\\par|}|", "Empty"), "9000|600", "Empty")),
              expected);
    expected.plots[0].header.rtf = "";
    EXPECT_EQ(readDrawn(with(with(whole, "{\\rtf1 Wing\\par|}|", ""), "9000|600", "Empty")),
              expected);
}

TEST(WorkspaceReader, callsAPlotWithoutCaptionEmpty)
{
    EXPECT_EQ(readDrawn(with(whole, "Caption=Plot1\n", "")).plots[0].caption, "Empty");
}

TEST(WorkspaceReader, roundsWholeNumbersToTheNearestEvenOne)
{
    const WorkspaceRecord record = readDrawn(with(with(whole, "g|0|-0.25|5", "g|0|-0.25|4.5"),
                                                  "=1|3||8|5|1|", "=1|3|| 8.5 |7.5|-2.5D0|"));
    EXPECT_EQ(record.plots[0].axes.damping.ticks, 4);
    const SeriesRecord& series = record.plots[0].series[0];
    EXPECT_EQ(series.markerSize, 8);
    EXPECT_EQ(series.markerSpacing, 8);
    EXPECT_EQ(series.markerStyle, -2);
}

TEST(WorkspaceReader, acceptsWholeNumbersUpToTheirLimits)
{
    const WorkspaceRecord record = readDrawn(with(
        whole, "=1|3||8|5|1|clean|255|0", "=32767|-32768||8|5|1|clean|2147483647|-2147483648"));
    const SeriesRecord& series = record.plots[0].series[0];
    EXPECT_EQ(series.evolution, 32767);
    EXPECT_EQ(series.mode, -32768);
    EXPECT_EQ(series.colorIndex, 2147483647);
    EXPECT_EQ(series.markerForegroundColor, -2147483647 - 1);
}

TEST(WorkspaceReader, skipsFieldsAfterTheLast)
{
    EXPECT_EQ(readDrawn(with(with(with(whole, "|700|7\n", "|700|7|8\n"), "|255|0\n", "|255|0|x\n"),
                             "1500|120\n", "1500|120|\n")),
              wholeRecord());
}

TEST(WorkspaceReader, namesWhereANumberIsNone)
{
    expectError(failedWith("|-0.25|", "|low|"), ErrorNumber::TypeMismatch,
                "[PLOT1], gAxis, field 2 (maximum): \"low\"");
    expectError(failedWith("-30\n", "\n"), ErrorNumber::TypeMismatch,
                "[PLOT1], MechPos, field 1 (top): \"\"");
    expectError(failedWith("=2|1|s", "=2|one|s"), ErrorNumber::TypeMismatch,
                "[PLOT1], Serie(2), field 1 (mode): \"one\"");
    expectError(failedWith("|255|", "|2147483648|"), ErrorNumber::Overflow,
                "[PLOT1], Serie(1), field 7 (colour): \"2147483648\"");
    expectError(failedWith("=2|1|s", "=32768|1|s"), ErrorNumber::Overflow,
                "[PLOT1], Serie(2), field 0 (evolution): \"32768\"");
    expectError(failedWith("|700|", "|1e39|"), ErrorNumber::Overflow,
                "[PLOT1], velAxis, field 2 (maximum): \"1e39\"");
}

TEST(WorkspaceReader, needsItsCounts)
{
    expectError(failedWith("NoOfFiles=2\n", ""), ErrorNumber::TypeMismatch,
                "[MODAL EVOLUTION FILES], NoOfFiles, field 0 (count): \"   \"");
    expectError(failedWith("[PLOTS]\n", ""), ErrorNumber::TypeMismatch, "[PLOTS], NoOfPlots");
    expectError(failedWith("NoOfSeries=2", "NoOfSeries=two"), ErrorNumber::TypeMismatch,
                "[PLOT1], NoOfSeries, field 0 (count): \"two\"");
    expectError(failedWith("NoOfPlots=1", "NoOfPlots=32768"), ErrorNumber::Overflow,
                "[PLOTS], NoOfPlots");
}

TEST(WorkspaceReader, needsEveryFieldOfAnAxisASeriesAndAPosition)
{
    expectError(failedWith("velAxis=V(keas)|0|700|7\n", ""), ErrorNumber::SubscriptOutOfRange,
                "[PLOT1], velAxis needs 4 fields and has 1: \"Empty\"");
    expectError(failedWith("f(Hz)|0|50|5", "f(Hz)|0|50"), ErrorNumber::SubscriptOutOfRange,
                "[PLOT1], freqAxis needs 4 fields and has 3: \"f(Hz)?0?50\"");
    expectError(failedWith("|clean|255|0", "|clean|255"), ErrorNumber::SubscriptOutOfRange,
                "[PLOT1], Serie(1) needs 9 fields and has 8");
    expectError(failedWith("1500|120", "1500"), ErrorNumber::SubscriptOutOfRange,
                "[PLOT1], HeadPos needs 2 fields and has 1: \"1500\"");
}

TEST(WorkspaceReader, keepsWhatStoodBeforeAnError)
{
    WorkspaceRecord expected = wholeRecord();
    expected.plots[0].series.pop_back();
    EXPECT_EQ(failedWith("=2|1|s", "=2|one|s").record, expected);
    // If one of the three axes is damaged, none is used.
    expected.plots[0].series.clear();
    EXPECT_EQ(
        failedWith("V(keas)|0|700|7\nfreqAxis=f(Hz)|0|", "V|1|600|9\nfreqAxis=f(Hz)|x|").record,
        expected);
}

TEST(WorkspaceReader, keepsNothingOfAnEarlierRecord)
{
    WorkspaceRecord record = wholeRecord();
    EXPECT_THROW(readWorkspace("", "test.tsw", record), RunTimeError);
    EXPECT_EQ(record, (WorkspaceRecord {"   ", "   ", "   ", {}, {}}));
}

TEST(WorkspaceReader, reportsTheValueAtWhichItEnds)
{
    const auto endOf = [](std::string_view part, std::string_view replacement) {
        const WorkspaceReading reading =
            tryToReadWorkspace(drawn(with(whole, part, replacement)), "test.tsw");
        EXPECT_TRUE(reading.error) << part;
        return reading.section + ", " + reading.key;
    };
    EXPECT_EQ(endOf("NoOfFiles=2", "NoOfFiles=two"), "MODAL EVOLUTION FILES, NoOfFiles");
    EXPECT_EQ(endOf("[PLOTS]\n", ""), "PLOTS, NoOfPlots");
    EXPECT_EQ(endOf("-30\n", "\n"), "PLOT1, MechPos");
    EXPECT_EQ(endOf("=2|1|s", "=2|one|s"), "PLOT1, Serie(2)");
    const WorkspaceReading reading = tryToReadWorkspace(drawn(whole), "test.tsw");
    EXPECT_FALSE(reading.error);
    EXPECT_EQ(reading.record, wholeRecord());
}
