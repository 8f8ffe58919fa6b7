// SPDX-License-Identifier: Apache-2.0
#include "workspace/WorkspaceWriter.h"
#include "WorkspaceTexts.h"

#include "support/Errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

using namespace tarsil;
using namespace tarsil::test;
using namespace std::string_literals;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

std::string written(const WorkspaceRecord& record)
{
    return writeWorkspace(record, "rivera").bytes;
}

/// The bytes written for a description.
std::string writtenDescription(const std::string& text)
{
    WorkspaceRecord record;
    record.description = text;
    const std::string bytes = written(record);
    const std::size_t start = bytes.find("Analysis_Description=") + 21;
    return bytes.substr(start, bytes.find("\r\nDate_Created=") - start);
}

/// The bytes written for the legend text of a series.
std::string writtenLegend(const std::string& text)
{
    WorkspaceRecord record = wholeRecord();
    record.plots[0].series = {{1, 2, "", 3, 4, 5, text, 6, 7}};
    const std::string bytes = written(record);
    const std::size_t start = bytes.find("Serie(1)=") + 9;
    const std::string value = bytes.substr(start, bytes.find("\r\n[END") - start);
    const std::string head = "1\0"
                             "2\0\0"
                             "3\0"
                             "4\0"
                             "5\0"s;
    const std::string tail = "\0"
                             "6\0"
                             "7"s;
    EXPECT_TRUE(value.starts_with(head) && value.ends_with(tail));
    return value.substr(head.size(), value.size() - head.size() - tail.size());
}

void expectOverflow(const WorkspaceRecord& record, const std::string& details)
{
    const std::string error = errorTextOf([&record] { written(record); });
    EXPECT_THAT(error, AllOf(StartsWith("6 "), HasSubstr(details)));
}

} // namespace

TEST(WorkspaceWriter, writesEverySectionAndKeyInItsOrder)
{
    EXPECT_EQ(written(wholeRecord()), drawn(wholeWorkspace));
}

TEST(WorkspaceWriter, writesAnEmptyWorkspace)
{
    EXPECT_EQ(written({}),
              drawn("[GENERAL INFORMATION]\n"
                    "Username=rivera\n"
                    "tsw_Version=1.1.0\n"
                    "Analysis_Description=\n"
                    "Date_Created=\n"
                    "Date_Modified=\n"
                    "[MODAL EVOLUTION FILES]\n"
                    "NoOfFiles=0\n"
                    "[PLOTS]\n"
                    "NoOfPlots=0\n"
                    "[END OF FILE]\n"));
}

TEST(WorkspaceWriter, numbersPlotsWithoutPadding)
{
    WorkspaceRecord record;
    record.plots.resize(10);
    const std::string bytes = written(record);
    EXPECT_THAT(bytes, HasSubstr("NoOfPlots=10\r\n[PLOT1]\r\n"));
    EXPECT_THAT(bytes, HasSubstr("\r\n[PLOT10]\r\n"));
}

TEST(WorkspaceWriter, endsTheUserAtTheFirstNul)
{
    EXPECT_THAT(writeWorkspace({}, "rivera\0\0x"s).bytes, HasSubstr("\r\nUsername=rivera\r\n"));
}

TEST(WorkspaceWriter, writesEmptyForWhatIsAbsent)
{
    WorkspaceRecord record = wholeRecord();
    record.plots[0].header = {};
    EXPECT_THAT(written(record), HasSubstr("\r\nHeader=Empty\r\nHeadPos=Empty\r\nMechanism={"));
}

TEST(WorkspaceWriter, writesNumbersAsShortAsTheyCanBe)
{
    WorkspaceRecord record = wholeRecord();
    record.plots[0].axes.damping = {"g", 0.1F, -1.0F / 3, -3};
    record.plots[0].header.position = BoxPosition {0.1, 1e6};
    const std::string bytes = written(record);
    // A single has at most nine digits; the nearest to a third is 0.33333334.
    EXPECT_THAT(bytes,
                HasSubstr("gAxis=g\0"
                          "0.1\0-0.33333334\0-3\r\n"s));
    const BoxPosition position = *readBytes(bytes).plots[0].header.position;
    EXPECT_EQ(position, (BoxPosition {0.1, 1e6}));
    EXPECT_THAT(bytes, HasSubstr("HeadPos=0.1\0"s));
}

