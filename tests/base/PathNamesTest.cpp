// SPDX-License-Identifier: Apache-2.0
#include "base/files/PathNames.h"

#include "support/Separators.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>

namespace tarsil {

namespace {

using test::TemporaryFolder;

/// The start of an absolute path.
#ifdef _WIN32
const std::string root = "C:";
#else
const std::string root;
#endif

TEST(PathNames, joinsWithABackslash)
{
    EXPECT_EQ(joinPath("/a/b", "wing 1.evm"), "/a/b\\wing 1.evm");
    EXPECT_EQ(joinPath("", "x"), "\\x");
}

TEST(PathNames, acceptBothSeparators)
{
    EXPECT_EQ(nativePath("a\\b/c.evm"), nativePath("a/b/c.evm"));
    EXPECT_EQ(nativePath("/a/b\\c.evm").filename(), "c.evm");
}

TEST(PathNames, cutsAPathAtItsLastSeparator)
{
    const FilePath file = resolvePath(root + "/data\\run 1/wing.evm");
    EXPECT_EQ(file.folder, root + "/data/run 1");
    EXPECT_EQ(file.name, "wing.evm");
}

TEST(PathNames, makesAPathAbsoluteAndPlain)
{
    const FilePath file = resolvePath("a/../wing.evm");
    EXPECT_EQ(file.folder, pathText(std::filesystem::current_path()));
    EXPECT_EQ(resolvePath(root + "/data/./x/../wing.evm").folder, root + "/data");
}

#ifndef _WIN32 // which steps up before it follows links
TEST(PathNames, stepsUpFromWhereASymbolicLinkLeads)
{
    const TemporaryFolder folder;
    std::filesystem::create_directories(folder.path() / "far" / "inner");
    std::filesystem::create_directory_symlink(folder.path() / "far" / "inner", folder.file("link"));
    folder.write("far/wing.evm", "x");
    const FilePath file = resolvePath(folder.file("link") + "/../wing.evm");
    EXPECT_TRUE(fileExists(joinPath(file.folder, file.name)));
    EXPECT_EQ(resolvePath(folder.file("link") + "/a.evm").folder, folder.file("link"))
        << "otherwise the user's own name of the folder stays";
}
#endif

TEST(PathNames, comesBackFromItsTwoPieces)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("wing \xC3\xBC.evm", "x");
    const FilePath file = resolvePath(path);
    EXPECT_TRUE(fileExists(joinPath(file.folder, file.name)));
}

TEST(PathNames, keepsNoSeparatorAtTheEndOfARootFolder)
{
    const FilePath file = resolvePath(root + "/wing.evm");
    EXPECT_EQ(file.folder, root);
    EXPECT_EQ(nativePath(joinPath(file.folder, file.name)), root + "/wing.evm");
}

TEST(PathNames, showsARelativePathFromTheRootOn)
{
    const std::string here = std::filesystem::current_path().string();
    EXPECT_EQ(wholePath("wing.evm"), test::systemSeparators(here + "/wing.evm"));
    EXPECT_EQ(wholePath("runs\\wing.evm"), test::systemSeparators(here + "/runs/wing.evm"));
    EXPECT_EQ(wholePath(root + "/runs\\wing.evm"), test::systemSeparators(root + "/runs/wing.evm"));
    EXPECT_EQ(wholePath(root + "/wing.evm"), test::systemSeparators(root + "/wing.evm"));
}

TEST(PathNames, treatAFolderAsNoFile)
{
    const TemporaryFolder folder;
    EXPECT_FALSE(fileExists(folder.path().string()));
    EXPECT_FALSE(fileExists(folder.file("missing")));
    folder.write("there", "");
    EXPECT_TRUE(fileExists(folder.file("there")));
}

TEST(PathNames, distinguishFilesWhateverThePath)
{
    const TemporaryFolder folder;
    const std::string wing = folder.write("wing.evm", "x");
    const std::string copy = folder.write("copy.evm", "x");
    const bool hasLink = test::makeLink(wing, folder.file("soft.evm"));
    std::filesystem::create_hard_link(wing, folder.file("hard.evm"));
    const auto identity = fileIdentity(wing);
    ASSERT_TRUE(identity);
    if (hasLink) {
        EXPECT_EQ(fileIdentity(folder.file("soft.evm")), identity);
    }
    EXPECT_EQ(fileIdentity(folder.file("hard.evm")), identity);
    EXPECT_EQ(fileIdentity(folder.path().string() + "\\wing.evm"), identity);
    EXPECT_NE(fileIdentity(copy), identity);
    EXPECT_EQ(fileIdentity(folder.file("missing")), std::nullopt);
}

TEST(PathNames, namesTheErrorOfAFailedFileOperation)
{
    const TemporaryFolder folder;
    const auto numberOf = [](int code, const std::string& path) {
        return fileError(code, "Test", path).number();
    };
    EXPECT_EQ(numberOf(ENOENT, folder.file("x")), ErrorNumber::FileNotFound);
    EXPECT_EQ(numberOf(ENOENT, folder.file("missing") + "/x"), ErrorNumber::PathNotFound);
    EXPECT_EQ(numberOf(ENOTDIR, "x"), ErrorNumber::PathNotFound);
    EXPECT_EQ(numberOf(EACCES, "x"), ErrorNumber::PermissionDenied);
    EXPECT_EQ(numberOf(ENOSPC, "x"), ErrorNumber::DiskFull);
#ifdef EDQUOT
    EXPECT_EQ(numberOf(EDQUOT, "x"), ErrorNumber::DiskFull);
#endif
    EXPECT_EQ(numberOf(EIO, "x"), ErrorNumber::DeviceInputOutput);
    EXPECT_EQ(numberOf(EISDIR, "x"), ErrorNumber::PathFileAccess);
    EXPECT_EQ(fileError(EACCES, "Test", "x.evm").description(), "Permission denied: x.evm");
}

} // namespace

} // namespace tarsil
