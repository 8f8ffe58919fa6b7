// SPDX-License-Identifier: Apache-2.0
#include "batch/WorkspaceFixture.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class ReportOfAWorkspace : public test::WorkspaceFixture
{
protected:
    /// Writes the report with reference damping 0 up to 350 KEAS into "out.csv".
    test::BatchResult report(const std::vector<std::string>& more) const
    {
        std::vector<std::string> all = {
            "report",  "--reference-damping", "0", "--speed-limit", "350", "--mach", "0.5",
            "--output"};
        all.push_back(file("out.csv"));
        all.insert(all.end(), more.begin(), more.end());
        return runBatch(all);
    }

    /// Evolution, case, mode and first flutter speed of the rows, each followed by a bar.
    std::string rows() const
    {
        const std::string text = fileBytes(file("out.csv"));
        std::string rows;
        for (std::size_t at = text.find("\r\n") + 2; at < text.size();
             at = text.find("\r\n", at) + 2) {
            std::vector<std::string> cells(1);
            for (const char c : text.substr(at, text.find("\r\n", at) - at)) {
                if (c == ',')
                    cells.emplace_back();
                else
                    cells.back() += c;
            }
            rows += cells.at(0) + " " + cells.at(1) + " " + cells.at(4) + " " + cells.at(7) + "|";
        }
        return rows;
    }
};

} // namespace

TEST_F(ReportOfAWorkspace, hasARowForEachSeriesInOrder)
{
    const auto result = report({write(record())});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out + result.err, "");
    // Zeros are half-way between two points; the case is shown for the new format only.
    EXPECT_EQ(rows(), "wing.ev2 torsion 5 250|old.evm  7 150|wing.ev2 bending 3 350|");
}

TEST_F(ReportOfAWorkspace, hasTheParametersThatWereEdited)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.edited = {{1, {"QRX", "heavy", 0.5F}}, {2, {"old", "empty", 0.25F}}};
    const std::string edited = write(record, "edited.tsw");
    const std::string plain = write(WorkspaceFixture::record());
    EXPECT_EQ(report({edited, plain, wing}).status, 0);
    const std::string text = fileBytes(file("out.csv"));
    EXPECT_THAT(text, HasSubstr("\r\nwing.ev2,torsion,heavy,0.5,5,"));
    EXPECT_THAT(text, HasSubstr("\r\nold.evm,,empty,0.25,7,"));
    // Elsewhere the parameters of the files themselves are used.
    EXPECT_THAT(text, HasSubstr("\r\nwing.ev2,torsion,\"FULL \"\"A\"\"\",0.78,5,"));
    EXPECT_THAT(text, HasSubstr("\r\nold.evm,,,0.5,7,")) << "that of --mach, where there is none";
}

TEST_F(ReportOfAWorkspace, saysWhichFileHasNoPath)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.files[1].clear();
    const std::string path = write(record);
    const auto result = report({path});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err,
              "tarsil-batch: " + path
                  + ": the series of modal evolution 2 are left out: the workspace has no path "
                    "for it\n");
    EXPECT_EQ(rows(), "wing.ev2 torsion 5 250|wing.ev2 bending 3 350|");
}

TEST_F(ReportOfAWorkspace, usesThePlotAskedFor)
{
    const std::string path = write(record());
    EXPECT_EQ(report({"--plot", "2", path}).status, 0);
    EXPECT_EQ(rows(), "wing.ev2 bending 3 350|");
    EXPECT_EQ(report({"--plot", "Wing", path}).status, 0);
    EXPECT_EQ(rows(), "wing.ev2 torsion 5 250|old.evm  7 150|");
}

TEST_F(ReportOfAWorkspace, prefersANumberToACaptionAndTheFirstOfEqualCaptions)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots[0].caption = "2";
    EXPECT_EQ(report({"--plot", "2", write(record)}).status, 0);
    EXPECT_EQ(rows(), "wing.ev2 bending 3 350|");
    record.plots[0].caption = "2024"; // no plot has this number
    EXPECT_EQ(report({"--plot", "2024", write(record)}).status, 0);
    EXPECT_EQ(rows(), "wing.ev2 torsion 5 250|old.evm  7 150|");
    record.plots[0].caption = "Store";
    EXPECT_EQ(report({"--plot", "Store", write(record)}).status, 0);
    EXPECT_EQ(rows(), "wing.ev2 torsion 5 250|old.evm  7 150|");
}

