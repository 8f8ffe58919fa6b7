// SPDX-License-Identifier: Apache-2.0

// What differs on Windows: names, long paths, files that other programs have open, access lists.

#include "base/files/AtomicFile.h"
#include "base/files/FileFacts.h"
#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/user/UserName.h"

#include "base/FilesIn.h"
#include "support/Errors.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include <windows.h>

#include <sddl.h>

namespace tarsil {

namespace {

namespace fs = std::filesystem;
using test::errorTextOf;
using test::fileBytes;
using test::filesIn;
using test::TemporaryFolder;

struct FreeLocal
{
    void operator()(void* memory) const { LocalFree(memory); }
};

/// Opens a file as another program might, until the end of the scope.
class OpenElsewhere
{
public:
    OpenElsewhere(const std::string& path, DWORD sharing)
        : m_handle(CreateFileW(nativePath(path).c_str(), GENERIC_READ, sharing, nullptr,
                               OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(m_handle, INVALID_HANDLE_VALUE);
    }
    ~OpenElsewhere() { CloseHandle(m_handle); }
    OpenElsewhere(const OpenElsewhere&) = delete;
    OpenElsewhere& operator=(const OpenElsewhere&) = delete;

private:
    HANDLE m_handle;
};

/// The access list of a file in the text form of the system.
std::wstring accessTextOf(const std::string& path)
{
    std::vector<std::byte> list(4096);
    DWORD size = 0;
    EXPECT_TRUE(GetFileSecurityW(nativePath(path).c_str(), DACL_SECURITY_INFORMATION, list.data(),
                                 static_cast<DWORD>(list.size()), &size));
    wchar_t* text = nullptr;
    EXPECT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorW(
        list.data(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &text, nullptr));
    const std::unique_ptr<wchar_t, FreeLocal> freed(text);
    return text;
}

void setAccess(const std::string& path, const wchar_t* text)
{
    void* list = nullptr;
    ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1, &list,
                                                                     nullptr));
    const std::unique_ptr<void, FreeLocal> freed(list);
    ASSERT_TRUE(SetFileSecurityW(nativePath(path).c_str(), DACL_SECURITY_INFORMATION, list));
}

} // namespace

TEST(WindowsFiles, haveNamesOfAnyCharacters)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("Fl\u00fcgel \u0416 \U0001F6E9.txt");
    writeFile(path, "text\r\n");
    EXPECT_TRUE(fs::exists(folder.path() / L"Fl\u00fcgel \u0416 \U0001F6E9.txt"));
    EXPECT_TRUE(fileExists(path));
    EXPECT_EQ(FileBytes(path).bytes(), "text\r\n") << "no byte is translated";
    EXPECT_EQ(factsOf(path).size, 6U);
    EXPECT_EQ(pathText(nativePath(path)), path);
}

TEST(WindowsFiles, areReplacedWithoutAnythingLeft)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old and longer");
    for (const char* text : {"first", "second"})
        writeFile(path, text);
    EXPECT_EQ(fileBytes(path), "second");
    EXPECT_EQ(filesIn(folder), 1);
}

TEST(WindowsFiles, mayHaveLongPaths)
{
    const TemporaryFolder folder;
    std::string deep = folder.file("x");
    for (int i = 0; i < 30; ++i)
        deep += "/a folder of this name";
    fs::create_directories(nativePath(deep));
    const std::string path = deep + "/wing.ev2";
    writeFile(path, "old");
    writeFile(path, "new");
    EXPECT_TRUE(fileExists(path));
    EXPECT_EQ(FileBytes(path).bytes(), "new");
    EXPECT_TRUE(fileIdentity(path));
    EXPECT_EQ(pathText(nativePath(path)), path);
    EXPECT_EQ(resolvePath(path).folder, deep);
    EXPECT_EQ(resolvePath(deep + "/b/../wing.ev2").folder, deep);
    EXPECT_EQ(errorTextOf([&] { FileBytes(deep + "/none"); }),
              "53 File not found: " + shownPath(deep + "/none"));
    EXPECT_EQ(shownPath(path).find('?'), std::string::npos);
}

