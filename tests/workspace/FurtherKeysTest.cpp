// SPDX-License-Identifier: Apache-2.0
#include "WorkspaceTexts.h"
#include "rtf/RtfStoredValue.h"
#include "workspace/WorkspaceWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

// The further keys: reference speeds, damping lines, looks of curves, edited parameters and the
// reference evolution.

using namespace tarsil;
using namespace tarsil::test;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr std::string_view furtherFiles = "Edited(2)=QRX190|store 7|0.8\n"
                                          "Reference=2\n";
constexpr std::string_view furtherPlot = "RefSpeed(1)=352.1|Vd\n"
                                         "RefSpeed(2)=\"-7.5|   VL \"\n"
                                         "DampLine(1)=0.01|g = 1.00 %\n"
                                         "SerieLook(2)=1|3|4\n"
                                         "SerieHidden(1)=1\n"
                                         "BreakAtJumps=1\n";

/// The whole workspace with lines appended to the section of the files and to that of the plot.
std::string drawing(std::string_view files, std::string_view plot)
{
    const std::string text =
        with(std::string(wholeWorkspace), "[PLOTS]\n", std::string(files) + "[PLOTS]\n");
    return with(text, "[END", std::string(plot) + "[END");
}

WorkspaceRecord furtherRecord()
{
    WorkspaceRecord record = wholeRecord();
    record.edited = {{2, {"QRX190", "store 7", 0.8F}}};
    record.reference = 2;
    PlotRecord& plot = record.plots[0];
    plot.referenceSpeeds = {{352.1F, "Vd"}, {-7.5F, "   VL "}};
    plot.dampingLines = {{0.01F, "g = 1.00 %"}};
    plot.series[0].isHidden = true;
    plot.series[1].lineStyle = 1;
    plot.series[1].lineWidth = 3;
    plot.series[1].factor = 4;
    plot.breaksAtJumps = true;
    return record;
}

/// Expects a line in the section of the files, or of the plot, to be ignored without any other
/// effect.
void expectUnused(std::string_view files, std::string_view plot, std::string_view why)
{
    const WorkspaceReading reading = tryToReadWorkspace(drawn(drawing(files, plot)), "test.tsw");
    const std::string line = std::string(files) + std::string(plot);
    EXPECT_FALSE(reading.error) << line;
    EXPECT_EQ(reading.record, wholeRecord()) << line;
    ASSERT_EQ(reading.unusedValues.size(), 1U) << line;
    const UnusedValue& value = reading.unusedValues[0];
    EXPECT_EQ(value.section, plot.empty() ? "MODAL EVOLUTION FILES" : "PLOT1") << line;
    EXPECT_EQ(value.key, line.substr(0, line.find('='))) << line;
    EXPECT_THAT(value.why, HasSubstr(std::string(why))) << line;
}

} // namespace

TEST(FurtherKeys, areReadAtTheEndsOfTheirSections)
{
    EXPECT_EQ(readDrawn(drawing(furtherFiles, furtherPlot)), furtherRecord());
}

TEST(FurtherKeys, areWrittenAtTheEndsOfTheirSections)
{
    EXPECT_EQ(writeWorkspace(furtherRecord(), "rivera").bytes,
              drawn(drawing(furtherFiles, furtherPlot)));
}

TEST(FurtherKeys, areNotWrittenWhereNothingDiffersFromTheUsual)
{
    EXPECT_EQ(writeWorkspace(wholeRecord(), "rivera").bytes, drawn(wholeWorkspace));
}

TEST(FurtherKeys, areFoundWhereverTheirSectionsGoOn)
{
    const std::string text = with(std::string(wholeWorkspace), "Caption=Plot1\n",
                                  "serielook(2) = 1|3|4\nbreakatjumps = 1\n"
                                  "seriehidden(1) = 1\n"
                                  "DampLine(1)=0.01|g = 1.00 %\n"
                                  "REFSPEED(2)=\"-7.5|   VL \"\nRefSpeed(1)=352.1|Vd\n"
                                  "Caption=Plot1\n");
    EXPECT_EQ(readDrawn(text + "[modal evolution files]\n" + std::string(furtherFiles)),
              furtherRecord());
}