TEST_F(ReportOfAWorkspace, namesThePlotsWhenOneIsUnknown)
{
    const std::string path = write(record());
    for (const std::string plot : {"Tail", "0", "3", "-1", "", "99999999999999999999999"}) {
        const auto result = report({"--plot", plot, path});
        EXPECT_EQ(result.status, 1) << plot;
        EXPECT_EQ(result.err,
                  "tarsil-batch: " + path + ": there is no plot \"" + plot
                      + "\"; there are 1 \"Wing\", 2 \"Store\"\n");
    }
    WorkspaceRecord empty = record();
    empty.plots.clear();
    EXPECT_THAT(report({"--plot", "1", write(empty)}).err, HasSubstr("the workspace has none"));
    EXPECT_FALSE(std::filesystem::exists(file("out.csv")));
}

TEST_F(ReportOfAWorkspace, leavesOutTheSeriesOfAMissingFile)
{
    std::filesystem::remove(old);
    const std::string path = write(record());
    const auto result = report({path});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err,
              "tarsil-batch: " + path
                  + ": the series of modal evolution 2 are left out: File not found: "
                    "C:\\flutter\\old.evm\n");
    EXPECT_EQ(rows(), "wing.ev2 torsion 5 250|wing.ev2 bending 3 350|");
}

TEST_F(ReportOfAWorkspace, usesNoFileThatSeveralPathsMean)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.files = {"C:\\clean\\wing.ev2", "C:\\store\\wing.ev2"};
    const std::string path = write(record);
    const auto result = report({path});
    EXPECT_EQ(result.status, 1);
    for (const char* gone : {"C:\\clean\\wing.ev2\n", "C:\\store\\wing.ev2\n"})
        EXPECT_THAT(result.err, HasSubstr("are left out: File not found: " + std::string(gone)));
    EXPECT_EQ(rows(), "");
}

TEST_F(ReportOfAWorkspace, saysWhichFilesAreTakenForTheirNamesAlone)
{
    std::filesystem::create_directories(folder().path() / "other");
    std::filesystem::rename(old, folder().path() / "other" / "old.evm");
    const std::string path = write(record());
    const auto result = report({path});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.err, HasSubstr("modal evolution 2, C:/flutter/old.evm, is not there; "));
    EXPECT_THAT(result.err, HasSubstr("other/old.evm is used because of its name alone\n"));
}

TEST_F(ReportOfAWorkspace, distinguishesNamesakesByTheirFolders)
{
    std::filesystem::create_directories(folder().path() / "moved" / "clean");
    std::filesystem::create_directories(folder().path() / "moved" / "store");
    std::string bytes = fileBytes(old);
    folder().write("moved/clean/wing.evm", bytes);
    folder().write("moved/store/wing.evm", bytes.replace(bytes.find("200.000"), 3, "300"));
    WorkspaceRecord record = WorkspaceFixture::record();
    record.files = {"C:\\store\\wing.evm", "C:\\clean\\wing.evm"};
    record.plots.pop_back();
    record.plots[0].series[0].mode = 1;
    EXPECT_EQ(report({write(record)}).err, "");
    // Zeros half-way from 100 to 300 and from 100 to 200.
    EXPECT_EQ(rows(), "wing.evm  7 200|wing.evm  7 150|");
}

TEST_F(ReportOfAWorkspace, needsOnlyTheFilesOfItsSeries)
{
    std::filesystem::remove(old);
    const auto result = report({"--plot", "Store", write(record())});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
}

