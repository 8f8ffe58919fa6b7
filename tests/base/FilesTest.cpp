// SPDX-License-Identifier: Apache-2.0
#include "base/files/AtomicFile.h"
#include "base/user/RunTimeError.h"

#include "base/FilesIn.h"
#include "support/Errors.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace tarsil {

namespace {

namespace fs = std::filesystem;
using test::errorNumberOf;
using test::fileBytes;
using test::filesIn;
using test::TemporaryFolder;

TEST(AtomicFile, putsTheNewFileInPlaceOnCommit)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    AtomicFile file(path);
    file.write("new");
    file.write(" text");
    EXPECT_EQ(fileBytes(path), "old");
    file.commit();
    EXPECT_EQ(fileBytes(path), "new text");
    EXPECT_EQ(filesIn(folder), 1);
}

TEST(AtomicFile, patchesWhatIsWrittenAndContinuesAfterTheLastByte)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.txt");
    AtomicFile file(path);
    file.write("count ?, ");
    file.write("first");
    file.patch(6, "2");
    file.write(", second");
    file.commit();
    EXPECT_EQ(fileBytes(path), "count 2, first, second");
}

TEST(AtomicFile, leavesTheOldFileWithoutCommit)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    {
        AtomicFile file(path);
        file.write("new");
    }
    EXPECT_EQ(fileBytes(path), "old");
    EXPECT_EQ(filesIn(folder), 1);
}

TEST(AtomicFile, makesAFileThatWasNotThere)
{
    const TemporaryFolder folder;
    writeFile(folder.file("new file.txt"), "text");
    EXPECT_EQ(fileBytes(folder.file("new file.txt")), "text");
}

TEST(AtomicFile, makesAnEmptyFile)
{
    const TemporaryFolder folder;
    writeFile(folder.file("empty.txt"), {});
    EXPECT_EQ(fileBytes(folder.file("empty.txt")), "");
}

TEST(AtomicFile, acceptsBackslashesInItsPath)
{
    const TemporaryFolder folder;
    writeFile(folder.path().string() + "\\a.txt", "text");
    EXPECT_EQ(fileBytes(folder.file("a.txt")), "text");
}

TEST(AtomicFile, refusesAReadOnlyTarget)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    EXPECT_EQ(errorNumberOf([&] { writeFile(path, "new"); }), ErrorNumber::PermissionDenied);
    EXPECT_EQ(fileBytes(path), "old");
    EXPECT_EQ(filesIn(folder), 1);
}

TEST(AtomicFile, refusesATargetMadeReadOnlyBeforeCommit)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    AtomicFile file(path);
    file.write("new");
    fs::permissions(path, fs::perms::owner_read);
    EXPECT_EQ(errorNumberOf([&] { file.commit(); }), ErrorNumber::PermissionDenied);
    EXPECT_EQ(fileBytes(path), "old");
}

TEST(AtomicFile, refusesAFolderAsTarget)
{
    const TemporaryFolder folder;
    EXPECT_EQ(errorNumberOf([&] { writeFile(folder.path().string(), "x"); }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(filesIn(folder), 0);
}

#ifndef _WIN32 // Windows has no pipes among files
TEST(AtomicFile, refusesAPipeAndADeviceAsTarget)
{
    const TemporaryFolder folder;
    const std::string pipe = folder.file("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(errorNumberOf([&] { writeFile(pipe, "x"); }), ErrorNumber::PathFileAccess);
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(errorNumberOf([&] { writeFile("/dev/null", "x"); }), ErrorNumber::PathFileAccess);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}
#endif

TEST(AtomicFile, acceptsTheLongestNameThatAFolderAccepts)
{
    const TemporaryFolder folder;
    const std::string path = folder.file(std::string(251, 'a').append(".txt"));
    writeFile(path, "text");
    EXPECT_EQ(fileBytes(path), "text");
    EXPECT_EQ(filesIn(folder), 1);
}

TEST(AtomicFile, refusesAMissingFolder)
{
    const TemporaryFolder folder;
    EXPECT_EQ(errorNumberOf([&] { writeFile(folder.file("missing") + "/a.txt", "x"); }),
              ErrorNumber::PathNotFound);
}

#ifndef _WIN32 // WindowsFilesTest has the test for access lists
TEST(AtomicFile, keepsThePermissionsOfTheOldFile)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    const auto permissions = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(path, permissions);
    writeFile(path, "new");
    EXPECT_EQ(fs::status(path).permissions(), permissions);
}
#endif

TEST(AtomicFile, writesThroughASymbolicLink)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    if (!test::makeLink(path, folder.file("link.txt")))
        GTEST_SKIP() << "no symbolic links here";
    writeFile(folder.file("link.txt"), "new");
    EXPECT_EQ(fileBytes(path), "new");
    writeFile(path, "newer");
    EXPECT_EQ(fileBytes(folder.file("link.txt")), "newer") << "it is still a link";
}

} // namespace

} // namespace tarsil