TEST(FurtherKeys, arePassedOverWhereTheyDoNotFit)
{
    expectUnused("", "RefSpeed(1)=fast|Vd\n", "Type mismatch");
    expectUnused("", "RefSpeed(1)=\n", "needs 2 fields and has 1");
    expectUnused("", "RefSpeed(1)=352.1\n", "needs 2 fields and has 1");
    expectUnused("", "RefSpeed(1)=1e39|Vd\n", "Overflow");
    expectUnused("", "DampLine(1)=nan|g\n", "Type mismatch");
    expectUnused("", "DampLine(1)=inf|g\n", "Type mismatch");
    expectUnused("", "SerieLook(1)=1|2\n", "needs 3 fields and has 2");
    expectUnused("", "SerieLook(1)=6|2|1\n", "line style 6");
    expectUnused("", "SerieLook(1)=-1|2|1\n", "line style -1");
    expectUnused("", "SerieLook(2)=1|-2|1\n", "line width -2");
    expectUnused("", "SerieLook(2)=1|32768|1\n", "Overflow");
    expectUnused("", "SerieLook(2)=1|2|-1\n", "factor index -1");
    expectUnused("", "SerieLook(2)=1|2|2147483648\n", "Overflow");
    expectUnused("", "SerieHidden(1)=yes\n", "Type mismatch");
    expectUnused("", "SerieHidden(2)=\n", "Type mismatch");
    expectUnused("Edited(1)=a|m\n", "", "needs 3 fields and has 2");
    expectUnused("Edited(1)=a|m|\n", "", "Type mismatch");
    expectUnused("Edited(1)=a|m|1e300\n", "", "Overflow");
    expectUnused("Reference=0\n", "", "there is no file 0");
    expectUnused("Reference=3\n", "", "there is no file 3");
    expectUnused("Reference=-32768\n", "", "there is no file -32768");
    expectUnused("Reference=clean\n", "", "Type mismatch");
}

TEST(FurtherKeys, areReadAfterOneThatDoesNotFit)
{
    const WorkspaceRecord record =
        readDrawn(drawing("Edited(1)=no|number\nEdited(2)=a|m|0.5\n",
                          "RefSpeed(1)=1|a\nRefSpeed(2)=b\nRefSpeed(3)=3|c\n"
                          "SerieLook(1)=9|9|9\nSerieLook(2)=2|0|1\n"));
    EXPECT_EQ(record.edited, (decltype(record.edited) {{2, {"a", "m", 0.5F}}}));
    EXPECT_THAT(record.plots[0].referenceSpeeds,
                ElementsAre(ReferenceRecord {1, "a"}, ReferenceRecord {3, "c"}));
    EXPECT_EQ(record.plots[0].series[0], wholeRecord().plots[0].series[0]);
    EXPECT_EQ(record.plots[0].series[1].lineStyle, 2);
}

TEST(FurtherKeys, ofFilesAndCurvesThatThereAreNotArePassedOver)
{
    EXPECT_EQ(readDrawn(drawing("Edited(0)=a|m|1\nEdited(3)=a|m|1\n",
                                "SerieLook(0)=1|1|1\nSerieLook(3)=1|1|1\nRefSpeed(0)=1|a\n"
                                "SerieHidden(0)=1\nSerieHidden(3)=1\n"
                                "DampLine(2)=1|b\n[PLOT2]\nRefSpeed(1)=1|a\n")),
              wholeRecord());
}

TEST(FurtherKeys, hideNoCurveByTheNumber0)
{
    EXPECT_EQ(readDrawn(drawing("", "SerieHidden(1)=0\n")), wholeRecord());
}

TEST(FurtherKeys, useTheFirstFactorWhereNobodyChoseOne)
{
    const WorkspaceRecord record = readDrawn(drawing("", "SerieLook(1)=2|5|0\n"));
    EXPECT_EQ(record.plots[0].series[0].lineStyle, 2);
    EXPECT_EQ(record.plots[0].series[0].lineWidth, 5);
    EXPECT_EQ(record.plots[0].series[0].factor, 1);
}

TEST(FurtherKeys, haveNoLineBreaksAndNulsInTheirTexts)
{
    WorkspaceRecord record = furtherRecord();
    record.plots[0].referenceSpeeds[0].caption = "V\r\nd";
    record.plots[0].dampingLines[0].caption = std::string("g\0=\n[PLOT2]\rx", 13);
    record.edited[2].mass = "a\r\nNoOfFiles=9";
    WorkspaceRecord expected = furtherRecord();
    expected.plots[0].referenceSpeeds[0].caption = "V d";
    expected.plots[0].dampingLines[0].caption = "g = [PLOT2] x";
    expected.edited[2].mass = "a NoOfFiles=9";
    EXPECT_EQ(readBytes(writeWorkspace(record, "rivera").bytes), expected);
}