TEST_F(ReportOfAWorkspace, leavesOutTheSeriesOfAFileThatCannotBeRead)
{
    folder().write("old.evm", "\n\n\n" + std::string(80, ' ') + "\n");
    const auto result = report({write(record())});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("Type mismatch: " + old + ", line 4"));
    EXPECT_EQ(rows(), "wing.ev2 torsion 5 250|wing.ev2 bending 3 350|");
    WorkspaceRecord record = WorkspaceFixture::record();
    record.files[1] = folder().write("notes.txt", "x");
    EXPECT_THAT(report({write(record)}).err, HasSubstr("notes.txt: a modal evolution has .evm"));
}

TEST_F(ReportOfAWorkspace, leavesOutSeriesThatNameNothing)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots[0].series[0].mode = 3;
    record.plots[0].series[1].evolution = 3;
    record.plots[1].series.resize(4, record.plots[1].series[0]);
    record.plots[1].series[0].mode = 0;
    record.plots[1].series[1].mode = -1;
    record.plots[1].series[2].evolution = 0;
    const std::string path = write(record);
    const auto result = report({path});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err,
                HasSubstr("tarsil-batch: " + path
                          + ": plot \"Wing\", series 1 is left out: wing.ev2 has no mode at "
                            "position 3; it has 2\n"));
    EXPECT_THAT(result.err,
                HasSubstr("series 2 is left out: there is no modal evolution 3; the workspace "
                          "lists 2\n"));
    EXPECT_THAT(result.err, HasSubstr("plot \"Store\", series 1 is left out"));
    EXPECT_THAT(result.err, HasSubstr("plot \"Store\", series 3 is left out"));
    EXPECT_EQ(rows(), "wing.ev2 bending 3 350|");
}

TEST_F(ReportOfAWorkspace, isAmongEvolutionsInTheOrderGiven)
{
    const auto result = report({old, write(record()), wing});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(rows(), ::testing::StartsWith("old.evm  7 150|wing.ev2 torsion 5 250|"));
    EXPECT_THAT(rows(), HasSubstr("bending 3 350|wing.ev2 nominal; "));
}

TEST_F(ReportOfAWorkspace, opensAFileThatIsListedTwice)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.files[1] = record.files[0];
    const auto result = report({write(record)});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(rows(), "wing.ev2 torsion 5 250|wing.ev2 old 3 350|wing.ev2 bending 3 350|");
}

TEST_F(ReportOfAWorkspace, hasHeadingsOnlyWithoutPlots)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots.clear();
    EXPECT_EQ(report({write(record)}).status, 0);
    EXPECT_EQ(rows(), "");
}

TEST_F(ReportOfAWorkspace, isNotWrittenOverWhatIsRead)
{
    // Names that end like an output; the first is a hard link to the workspace.
    const std::string path = write(record());
    std::filesystem::create_hard_link(path, file("out.csv"));
    const std::string before = fileBytes(path);
    const auto result = report({path});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("is one of the files to read"));
    EXPECT_EQ(fileBytes(path), before);
    std::filesystem::remove(file("out.csv"));
    std::filesystem::create_hard_link(old, file("out.csv"));
    EXPECT_THAT(report({"--plot", "Store", path}).err, HasSubstr("is one of the files to read"))
        << "a file that the workspace lists";
}

TEST_F(ReportOfAWorkspace, writesNothingWhenTheWorkspaceCannotBeRead)
{
    const auto result = report({folder().write("bad.tsw", "nothing"), wing});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("bad.tsw, [MODAL EVOLUTION FILES], NoOfFiles"));
    EXPECT_FALSE(std::filesystem::exists(file("out.csv")));
}

TEST_F(ReportOfAWorkspace, refusesOptionsThatDoNotGoWithIt)
{
    const auto modes = report({"--modes", "1", wing, write(record())});
    EXPECT_EQ(modes.status, 2);
    EXPECT_THAT(modes.err, HasSubstr("--modes: already determined by the series of the workspace"));
    const auto plot = report({"--plot", "1", wing});
    EXPECT_EQ(plot.status, 2);
    EXPECT_THAT(plot.err, HasSubstr("--plot needs a workspace"));
    EXPECT_FALSE(std::filesystem::exists(file("out.csv")));
}
