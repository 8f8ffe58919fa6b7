// SPDX-License-Identifier: Apache-2.0
#include "batch/WorkspaceFixture.h"
#include "workspace/WorkspaceTexts.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace tarsil;
using test::runBatch;
using test::with;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class CheckOfAWorkspace : public test::WorkspaceFixture
{
protected:
    /// The record with the present paths of its files.
    WorkspaceRecord settled() const
    {
        WorkspaceRecord record = WorkspaceFixture::record();
        record.files = {wing, old};
        return record;
    }

    /// The findings in a workspace, without the path at the start of lines.
    std::string findings(const std::string& path) const
    {
        const auto result = runBatch({"check", path});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.err, "");
        std::string text = result.out;
        for (std::size_t at = text.find(path + ":"); at != std::string::npos;
             at = text.find(path + ":"))
            text.erase(at, path.size() + 1);
        return text;
    }

    std::string findings(const WorkspaceRecord& record) const { return findings(write(record)); }

    /// The findings after a part of the bytes is replaced.
    std::string findingsWith(std::string_view part, std::string_view replacement) const
    {
        const std::string bytes = test::fileBytes(write(settled()));
        return findings(folder().write("case.tsw", with(bytes, part, replacement)));
    }
};

} // namespace

TEST_F(CheckOfAWorkspace, isSilentWhenAllIsWell)
{
    const auto result = runBatch({"check", write(settled()), write(settled(), "two.TSW"), old});
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(CheckOfAWorkspace, findsFilesThatAreElsewhereOrMissing)
{
    std::filesystem::remove(old);
    EXPECT_EQ(findings(record()),
              "9: [MODAL EVOLUTION FILES], File(1): C:\\flutter\\wing.ev2 is not there; it was "
              "found at "
                  + wing
                  + "\n"
                    "10: [MODAL EVOLUTION FILES], File(2): C:\\flutter\\old.evm is missing\n");
}

TEST_F(CheckOfAWorkspace, findsAFileThatNoSeriesNeeds)
{
    WorkspaceRecord record = settled();
    record.files.emplace_back("C:\\flutter\\gone.ev2");
    EXPECT_EQ(findings(record),
              "11: [MODAL EVOLUTION FILES], File(3): C:\\flutter\\gone.ev2 is missing\n");
}

TEST_F(CheckOfAWorkspace, findsAFileThatCannotBeRead)
{
    folder().write("old.evm", "\n\n\n" + std::string(80, ' ') + "\n");
    EXPECT_THAT(
        findings(settled()),
        HasSubstr("10: [MODAL EVOLUTION FILES], File(2): Type mismatch: " + old + ", line 4"));
}

TEST_F(CheckOfAWorkspace, doesNotCheckTheEvolutionsThemselves)
{
    // Speeds that do not increase are a finding of the evolution, not of the workspace.
    folder().write("old.evm",
                   "\n\n\n" + std::string(60, ' ')
                       + "   2       1\n"
                         "  7  0.100  100.000 5.00000E-01    4.000"
                         "  7  0.200  100.000-5.00000E-01    8.000\n");
    EXPECT_EQ(runBatch({"check", old}).status, 1);
    EXPECT_EQ(runBatch({"check", write(settled())}).status, 0);
}

TEST_F(CheckOfAWorkspace, findsSeriesThatNameNothing)
{
    WorkspaceRecord record = settled();
    record.plots[0].series[0].evolution = 3;
    record.plots[0].series[1].mode = 2;
    record.plots[1].series[0].mode = 0;
    EXPECT_EQ(findings(record),
              "25: [PLOT1], Serie(1): there is no modal evolution 3; the workspace lists 2\n"
              "26: [PLOT1], Serie(2): old.evm has no mode at position 2; it has 1\n"
              "39: [PLOT2], Serie(1): wing.ev2 has no mode at position 0; it has 2\n");
}

TEST_F(CheckOfAWorkspace, findsValuesThatAreTooLongToBeRead)
{
    WorkspaceRecord record = settled();
    record.plots[0].caption = std::string(1023, 'x');
    EXPECT_EQ(runBatch({"check", write(record)}).status, 0);
    record.description = std::string(1024, 'x');
    record.plots[1].caption = std::string(2000, ' ') + "x"; // quotes do not count
    record.plots[1].legend.rtf = test::rtfOf(std::string(5000, 'y'));
    EXPECT_EQ(findings(record),
              "4: [GENERAL INFORMATION], Analysis_Description: the value has 1024 bytes; the "
              "limit is 1023\n"
              "28: [PLOT2], Caption: the value has 2001 bytes; the limit is 1023\n"
              "33: [PLOT2], Legend: the value has 5014 bytes; the limit is 1023\n");
}

TEST_F(CheckOfAWorkspace, findsATextThatWasCut)
{
    WorkspaceRecord record = settled();
    record.plots[0].header.rtf = "{\\rtf1{\\fonttbl{\\f0 Arial;}}text";
    record.plots[1].mechanism.rtf = "{no format";
    EXPECT_EQ(findings(record),
              "15: [PLOT1], Header: the text ends before its last brace: it is truncated\n");
}

TEST_F(CheckOfAWorkspace, findsCountsThatDisagreeWithWhatFollows)
{
    EXPECT_THAT(findingsWith("NoOfFiles=2", "NoOfFiles=1"),
                HasSubstr("10: [MODAL EVOLUTION FILES], File(2): is ignored: NoOfFiles is 1\n"));
    EXPECT_EQ(findingsWith("NoOfPlots=2", "NoOfPlots=1"),
              "27: [PLOT2] is ignored: NoOfPlots is 1\n");
    EXPECT_EQ(findingsWith("NoOfSeries=2", "NoOfSeries=-5"),
              "25: [PLOT1], Serie(1): is ignored: NoOfSeries is 0\n");
}

TEST_F(CheckOfAWorkspace, isSilentAboutReferencesLooksAndEditedParametersThatFit)
{
    WorkspaceRecord record = settled();
    record.edited = {{2, {"QRX", "B", 0.62F}}};
    record.reference = 1;
    record.plots[0].referenceSpeeds = {{352.1F, std::string(1023, 'x')}};
    record.plots[0].dampingLines = {{0.01F, "g = 1.00 %"}};
    record.plots[0].series[1].lineStyle = 2;
    const auto result = runBatch({"check", write(record)});
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(CheckOfAWorkspace, findsReferencesLooksAndEditedParametersThatDoNotFit)
{
    EXPECT_EQ(findingsWith("[PLOTS]\r\n", "Reference=3\r\nEdited(1)=x\r\n[PLOTS]\r\n"),
              "11: [MODAL EVOLUTION FILES], Reference: is ignored: Invalid procedure call or "
              "argument: there is no file 3\n"
              "12: [MODAL EVOLUTION FILES], Edited(1): is ignored: Subscript out of range: "
              "Edited(1) needs 3 fields and has 1: \"x\"\n");
    EXPECT_EQ(findingsWith("[END", "RefSpeed(1)=x\r\n[END"),
              "40: [PLOT2], RefSpeed(1): is ignored: Subscript out of range: RefSpeed(1) needs "
              "2 fields and has 1: \"x\"\n");
    WorkspaceRecord record = settled();
    record.plots[0].dampingLines = {{0.01F, std::string(1030, 'x')}};
    EXPECT_EQ(findings(record),
              "27: [PLOT1], DampLine(1): a text of it has 1030 bytes; the limit is 1023\n");
}

TEST_F(CheckOfAWorkspace, findsFilesThatAreCountedButNotListed)
{
    EXPECT_EQ(findingsWith("NoOfFiles=2", "NoOfFiles=4"),
              "8: [MODAL EVOLUTION FILES], NoOfFiles: counts File(3), which is missing\n"
              "8: [MODAL EVOLUTION FILES], NoOfFiles: counts File(4), which is missing\n");
    WorkspaceRecord record = settled();
    record.files.emplace_back();
    EXPECT_EQ(findings(record), "11: [MODAL EVOLUTION FILES], File(3): has no path\n");
}

TEST_F(CheckOfAWorkspace, listsFindingsInTheOrderOfTheirLines)
{
    // A repeated section continues the first; a repeated key is ignored.
    const std::string bytes = test::fileBytes(write(settled()));
    const std::string text =
        findings(folder().write("case.tsw",
                                "[PLOT2]\r\nMechanism={\\rtf1\r\nmechanism={\\rtf1 }\r\n"
                                    + with(with(bytes, "NoOfSeries=1", "NoOfSeries=0"),
                                           "Mechanism=", "Mechanism={\\rtf1")));
    EXPECT_THAT(text, HasSubstr("2: [PLOT2], Mechanism: "));
    EXPECT_THAT(text, HasSubstr("\n20: [PLOT1], Mechanism: "));
    EXPECT_LT(text.find("2: [PLOT2], Mechanism"), text.find("20: [PLOT1], Mechanism"));
    EXPECT_LT(text.find("20: [PLOT1], Mechanism"), text.find("[PLOT2], Serie(1): is ignored"));
}

TEST_F(CheckOfAWorkspace, listsOnlyTheFirstOfVeryManyFindings)
{
    WorkspaceRecord record = settled();
    record.plots[0].series.assign(3000, {7, 1, "", 8, 1, 2, "", 0, 0});
    const std::string text = findings(record);
    EXPECT_THAT(text, HasSubstr("and 2000 more findings, which are not listed\n"));
    EXPECT_THAT(text, Not(HasSubstr("Serie(1001)")));
}

TEST_F(CheckOfAWorkspace, goesOnAfterAFileThatCannotBeOpenedOrRead)
{
    const std::string bad = folder().write("bad.tsw", "[MODAL EVOLUTION FILES]\r\nNoOfFiles=1\r\n");
    WorkspaceRecord record = settled();
    record.plots[0].series[0].evolution = 3;
    const std::string path = write(record);
    const auto result = runBatch({"check", bad, file("gone.tsw"), path});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "tarsil-batch: File not found: " + file("gone.tsw") + "\n");
    EXPECT_THAT(
        result.out,
        HasSubstr(bad + ":2: reading ends here: Type mismatch: bad.tsw, [PLOTS], NoOfPlots"));
    EXPECT_THAT(result.out, HasSubstr(path + ":25: "));
}

TEST_F(CheckOfAWorkspace, findsWhereReadingEndsBesidesWhatPrecedesIt)
{
    WorkspaceRecord record = settled();
    record.files.emplace_back("C:\\flutter\\gone.ev2");
    record.plots[0].series[0].mode = 9;
    const std::string bytes = test::fileBytes(write(record));
    // The axis of the first plot comes before its series, that of the second after them.
    EXPECT_EQ(findings(folder().write("case.tsw",
                                      with(bytes, "[PLOT2]\r\n", "[PLOT2]\r\nNoOfSeries=x\r\n"))),
              "11: [MODAL EVOLUTION FILES], File(3): C:\\flutter\\gone.ev2 is missing\n"
              "26: [PLOT1], Serie(1): wing.ev2 has no mode at position 9; it has 2\n"
              "29: reading ends here: Type mismatch: case.tsw, [PLOT2], NoOfSeries, field 0 "
              "(count): \"x\"\n");
    EXPECT_EQ(findings(folder().write("case.tsw", with(bytes, "NoOfPlots=2\r\n", ""))),
              "11: [MODAL EVOLUTION FILES], File(3): C:\\flutter\\gone.ev2 is missing\n"
              "12: reading ends here: Type mismatch: case.tsw, [PLOTS], NoOfPlots, field 0 "
              "(count): \"   \"\n");
}

TEST_F(CheckOfAWorkspace, findsThatTheFileWasCut)
{
    const std::string bytes = test::fileBytes(write(settled()));
    const std::string cut = bytes.substr(0, bytes.find("[END OF FILE]"));
    EXPECT_EQ(findings(folder().write("case.tsw", cut)),
              "39: the file was cut: its last line, [END OF FILE], is missing\n");
    EXPECT_EQ(findings(folder().write("case.tsw", cut.substr(0, cut.find("[PLOT2]")))),
              "26: reading ends here: Subscript out of range: case.tsw, [PLOT2], velAxis needs 4 "
              "fields and has 1: \"Empty\"\n"
              "26: the file was cut: its last line, [END OF FILE], is missing\n");
    EXPECT_THAT(findings(folder().write("case.tsw", "")),
                HasSubstr("1: the file was cut: its last line, [END OF FILE], is missing\n"));
}

TEST_F(CheckOfAWorkspace, findsValuesWhoseFieldsAreTooLongTogether)
{
    WorkspaceRecord record = settled();
    record.plots[0].series[0].legendText = std::string(1000, 'l');
    EXPECT_EQ(runBatch({"check", write(record)}).status, 1);
    record.plots[1].axes.speed.title = std::string(2000, 'v');
    EXPECT_THAT(findings(record),
                AllOf(HasSubstr("25: [PLOT1], Serie(1): the value has 10"),
                      HasSubstr("35: [PLOT2], velAxis: the value has 2008 bytes; the limit is "
                                "1023\n")));
}

TEST_F(CheckOfAWorkspace, resolvesARelativePathFromTheFolderOfTheWorkspace)
{
    WorkspaceRecord record = settled();
    record.files = {"wing.ev2", "old.evm"};
    EXPECT_EQ(runBatch({"check", write(record)}).status, 0);
}

TEST_F(CheckOfAWorkspace, endsForEveryCutOfTheBytes)
{
    const std::string bytes = test::fileBytes(write(settled()));
    const std::size_t end = bytes.find(']', bytes.find("[END OF FILE"));
    for (std::size_t size = 0; size <= end; size += 7) {
        const auto result = runBatch({"check", folder().write("cut.tsw", bytes.substr(0, size))});
        ASSERT_EQ(result.status, 1) << size;
        ASSERT_THAT(result.out, HasSubstr("the file was cut")) << size;
        ASSERT_EQ(result.err, "") << size;
    }
}