TEST(FurtherKeys, keepBlanksAndQuotesOfTheirTexts)
{
    WorkspaceRecord record = furtherRecord();
    for (const char* const text : {"", " ", "Vd    ", "       VL", "\t", "\"", "\"Vd\"", " \" "}) {
        record.plots[0].referenceSpeeds[0].caption = text;
        record.plots[0].dampingLines[0].caption = text;
        record.edited[2].airplane = text;
        record.edited[2].mass = text;
        EXPECT_EQ(readBytes(writeWorkspace(record, "rivera").bytes), record) << text;
    }
}

TEST(FurtherKeys, haveTextsOfEveryScript)
{
    WorkspaceRecord record = furtherRecord();
    record.plots[0].referenceSpeeds[0].caption = "Größe";
    EXPECT_THAT(writeWorkspace(record, "rivera").bytes,
                HasSubstr("Gr\xF6\xDF"
                          "e"));
    EXPECT_EQ(readBytes(writeWorkspace(record, "rivera").bytes), record);
    record.plots[0].dampingLines[0].caption = "阻尼 α";
    EXPECT_THAT(writeWorkspace(record, "rivera").bytes, HasSubstr("Größe"));
    EXPECT_EQ(readBytes(writeWorkspace(record, "rivera").bytes), record);
    // Two characters whose bytes C3 BC are one character of UTF-8.
    record.plots[0].dampingLines[0].caption = "Ã¼";
    EXPECT_EQ(readBytes(writeWorkspace(record, "rivera").bytes), record);
}

TEST(FurtherKeys, loseOnlyTheEndOfATextThatIsTooLong)
{
    const std::string longest(mostStoredBytes, 'x');
    WorkspaceRecord record = furtherRecord();
    record.plots[0].referenceSpeeds[1].caption = longest;
    record.plots[0].dampingLines[0].caption = longest;
    record.edited[2].airplane = longest;
    record.edited[2].mass = longest;
    const WorkspaceRecord cut = record;
    const WrittenWorkspace fitting = writeWorkspace(record, "rivera");
    EXPECT_TRUE(fitting.longValues.empty()) << "nobody else reads these values";
    EXPECT_EQ(readBytes(fitting.bytes), record);
    record.plots[0].referenceSpeeds[1].caption += "beyond";
    record.plots[0].dampingLines[0].caption += "ü"; // the first byte of UTF-8 would still fit
    record.edited[2].mass += "b";
    record.description = "漢";
    const WrittenWorkspace written = writeWorkspace(record, "rivera");
    const std::vector<LongValue> expected = {{"MODAL EVOLUTION FILES", "Edited(2)", 1024},
                                             {"PLOT1", "RefSpeed(2)", 1029},
                                             {"PLOT1", "DampLine(1)", 1025}};
    EXPECT_EQ(written.longValues, expected);
    const WorkspaceReading reading = tryToReadWorkspace(written.bytes, "test.tsw");
    EXPECT_EQ(reading.cutValues, expected);
    EXPECT_EQ(reading.record.edited, cut.edited);
    EXPECT_EQ(reading.record.plots, cut.plots);
}

TEST(FurtherKeys, acceptAsManyReferencesAsACountCanExpress)
{
    std::string plot;
    for (int i = 1; i <= 40'000; ++i)
        plot += "RefSpeed(" + std::to_string(i) + ")=1|\n";
    EXPECT_EQ(readDrawn(drawing("", plot)).plots[0].referenceSpeeds.size(), 32767U);
}

TEST(FurtherKeys, refuseNumbersThatAreNone)
{
    WorkspaceRecord record = furtherRecord();
    record.plots[0].dampingLines[0].value = std::numeric_limits<float>::infinity();
    EXPECT_THROW(writeWorkspace(record, "rivera"), RunTimeError);
}

TEST(MissingEntriesOfTheList, areFilesWithoutPath)
{
    WorkspaceRecord expected = wholeRecord();
    expected.files.resize(4);
    EXPECT_EQ(readDrawn(with(std::string(wholeWorkspace), "NoOfFiles=2", "NoOfFiles=4")), expected);
    expected = wholeRecord();
    expected.files[0].clear();
    EXPECT_EQ(readDrawn(with(std::string(wholeWorkspace), "File(1)=C:\\flutter\\clean.evm\n", "")),
              expected);
    EXPECT_EQ(readDrawn(with(std::string(wholeWorkspace), "C:\\flutter\\clean.evm", "")), expected);
    EXPECT_EQ(readBytes(writeWorkspace(expected, "rivera").bytes), expected);
}
