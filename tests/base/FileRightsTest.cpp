// SPDX-License-Identifier: Apache-2.0

// Rights of a saved file, cleanup after signals, and failures of the system during saving.

#include "base/files/AtomicFile.h"
#include "base/user/RunTimeError.h"

#include "base/FilesIn.h"
#include "support/Errors.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <acl/libacl.h>
#include <fcntl.h>
#include <grp.h>
#include <sys/acl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <functional>
#include <string>
#include <system_error>

namespace tarsil {

namespace {

namespace fs = std::filesystem;
using test::errorTextOf;
using test::fileBytes;
using test::filesIn;
using test::TemporaryFolder;
using ::testing::EndsWith;

constexpr uid_t somebody = 54321; // a user id without an account
constexpr gid_t ownGroup = 54322;
constexpr gid_t sharedGroup = 54323;

struct stat fileStatus(const std::string& path)
{
    struct stat status = {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status;
}

int modeOf(const std::string& path)
{
    return static_cast<int>(fileStatus(path).st_mode & 07777);
}

/// The mode of the temporary file being written; -1 when there is none.
int modeOfTemporary(const TemporaryFolder& folder)
{
    for (const auto& entry : fs::directory_iterator(folder.path())) {
        if (entry.path().extension() == ".tmp")
            return modeOf(entry.path().string());
    }
    return -1;
}

std::string writeOver(const TemporaryFolder& folder, mode_t mode)
{
    std::string path = folder.write("a.txt", "old");
    EXPECT_EQ(::chmod(path.c_str(), mode), 0);
    return path;
}

/// The access list in the short form of the system's tools; empty when unsupported.
std::string accessListOf(const std::string& path)
{
    acl_t list = acl_get_file(path.c_str(), ACL_TYPE_ACCESS);
    if (list == nullptr)
        return {};
    char* const text = acl_to_any_text(list, nullptr, ',', TEXT_ABBREVIATE | TEXT_NUMERIC_IDS);
    std::string result = text;
    acl_free(text);
    acl_free(list);
    return result;
}

bool setAccessList(const std::string& path, const char* text, acl_type_t type = ACL_TYPE_ACCESS)
{
    acl_t list = acl_from_text(text);
    const bool isSet = acl_set_file(path.c_str(), type, list) == 0;
    acl_free(list);
    return isSet;
}

/// Runs an action in a child process and returns its wait status. An exception becomes exit status
/// 1.
int inChild(const std::function<void()>& action)
{
    const pid_t child = ::fork();
    if (child == 0) {
        try {
            action();
        } catch (const std::exception&) {
            ::_exit(1);
        }
        ::_exit(0);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return status;
}

/// Runs an action as a user who belongs to the group of the folder's files only by membership.
int asSomebody(const std::function<void()>& action)
{
    return inChild([&action] {
        if (::setgroups(1, &sharedGroup) != 0 || ::setgid(ownGroup) != 0 || ::setuid(somebody) != 0)
            ::_exit(2);
        action();
    });
}

class SavedRights : public ::testing::Test
{
protected:
    TemporaryFolder folder;
};

/// Two users, the second of whom saves. Only root can act as both.
class SavedByAnother : public SavedRights
{
protected:
    void SetUp() override
    {
        if (::geteuid() != 0)
            GTEST_SKIP() << "only root can be two users";
        ::chmod(folder.path().c_str(), 0777);
    }

    std::string fileOf(uid_t owner, gid_t group, mode_t mode) const
    {
        std::string path = folder.write("a.txt", "old");
        EXPECT_EQ(::chown(path.c_str(), owner, group), 0);
        EXPECT_EQ(::chmod(path.c_str(), mode), 0);
        return path;
    }
};

} // namespace

TEST_F(SavedRights, areTheNineBitsAndNoneBeyond)
{
    for (const auto& [before, after] : {std::pair(06755, 0755), std::pair(01640, 0640),
                                        std::pair(02664, 0664), std::pair(0200, 0200)}) {
        const std::string path = writeOver(folder, static_cast<mode_t>(before));
        writeFile(path, "new");
        EXPECT_EQ(modeOf(path), after);
        fs::remove(path);
    }
}

TEST_F(SavedRights, areTheOwnersAloneBeforeTheFileGetsItsName)
{
    for (const mode_t mode : {0600, 0644, 0666}) {
        const std::string path = writeOver(folder, mode);
        AtomicFile file(path);
        file.write("new");
        EXPECT_EQ(modeOfTemporary(folder), 0600);
        file.commit();
        EXPECT_EQ(modeOf(path), static_cast<int>(mode));
    }
}

TEST_F(SavedRights, ofANewFileAreTheUsualOnes)
{
    const mode_t before = ::umask(027);
    writeFile(folder.file("a.txt"), "new");
    ::umask(before);
    EXPECT_EQ(modeOf(folder.file("a.txt")), 0640);
}

TEST_F(SavedRights, includeTheAccessList)
{
    const std::string path = writeOver(folder, 0600);
    const char* const list = "u::rw-,u:54321:r--,g::---,m::r--,o::---";
    if (!setAccessList(path, list))
        GTEST_SKIP() << "no access lists here";
    writeFile(path, "new");
    EXPECT_EQ(accessListOf(path), list);
    EXPECT_EQ(fileBytes(path), "new");
}

TEST_F(SavedRights, doNotComeFromTheFolderWhenTheFileHasNoAccessList)
{
    if (!setAccessList(folder.path().string(), "u::rwx,u:54321:rw-,g::r-x,m::rwx,o::---",
                       ACL_TYPE_DEFAULT))
        GTEST_SKIP() << "no access lists here";
    const std::string path = writeOver(folder, 0600);
    ASSERT_TRUE(setAccessList(path, "u::rw-,g::r--,o::---"));
    writeFile(path, "new");
    EXPECT_EQ(accessListOf(path), "u::rw-,g::r--,o::---");
}

TEST_F(SavedByAnother, stayTheOwnersWhenRootSaves)
{
    const std::string path = fileOf(somebody, sharedGroup, 04640);
    writeFile(path, "new");
    EXPECT_EQ(fileStatus(path).st_uid, somebody);
    EXPECT_EQ(fileStatus(path).st_gid, sharedGroup);
    EXPECT_EQ(modeOf(path), 0640);
}

TEST_F(SavedByAnother, keepAGroupThatTheUserIsAMemberOf)
{
    const std::string path = fileOf(0, sharedGroup, 04664);
    EXPECT_EQ(asSomebody([&path] { writeFile(path, "new"); }), 0);
    EXPECT_EQ(fileStatus(path).st_uid, somebody);
    EXPECT_EQ(fileStatus(path).st_gid, sharedGroup);
    EXPECT_EQ(modeOf(path), 0664) << "no program of the user who saved";
}

TEST_F(SavedByAnother, areNarrowedToWhatAllMightWhenTheGroupIsLost)
{
    const std::string path = fileOf(0, 0, 0646);
    EXPECT_EQ(asSomebody([&path] { writeFile(path, "new"); }), 0);
    EXPECT_EQ(fileBytes(path), "new");
    EXPECT_EQ(fileStatus(path).st_gid, ownGroup);
    // The old group could read, all others could read and write; each person may now be in either
    // class.
    EXPECT_EQ(modeOf(path), 0644);
}

TEST_F(SavedByAnother, giveTheNewGroupNoRightOfTheOldOneInAnAccessList)
{
    const std::string path = fileOf(0, 0, 0600);
    if (!setAccessList(path, "u::rw-,u:54321:rw-,g::rwx,m::rwx,o::r--"))
        GTEST_SKIP() << "no access lists here";
    EXPECT_EQ(asSomebody([&path] { writeFile(path, "new"); }), 0);
    EXPECT_EQ(accessListOf(path), "u::rw-,u:54321:rw-,g::r--,m::rwx,o::r--");
}

TEST_F(SavedByAnother, blameTheFolderThatMayNotBeWritten)
{
    ::chmod(folder.path().c_str(), 0755);
    const std::string path = fileOf(somebody, ownGroup, 0644);
    const std::string expected = "70 Permission denied: " + path + " (the folder "
        + folder.path().string() + " may not be written)";
    EXPECT_EQ(asSomebody([&] {
                  if (errorTextOf([&path] { writeFile(path, "new"); }) != expected)
                      ::_exit(3);
              }),
              0);
    EXPECT_EQ(fileBytes(path), "old");
}

TEST_F(SavedByAnother, refuseAFileThatTheUserMayNotWrite)
{
    const std::string path = fileOf(0, 0, 0644);
    EXPECT_EQ(asSomebody([&] {
                  if (errorTextOf([&path] { writeFile(path, "new"); })
                      != "70 Permission denied: " + path)
                      ::_exit(3);
              }),
              0);
    EXPECT_EQ(fileBytes(path), "old");
}

TEST_F(SavedByAnother, refuseTheFileOfAnotherInAFolderThatKeepsThemApart)
{
    ::chmod(folder.path().c_str(), 01777);
    const std::string path = fileOf(0, 0, 0666);
    EXPECT_EQ(asSomebody([&] {
                  if (errorTextOf([&path] { writeFile(path, "new"); })
                      != "70 Permission denied: " + path)
                      ::_exit(3);
              }),
              0);
    EXPECT_EQ(fileBytes(path), "old");
    EXPECT_EQ(filesIn(folder), 1);
}

TEST_F(SavedByAnother, removeNoOldTemporaryOfAnother)
{
    const std::string old = folder.write(".tarsil-1-0.tmp", "half");
    const timespec yesterdays[2] = {{std::time(nullptr) - 90000, 0},
                                    {std::time(nullptr) - 90000, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, old.c_str(), yesterdays, 0), 0);
    EXPECT_EQ(asSomebody([this] { writeFile(folder.file("a.txt"), "new"); }), 0);
    EXPECT_TRUE(fs::exists(old));
}

TEST_F(SavedRights, comeWithAFileThroughALinkThatLeadsNowhereYet)
{
    fs::create_directory(folder.file("there"));
    fs::create_symlink("there/real.txt", folder.file("second"));
    fs::create_symlink("second", folder.file("first"));
    writeFile(folder.file("first"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.file("first")));
    EXPECT_TRUE(fs::is_symlink(folder.file("second")));
    EXPECT_EQ(fileBytes(folder.file("there/real.txt")), "new");
}

TEST_F(SavedRights, areRefusedThroughALinkToItselfAndToAMissingFolder)
{
    fs::create_symlink("loop", folder.file("loop"));
    EXPECT_THAT(errorTextOf([this] { writeFile(folder.file("loop"), "new"); }),
                ::testing::StartsWith("75 Path/File access error: " + folder.file("loop")));
    fs::create_symlink("none/real.txt", folder.file("away"));
    EXPECT_EQ(errorTextOf([this] { writeFile(folder.file("away"), "new"); }),
              "76 Path not found: " + folder.file("away"));
    EXPECT_EQ(filesIn(folder), 2);
}

namespace {

class SavedUnderSignals : public SavedRights
{
protected:
    /// What remains in the folder when a signal ends a process that is writing a file.
    int endedBy(int signal)
    {
        return inChild([this, signal] {
            removeTemporariesOnSignals();
            AtomicFile file(path);
            file.write("new");
            if (filesIn(folder) != 2)
                ::_exit(4);
            ::raise(signal);
        });
    }

