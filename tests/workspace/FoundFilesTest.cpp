// SPDX-License-Identifier: Apache-2.0
#include "workspace/FoundFiles.h"

#include "base/files/PathNames.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace tarsil;
using ::testing::ElementsAre;

namespace {

class FoundFiles : public ::testing::Test
{
protected:
    /// The path at which a file is found, with "/" as separator.
    std::string found(const std::string& stored) const { return foundAll({stored}).front(); }

    /// The paths of several files.
    std::vector<std::string> foundAll(const std::vector<std::string>& stored) const
    {
        std::vector<std::string> files = foundFiles(stored, folder.file("case.tsw"));
        for (std::string& file : files)
            file = pathText(nativePath(file));
        return files;
    }

    std::string writeBelow(const std::string& subfolder, const std::string& name) const
    {
        std::filesystem::create_directories(folder.path() / subfolder);
        return folder.write(subfolder + "/" + name, "x");
    }

    test::TemporaryFolder folder;
};

} // namespace

TEST_F(FoundFiles, areWhereTheWorkspaceSays)
{
    const test::TemporaryFolder other;
    const std::string stored = other.write("wing.ev2", "x");
    folder.write("wing.ev2", "x");
    EXPECT_EQ(found(stored), stored);
    EXPECT_EQ(found(other.path().string() + "\\wing.ev2"), stored);
}

TEST_F(FoundFiles, areBesideTheWorkspaceBeforeTheyAreBelowIt)
{
    writeBelow("a", "wing.ev2");
    const std::string beside = folder.write("wing.ev2", "x");
    EXPECT_EQ(found("C:\\flutter\\wing.ev2"), beside);
    EXPECT_EQ(found("/gone/wing.ev2"), beside);
}

TEST_F(FoundFiles, areBelowTheFolderOfTheWorkspace)
{
    const std::string deep = writeBelow("a/b/c", "wing.ev2");
    EXPECT_EQ(found("C:\\flutter\\wing.ev2"), deep);
    writeBelow("z", "wing.ev2");
    EXPECT_EQ(found("C:\\flutter\\wing.ev2"), "C:/flutter/wing.ev2") << "which one is unknown";
    const std::string named = writeBelow("y/Flutter", "wing.ev2");
    EXPECT_EQ(found("C:\\flutter\\wing.ev2"), named);
}

TEST_F(FoundFiles, areNoneAfterAStoppedSearch)
{
    writeBelow("a/b", "wing.ev2");
    const std::string beside = folder.write("tail.ev2", "x");
    std::vector<std::size_t> visited;
    const auto files =
        foundFiles({"/gone/wing.ev2", "/gone/tail.ev2", beside}, folder.file("case.tsw"),
                   [&visited](std::size_t done, std::size_t total) {
                       EXPECT_LT(done, total);
                       visited.push_back(done);
                       return visited.size() < 2;
                   });
    EXPECT_THAT(visited, ElementsAre(2, 3)) << "a and tail.ev2, then a/b";
    EXPECT_THAT(files, ElementsAre("/gone/wing.ev2", "/gone/tail.ev2", beside))
        << "a better tail.ev2 may be somewhere else";
}

TEST_F(FoundFiles, areNoFolders)
{
    std::filesystem::create_directories(folder.path() / "wing.ev2");
    const std::string stored = "C:\\flutter\\wing.ev2";
    EXPECT_THAT(foundFiles({stored}, folder.file("case.tsw")), ElementsAre(stored));
    const std::string deep = writeBelow("wing.ev2", "wing.ev2");
    EXPECT_EQ(found(stored), deep);
}

TEST_F(FoundFiles, keepTheirOrderAndTheStoredPathOfWhatIsNowhere)
{
    const std::string two = writeBelow("a", "two.ev2");
    const std::string one = folder.write("one.ev2", "x");
    const auto files =
        foundFiles({"D:\\two.ev2", "D:\\gone.ev2", "one.ev2.bak", "E:\\one.ev2", "D:\\two.ev2", ""},
                   folder.file("case.tsw"));
    EXPECT_THAT(files,
                ElementsAre(pathText(two), "D:\\gone.ev2", "one.ev2.bak", pathText(one),
                            pathText(two), ""));
    EXPECT_TRUE(foundFiles({}, folder.file("case.tsw")).empty());
}

TEST_F(FoundFiles, areThoseThatShareMostOfTheirLastFolders)
{
    folder.write("wing.ev2", "x");
    const std::string clean = writeBelow("2024/runs/clean", "wing.ev2");
    const std::string store = writeBelow("2024/runs/store", "wing.ev2");
    EXPECT_THAT(foundAll({"D:\\runs\\store\\wing.ev2", "C:\\wing.ev2", "E:\\clean\\wing.ev2"}),
                ElementsAre(store, "C:/wing.ev2", clean));
}

TEST_F(FoundFiles, areNotTakenByTheirNamesWhereSeveralPathsHaveThem)
{
    // The run of m060 is gone; that of m050 does not belong to this workspace.
    const std::string listed = writeBelow("m040", "wing.ev2");
    writeBelow("m050", "wing.ev2");
    const std::string gone = folder.file("m060/wing.ev2");
    EXPECT_THAT(foundAll({listed, gone}), ElementsAre(listed, gone));
}

