#include "workspace/FoundFiles.h"

#include "runtime/PathNames.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

using namespace tarsil;
using ::testing::AnyOf;
using ::testing::ElementsAre;

namespace {

class FoundFiles : public ::testing::Test
{
protected:
    /// Where a file is found, in the spelling of the platform.
    std::string found(const std::string& stored) const
    {
        return shownPath(foundFiles({stored}, folder.file("case.tsw")).front());
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
    const std::string same = writeBelow("z", "wing.ev2");
    EXPECT_THAT(found("C:\\flutter\\wing.ev2"), AnyOf(deep, same));
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