    const std::string path = folder.write("a.txt", "old");
};

} // namespace

TEST_F(SavedUnderSignals, leavesNoTemporary)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const int status = endedBy(signal);
        ASSERT_TRUE(WIFSIGNALED(status)) << signal;
        EXPECT_EQ(WTERMSIG(status), signal) << "the parent process sees the signal";
        EXPECT_EQ(filesIn(folder), 1);
        EXPECT_EQ(fileBytes(path), "old");
    }
}

TEST_F(SavedUnderSignals, goesOnWhereTheSignalIsIgnored)
{
    const auto before = std::signal(SIGHUP, SIG_IGN); // as nohup does
    EXPECT_EQ(endedBy(SIGHUP), 0);
    std::signal(SIGHUP, before);
}

/// A few bytes fail when the buffer of the stream is flushed, many bytes fail at once, a patch
/// fails when it seeks.
TEST_F(SavedUnderSignals, failsAtTheLimitOfAFilesSize)
{
    const std::string expected =
        "75 Path/File access error: " + path + " (" + std::generic_category().message(EFBIG) + ")";
    const auto patch = [this] {
        AtomicFile file(path);
        file.write(std::string(2000, 'x'));
        file.patch(0, "y");
    };
    for (const std::function<void()>& action :
         {std::function<void()>([this] { writeFile(path, std::string(2000, 'x')); }),
          std::function<void()>([this] { writeFile(path, std::string(10000, 'x')); }),
          std::function<void()>(patch)}) {
        const int status = inChild([&] {
            removeTemporariesOnSignals();
            const rlimit limit {1024, 1024};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            if (errorTextOf(action) != expected)
                ::_exit(3);
        });
        EXPECT_EQ(status, 0);
        EXPECT_EQ(filesIn(folder), 1);
        EXPECT_EQ(fileBytes(path), "old");
    }
}

TEST_F(SavedRights, removeWhatAKilledRunLeftADayAgo)
{
    const auto leave = [this](const char* name, std::time_t age) {
        std::string path = folder.write(name, "half");
        const std::time_t then = std::time(nullptr) - age;
        const timespec times[2] = {{then, 0}, {then, 0}};
        EXPECT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
        return path;
    };
    constexpr std::time_t hour = 3600;
    const std::string old = leave(".tarsil-1234-0.tmp", 25 * hour);
    const std::string young = leave(".tarsil-1234-1.tmp", 23 * hour);
    const std::string users = leave(".tarsil-mine.tmp", 25 * hour);
    const std::string others = leave("a.tmp", 25 * hour);
    writeFile(folder.file("a.txt"), "new");
    EXPECT_FALSE(fs::exists(old));
    for (const std::string& kept : {young, users, others})
        EXPECT_TRUE(fs::exists(kept)) << kept;
}

TEST_F(SavedRights, removeNoFolderAndNoLinkOfSuchAName)
{
    const std::string named = folder.file(".tarsil-1-0.tmp");
    const std::string target = folder.write("kept.txt", "kept");
    fs::create_symlink(target, folder.file(".tarsil-2-0.tmp"));
    fs::create_directory(named);
    const timespec longAgo[2] = {{1000000, 0}, {1000000, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, named.c_str(), longAgo, 0), 0);
    ASSERT_EQ(::utimensat(AT_FDCWD, target.c_str(), longAgo, 0), 0);
    writeFile(folder.file("a.txt"), "new");
    EXPECT_EQ(filesIn(folder), 4);
    EXPECT_EQ(fileBytes(target), "kept");
}

} // namespace tarsil