TEST_F(FoundFiles, areKnownToBeTakenByTheirNamesAlone)
{
    const std::string workspace = folder.file("case.tsw");
    const std::string stored = "C:\\store\\wing.ev2";
    EXPECT_TRUE(isTakenByNameAlone(stored, folder.file("other/wing.ev2"), workspace));
    EXPECT_FALSE(isTakenByNameAlone(stored, folder.file("wing.ev2"), workspace)) << "beside it";
    EXPECT_FALSE(isTakenByNameAlone(stored, folder.file("a/STORE/wing.ev2"), workspace));
    EXPECT_FALSE(isTakenByNameAlone(stored, stored, workspace)) << "not found at all";
    EXPECT_FALSE(isTakenByNameAlone("runs/wing.ev2", writeBelow("runs", "wing.ev2"), workspace));
}

TEST_F(FoundFiles, shareTheFoldersThatHoldTheWorkspaceToo)
{
    folder.write("wing.ev2", "x");
    const std::string other = writeBelow("other", "wing.ev2");
    const std::string own = folder.path().filename().string();
    EXPECT_EQ(found("C:\\" + own + "\\wing.ev2"), folder.file("wing.ev2"));
    EXPECT_EQ(found("C:\\other\\wing.ev2"), other);
}

TEST_F(FoundFiles, areTakenByNoneOfSeveralPathsThatMeanThemEqually)
{
    folder.write("wing.ev2", "x");
    writeBelow("x", "wing.ev2");
    EXPECT_THAT(foundAll({"C:\\a\\wing.ev2", "C:\\b\\wing.ev2"}),
                ElementsAre("C:/a/wing.ev2", "C:/b/wing.ev2"));
    EXPECT_THAT(foundAll({"C:\\a\\wing.ev2", "C:/a/wing.ev2"}),
                ElementsAre(folder.file("wing.ev2"), folder.file("wing.ev2")))
        << "one path in two spellings";
}

TEST_F(FoundFiles, belongToThePathThatMeansThemBest)
{
    const std::string wing = writeBelow("b", "wing.ev2");
    EXPECT_THAT(foundAll({"C:\\a\\wing.ev2", "C:\\b\\wing.ev2"}),
                ElementsAre("C:/a/wing.ev2", wing));
}

TEST_F(FoundFiles, areNotFilesThatTheWorkspaceListsItself)
{
    const std::string wing = writeBelow("a", "wing.ev2");
    EXPECT_THAT(foundAll({"C:\\a\\wing.ev2", wing}), ElementsAre("C:/a/wing.ev2", wing));
    if (!test::makeLink(wing, folder.path() / "wing.ev2"))
        return;
    EXPECT_THAT(foundAll({"C:\\a\\wing.ev2", wing}), ElementsAre("C:/a/wing.ev2", wing))
        << "a link leads to the same file";
}

TEST_F(FoundFiles, areSearchedAtTheirPathRelativeToTheWorkspaceFirst)
{
    const test::TemporaryFolder current;
    current.write("wing.ev2", "x");
    current.write("tail.ev2", "x");
    const std::string wing = folder.write("wing.ev2", "x");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(current.path());
    const auto files = foundAll({"wing.ev2", "tail.ev2"});
    std::filesystem::current_path(before);
    EXPECT_THAT(files, ElementsAre(wing, "tail.ev2"));
}

TEST_F(FoundFiles, areFoundWithoutCaseWhereNoNameIsTheSame)
{
    const std::string wing = writeBelow("Store", "wing_\u00fc.ev2");
    writeBelow("other", "tail.ev2");
    EXPECT_EQ(found("C:\\STORE\\WING_\u00dc.EV2"), wing);
    const std::string exact = writeBelow("A", "TAIL.EV2");
    EXPECT_EQ(found("C:\\x\\TAIL.EV2"), exact);
    if (!hasWindowsPaths) { // these are one path on Windows
        EXPECT_THAT(foundAll({"/x/tail.ev2", "/x/TAIL.EV2"}),
                    ElementsAre(folder.file("other/tail.ev2"), exact));
    }
}

TEST_F(FoundFiles, areOneWherePathsOfADriveDifferInCase)
{
    const std::string wing = writeBelow("m040", "wing.ev2");
    writeBelow("m060", "wing.ev2");
    EXPECT_THAT(foundAll({"C:\\m040\\wing.ev2", "C:\\M040\\WING.EV2"}), ElementsAre(wing, wing));
}

#ifndef _WIN32 // which ignores case in every path
TEST_F(FoundFiles, areTwoWhereOtherPathsDifferInCase)
{
    const std::string wing = folder.write("wing.ev2", "x");
    EXPECT_THAT(foundAll({"/a/WING.EV2", "/a/wing.ev2"}), ElementsAre("/a/WING.EV2", wing));
}
#endif

TEST_F(FoundFiles, areFoundInAVastFolderWithTheirStoredFolders)
{
    constexpr int more = 20'500; // more than the limit of 20000
    std::filesystem::create_directory(folder.path() / "many");
    for (int i = 0; i < more; ++i)
        std::ofstream(folder.path() / "many" / std::to_string(i)) << 'x';
    const std::string deep = writeBelow("n/clean", "wing.ev2");
    EXPECT_EQ(found("C:\\n\\clean\\wing.ev2"), deep);
    EXPECT_EQ(found("C:\\store\\wing.ev2"), "C:/store/wing.ev2") << "that far nobody looks";
}
