// SPDX-License-Identifier: Apache-2.0
#include "base/files/InputFile.h"

#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"

#include "support/Errors.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

namespace tarsil {

namespace {

namespace fs = std::filesystem;
using test::errorTextOf;
using test::TemporaryFolder;
using ::testing::HasSubstr;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool endsWithoutMemory = true; // its allocator ends the program instead of failing
#else
constexpr bool endsWithoutMemory = false;
#endif

#ifdef _WIN32
constexpr const char* device = "NUL";
#else
constexpr const char* device = "/dev/null";
#endif

std::string openingError(const std::string& path)
{
    return errorTextOf([&path] { const InputFile file(path); });
}

std::string take(InputFile& file, std::size_t count)
{
    std::string bytes(count, '\0');
    file.read(bytes.data(), count);
    return bytes;
}

TEST(InputFile, isReadFromItsStartToItsEnd)
{
    const TemporaryFolder folder;
    InputFile file(folder.write("a b.txt", std::string_view("x\0yz\r\n", 6)));
    EXPECT_EQ(take(file, 3), std::string_view("x\0y", 3));
    EXPECT_EQ(file.bytesLeft(), 3U);
    char ahead[2] = {};
    file.peek(1, ahead, 2);
    EXPECT_EQ(std::string(ahead, 2), "\r\n");
    EXPECT_EQ(take(file, 3), "z\r\n");
    EXPECT_EQ(file.bytesLeft(), 0U);
    EXPECT_EQ(take(file, 0), "");
    file.requireUnchanged();
}

TEST(InputFile, isAPlainFile)
{
    const TemporaryFolder folder;
    EXPECT_THAT(openingError(folder.file("missing")), HasSubstr("53 "));
    EXPECT_THAT(openingError(folder.path().string()), HasSubstr("75 "));
    EXPECT_THAT(openingError(folder.file("missing") + "/a.txt"), HasSubstr("76 "));
    EXPECT_THAT(openingError(device), HasSubstr("75 "));
}

TEST(InputFile, thatBecomesShorterIsAnError)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", std::string(100000, 'x'));
    InputFile file(path);
    EXPECT_EQ(take(file, 10), std::string(10, 'x'));
    fs::resize_file(path, 20);
    EXPECT_EQ(take(file, 10), std::string(10, 'x')) << "these are still there";
    const std::string error = errorTextOf([&file] { take(file, 1); });
    EXPECT_THAT(error, HasSubstr("75 "));
    EXPECT_THAT(error,
                HasSubstr(shownPath(path) + " (another program changed it while it was read)"));
    EXPECT_EQ(errorTextOf([&file] { file.requireUnchanged(); }), error);
}

TEST(InputFile, thatGrowsIsReadToItsFirstEndAndIsAnError)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "first");
    InputFile file(path);
    std::ofstream(path, std::ios::app) << " and more";
    EXPECT_EQ(file.bytesLeft(), 5U);
    EXPECT_EQ(take(file, 5), "first");
    EXPECT_THAT(errorTextOf([&file] { file.requireUnchanged(); }), HasSubstr("75 "));
}

TEST(InputFile, thatIsWrittenAnewInTheSameSizeIsAnError)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "first");
    const auto now = fs::last_write_time(path);
    fs::last_write_time(path, now - std::chrono::hours(1));
    const InputFile file(path);
    folder.write("a.txt", "other");
    fs::last_write_time(path, now);
    EXPECT_THAT(errorTextOf([&file] { file.requireUnchanged(); }), HasSubstr("75 "));
}

#ifndef _WIN32 // which does not replace a file that is being read
TEST(InputFile, thatIsReplacedIsStillTheOneThatWasOpened)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "first");
    InputFile file(path);
    fs::rename(folder.write("b.txt", "other text"), path);
    EXPECT_EQ(take(file, 5), "first");
    file.requireUnchanged();
}
#endif

TEST(FileBytes, areAllBytesOfAFile)
{
    const TemporaryFolder folder;
    const FileBytes file(folder.write("a b.txt", std::string_view("x\0y\r\n", 5)));
    EXPECT_EQ(file.bytes(), std::string_view("x\0y\r\n", 5));
    EXPECT_EQ(FileBytes(folder.write("empty", "")).bytes(), "");
}

TEST(FileBytes, stayWhatTheyWere)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", std::string(100000, 'x'));
    const FileBytes file(path);
    fs::resize_file(path, 0);
    EXPECT_EQ(file.bytes(), std::string(100000, 'x'));
}

TEST(FileBytes, moreThanTheMemoryHoldsAreAnError)
{
    if (endsWithoutMemory)
        GTEST_SKIP() << "the sanitizer's allocator does not fail";
    const TemporaryFolder folder;
    const std::string path = folder.write("vast", "");
    constexpr std::uintmax_t vast = std::uintmax_t {15} << 40; // bytes, none of them stored
    std::error_code refused;
    fs::resize_file(path, vast, refused);
    if (refused)
        GTEST_SKIP() << "the file system has no files of this size";
    EXPECT_THAT(errorTextOf([&path] { const FileBytes file(path); }), HasSubstr("75 "));
}

} // namespace

} // namespace tarsil
