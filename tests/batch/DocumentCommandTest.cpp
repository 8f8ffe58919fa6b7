// SPDX-License-Identifier: Apache-2.0
#include "batch/WorkspaceFixture.h"

#include <QCryptographicHash>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using test::sample;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class Document : public test::WorkspaceFixture
{
protected:
    /// Writes the document of a workspace to "out.html".
    test::BatchResult document(const std::string& workspace,
                               const std::vector<std::string>& more = {}) const
    {
        std::vector<std::string> all = {"document", "--mach", "0.5", "--output", file("out.html")};
        all.insert(all.end(), more.begin(), more.end());
        all.push_back(workspace);
        return runBatch(all);
    }

    std::string text() const { return fileBytes(file("out.html")); }
};

} // namespace

TEST_F(Document, isWrittenInEachFormat)
{
    const std::string workspace = write(record());
    for (const char* name : {"a.pdf", "a.odt", "a.HTML"}) {
        const auto result =
            runBatch({"document", "--mach", "0.5", "--output", file(name), workspace});
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.out + result.err, "");
        EXPECT_GT(fileBytes(file(name)).size(), 10000U) << name;
    }
    EXPECT_EQ(fileBytes(file("a.pdf")).substr(0, 5), "%PDF-");
}

TEST_F(Document, hasTheWorkspaceItsPlotsAndItsDigest)
{
    const std::string workspace = write(record());
    EXPECT_EQ(document(workspace).status, 0);
    EXPECT_THAT(text(), HasSubstr("<h1>case</h1>"));
    EXPECT_THAT(text(), HasSubstr("rivera"));
    EXPECT_THAT(text(), HasSubstr("Figure 1: Wing"));
    EXPECT_THAT(text(), HasSubstr("Figure 2: Store"));
    const QByteArray digest = QCryptographicHash::hash(
        QByteArray::fromStdString(fileBytes(workspace)), QCryptographicHash::Sha256);
    EXPECT_THAT(text(), HasSubstr(digest.toHex().toStdString()));
}

TEST_F(Document, reportsAtTheGivenDampingUpToTheGivenSpeed)
{
    EXPECT_EQ(document(write(record())).status, 0);
    EXPECT_THAT(text(),
                HasSubstr("reference damping g = 0, and the largest damping up to 400 KEAS"))
        << "by default up to the largest speed";
    EXPECT_EQ(
        document(write(record()), {"--reference-damping", "0.05", "--speed-limit", "250"}).status,
        0);
    EXPECT_THAT(text(),
                HasSubstr("reference damping g = 0.05, and the largest damping up to 250 KEAS"));
    EXPECT_THAT(text(), HasSubstr("levels of damping 0, 0.01, 0.02, 0.03, 0.05"));
    EXPECT_EQ(document(write(record()), {"--levels", "0.04"}).status, 0);
    EXPECT_THAT(text(), HasSubstr("levels of damping 0.04"));
}

TEST_F(Document, hasAlsoTheEvolutionsThatNoPlotShows)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots.erase(record.plots.begin());
    EXPECT_EQ(document(write(record)).status, 0);
    EXPECT_THAT(text(), HasSubstr("2  old.evm"));
}

TEST_F(Document, isWrittenWithoutAMissingFile)
{
    std::filesystem::remove(old);
    const auto result = document(write(record()));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("modal evolution 2"));
    EXPECT_THAT(text(), HasSubstr("could not be opened"));
}

TEST_F(Document, judgesARequirement)
{
    const auto judge = [&](const std::string& option) {
        return runBatch({"document", "--aircraft", sample("goland.inp"), option, "--output",
                         file("out.html"), sample("goland.tsw")});
    };
    const auto passed = judge("--require");
    EXPECT_EQ(passed.status, 0) << passed.err;
    EXPECT_THAT(text(), HasSubstr("pass: "));
    EXPECT_THAT(text(), HasSubstr("goland.inp"));
    const auto failed = judge("--require=2");
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.err, HasSubstr("goland_clean_m040.ev2: fail: "));
    EXPECT_THAT(text(), HasSubstr("fail: "));
}

TEST_F(Document, refusesWhatIsNotOneWorkspace)
{
    EXPECT_EQ(document(wing).status, 2);
    EXPECT_EQ(document(write(record()), {write(record())}).status, 2);
    EXPECT_EQ(runBatch({"document", "--output", file("a.docx"), write(record())}).status, 2);
    EXPECT_EQ(document(write(record()), {"--require"}).status, 2) << "without an aircraft file";
    EXPECT_FALSE(std::filesystem::exists(file("out.html")));
}

TEST_F(Document, needsTheMachNumberOfAFileWithACrossing)
{
    const auto result = runBatch({"document", "--output", file("out.pdf"), write(record())});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("old.evm has no Mach number; use --mach"));
    EXPECT_FALSE(std::filesystem::exists(file("out.pdf")));
}

TEST_F(Document, doesNotReplaceWhatItReads)
{
    const std::string workspace = write(record());
    std::filesystem::create_hard_link(wing, file("out.html"));
    const auto result = document(workspace);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("is one of the files to read"));
}