TEST(WindowsFiles, mayBeOnAnotherComputer)
{
    const std::string path = "//server/share/runs/wing.ev2";
    EXPECT_EQ(nativePath(path).native(), L"\\\\server\\share\\runs\\wing.ev2");
    EXPECT_EQ(pathText(nativePath(path)), path);
    EXPECT_EQ(shownPath(path), "\\\\server\\share\\runs\\wing.ev2");
    EXPECT_EQ(resolvePath(path).folder, "//server/share/runs");
    const std::string deep = "//server/share/" + std::string(300, 'x') + "/wing.ev2";
    EXPECT_TRUE(nativePath(deep).native().starts_with(L"\\\\?\\UNC\\server\\share\\xx"));
    EXPECT_EQ(pathText(nativePath(deep)), deep);
}

TEST(WindowsFiles, areOneWhateverTheCaseOfTheirNames)
{
    const TemporaryFolder folder;
    const auto identity = fileIdentity(folder.write("wing.ev2", "x"));
    ASSERT_TRUE(identity);
    EXPECT_EQ(fileIdentity(folder.file("WING.EV2")), identity);
    EXPECT_NE(fileIdentity(folder.write("tail.ev2", "x")), identity);
    EXPECT_EQ(pathText(realPath(nativePath(folder.file("WING.EV2"))).value().filename()),
              "wing.ev2");
}

TEST(WindowsFiles, thatAnotherProgramHasOpenAreNotReplaced)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    for (const DWORD sharing : {DWORD {0}, DWORD {FILE_SHARE_READ | FILE_SHARE_WRITE}}) {
        const OpenElsewhere other(path, sharing);
        EXPECT_EQ(errorTextOf([&] { writeFile(path, "new"); }),
                  "70 Permission denied: " + shownPath(path) + " (another program has opened it)");
        EXPECT_EQ(filesIn(folder), 1);
    }
    EXPECT_EQ(fileBytes(path), "old");
    writeFile(path, "new");
    EXPECT_EQ(fileBytes(path), "new");
}

TEST(WindowsFiles, thatAnotherProgramHasLockedCannotBeRead)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    const OpenElsewhere other(path, 0);
    EXPECT_EQ(errorTextOf([&] { FileBytes {path}; }), "70 Permission denied: " + shownPath(path));
}

TEST(WindowsFiles, doNotPreventOtherProgramsFromWritingWhileTheyAreRead)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "first");
    const InputFile file(path);
    const HANDLE other = CreateFileW(nativePath(path).c_str(), GENERIC_WRITE | DELETE,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                     nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(other, INVALID_HANDLE_VALUE);
    CloseHandle(other);
}

TEST(WindowsFiles, keepTheirAccessList)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    const std::wstring usual = accessTextOf(path);
    setAccess(path, L"D:P(A;;FA;;;SY)(A;;FA;;;BA)(A;;FA;;;OW)");
    const std::wstring restricted = accessTextOf(path);
    if (restricted == usual)
        GTEST_SKIP() << "no access lists here";
    writeFile(path, "new");
    EXPECT_EQ(accessTextOf(path), restricted);
    EXPECT_EQ(fileBytes(path), "new");
}

TEST(WindowsFiles, stayHidden)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    const auto isHidden = [&path] {
        return (GetFileAttributesW(nativePath(path).c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0;
    };
    SetFileAttributesW(nativePath(path).c_str(), FILE_ATTRIBUTE_HIDDEN);
    if (!isHidden())
        GTEST_SKIP() << "no hidden files here";
    writeFile(path, "new");
    EXPECT_TRUE(isHidden());
    EXPECT_EQ(fileBytes(path), "new");
}

TEST(WindowsFiles, ofKilledRunsAreRemovedAfterADay)
{
    const TemporaryFolder folder;
    const auto leave = [&folder](const char* name, int hours) {
        const std::string path = folder.write(name, "half");
        fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(hours));
        return path;
    };
    const std::string old = leave(".tarsil-1234-0.tmp", 25);
    const std::string young = leave(".tarsil-1234-1.tmp", 23);
    const std::string users = leave(".tarsil-mine.tmp", 25);
    const std::string others = leave("a.tmp", 25);
    fs::create_directory(folder.file(".tarsil-1-0.tmp"));
    writeFile(folder.file("a.txt"), "new");
    EXPECT_FALSE(fs::exists(old));
    for (const std::string& kept : {young, users, others, folder.file(".tarsil-1-0.tmp")})
        EXPECT_TRUE(fs::exists(kept)) << kept;
}

TEST(WindowsFiles, areWrittenByTheUserOfThisProcess)
{
    const wchar_t* const name = _wgetenv(L"USERNAME");
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(userName(), pathText(fs::path(name)));
}

} // namespace tarsil