TEST(WorkspaceWriter, keepsEveryTextOnOneLine)
{
    EXPECT_EQ(writtenDescription("a\r\nb\nc\rd\r\r\n"), "a\0b\0c\0d\0\0"s);
    WorkspaceRecord record = wholeRecord();
    record.plots[0].header.rtf = "{\\rtf1 a\nb\\par\r\n\r}\0"s;
    EXPECT_THAT(written(record), HasSubstr("Header=\"{\\rtf1 a\0b\\par\0\0} \"\r\n"s));
}

TEST(WorkspaceWriter, keepsTheFieldsOfAValueApart)
{
    EXPECT_EQ(writtenLegend("a\r\nb\nc\0d"s), "a b c d");
    EXPECT_EQ(writtenLegend(" \"x\" "), " \"x\" ");
}

TEST(WorkspaceWriter, quotesOnlyWhatAReaderWouldShorten)
{
    EXPECT_EQ(writtenDescription("  "), "\"  \"");
    EXPECT_EQ(writtenDescription("   "), "   ") << "nobody has given one";
    EXPECT_EQ(writtenDescription(" a"), "\" a\"");
    EXPECT_EQ(writtenDescription("a\t"), "\"a\t\"");
    EXPECT_EQ(writtenDescription("\"a\""), "\"\"a\"\"");
    for (const char* const text : {"\"", "\"a", "a\"", "a \"b\" c", "'a'", "a = b", "[a]", ";a"})
        EXPECT_EQ(writtenDescription(text), text);
}

TEST(WorkspaceWriter, writesWindows1252WhereEveryTextFits)
{
    // The byte of the umlaut is FC, that of the dash 96.
    EXPECT_EQ(writtenDescription("Flügel –"),
              "Fl\xFC"
              "gel \x96");
    EXPECT_EQ(writtenLegend("ü"), "\xFC");
}

TEST(WorkspaceWriter, writesUtf8WhereOneTextDoesNotFit)
{
    WorkspaceRecord record = wholeRecord();
    record.description = "Flügel";
    record.files[0] = "C:\\α.evm";
    const std::string bytes = written(record);
    EXPECT_THAT(bytes, HasSubstr("=Flügel\r\n"));
    EXPECT_THAT(bytes, HasSubstr("File(1)=C:\\α.evm\r\n"));
    EXPECT_EQ(readBytes(bytes), record);
}

TEST(WorkspaceWriter, writesUtf8WhereWindows1252WouldBeTakenForIt)
{
    // Two characters whose bytes C3 BC are one character of UTF-8.
    EXPECT_EQ(writtenDescription("Ã¼"), "Ã¼");
}

TEST(WorkspaceWriter, writesLongValuesWholeAndNamesThem)
{
    WorkspaceRecord record = wholeRecord();
    record.description = std::string(1023, 'x');
    record.plots[0].legend.rtf = "{" + std::string(1022, 'y') + "\r\n";
    const WrittenWorkspace workspace = writeWorkspace(record, "rivera");
    // The brace, the letters, and the NUL of the line break.
    EXPECT_EQ(workspace.longValues, (std::vector<LongValue> {{"PLOT1", "Legend", 1024}}));
    EXPECT_THAT(workspace.bytes, HasSubstr("{" + std::string(1022, 'y') + "\0\r\n"s));
    const WorkspaceRecord again = readBytes(workspace.bytes);
    EXPECT_EQ(again.description, record.description);
    EXPECT_EQ(again.plots[0].legend.rtf, "{" + std::string(1022, 'y'));
}

TEST(WorkspaceWriter, refusesNumbersThatAreNone)
{
    WorkspaceRecord record = wholeRecord();
    record.plots[0].axes.speed.max = std::numeric_limits<float>::infinity();
    expectOverflow(record, "[PLOT1], velAxis");
    record = wholeRecord();
    record.plots[0].legend.position->top = std::numeric_limits<double>::quiet_NaN();
    expectOverflow(record, "[PLOT1], LegPos");
}

TEST(WorkspaceWriter, refusesMoreThanACountCanSay)
{
    WorkspaceRecord record;
    record.files.assign(32767, "x");
    EXPECT_EQ(readBytes(written(record)).files.size(), 32767U);
    record.files.emplace_back("x");
    expectOverflow(record, "[MODAL EVOLUTION FILES], NoOfFiles: \"32768\"");
}
