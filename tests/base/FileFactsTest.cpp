// SPDX-License-Identifier: Apache-2.0
#include "base/files/FileFacts.h"

#include "base/files/Sha256.h"
#include "base/user/RunTimeError.h"
#include "support/Errors.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

using namespace tarsil;

namespace {

std::string digestOf(std::string_view bytes)
{
    Sha256 digest;
    digest.add(bytes);
    return digest.finish();
}

} // namespace

/// The examples of FIPS 180-4: no bytes, one block, two blocks, a million letters.
TEST(Sha256, givesTheDigestsOfTheStandard)
{
    EXPECT_EQ(digestOf(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(digestOf("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(digestOf("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(
        digestOf("abcdefghbcdefghicdefghijdefghijkefghijklfghijklmghijklmnhijklmnoijklmnopjklm"
                 "nopqklmnopqrlmnopqrsmnopqrstnopqrstu"),
        "cf5b16a778af8380036ce59e7b0492370b249b11e8f07a51afac45037afee9d1");
    EXPECT_EQ(digestOf(std::string(1000000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Sha256, isTheSameWhateverThePieces)
{
    std::string text(150, 'x');
    text += "abc";
    text.append(200, 'y');
    const std::string whole = digestOf(text);
    for (const std::size_t size : {1U, 3U, 55U, 56U, 63U, 64U, 65U, 128U}) {
        Sha256 digest;
        for (std::size_t i = 0; i < text.size(); i += size)
            digest.add(text.substr(i, size));
        EXPECT_EQ(digest.finish(), whole) << size;
    }
}

TEST(FileFacts, areSizeTimeAndDigest)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.write("a.ev2", "abc");
    const std::string large = folder.write("b.ev2", std::string(1000000, 'a'));
    const std::chrono::sys_seconds time {
        std::chrono::seconds(1000000000)}; // 2001-09-09 01:46:40 UTC
    std::filesystem::last_write_time(path, std::chrono::file_clock::from_sys(time));
    const FileFacts facts = factsOf(path);
    EXPECT_EQ(facts.size, 3U);
    EXPECT_EQ(facts.modified, "2001-09-09 01:46:40");
    EXPECT_EQ(facts.sha256, digestOf("abc"));
    EXPECT_EQ(factsOf(large).sha256, digestOf(std::string(1000000, 'a')));
}

TEST(FileFacts, needAFile)
{
    const test::TemporaryFolder folder;
    const auto error = test::errorOf([&] { factsOf(folder.file("none.ev2")); });
    EXPECT_EQ(error.value().number(), ErrorNumber::FileNotFound);
}
