// SPDX-License-Identifier: Apache-2.0

// The copy of what is not saved, and who brings it back.

#include "document/RecoveryCopy.h"

#include "DocumentFixture.h"

#include "support/TestFiles.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace tarsil;
using ::testing::IsEmpty;

namespace {

namespace fs = std::filesystem;

/// A program that ends without a word: its lock names a process that is no more.
class RecoveryCopyTest : public ::testing::Test
{
protected:
    RecoveryCopy makeCopy()
    {
        return RecoveryCopy(folder.file("settings"), [this] { return now; });
    }
    std::vector<std::string> copies() const
    {
        std::vector<std::string> names;
        if (!fs::exists(folder.file("settings")))
            return names;
        for (const auto& entry : fs::directory_iterator(folder.file("settings"))) {
            if (entry.path().extension() == ".tsw")
                names.push_back(entry.path().string());
        }
        return names;
    }
    /// Leaves a copy behind.
    void crash()
    {
        const test::TemporaryFolder other;
        RecoveryCopy copy = makeCopy();
        copy.follow(document);
        const std::string file = copies().at(0);
        const std::string bytes = test::fileBytes(file);
        copy.remove();
        folder.write("settings/unsaved-1.tsw", bytes);
    }

    test::TemporaryFolder folder;
    RecoveryCopy::Time now {std::chrono::hours(1)};
    Document document;
    test::ScriptedUserInterface user;
};

TEST_F(RecoveryCopyTest, isThereOnlyWhileSomethingIsNotSaved)
{
    RecoveryCopy copy = makeCopy();
    copy.follow(document);
    EXPECT_THAT(copies(), IsEmpty());
    document.setDescription(QStringLiteral("an evening"));
    copy.follow(document);
    ASSERT_EQ(copies().size(), 1U);
    EXPECT_THAT(test::fileBytes(copies()[0]), ::testing::HasSubstr("an evening"));
    document.save(folder.file("case.tsw"), "user");
    copy.follow(document);
    EXPECT_THAT(copies(), IsEmpty());
    EXPECT_TRUE(fs::is_empty(folder.file("settings"))) << "no lock either";
}

TEST_F(RecoveryCopyTest, isWrittenAtMostOnceAMinute)
{
    RecoveryCopy copy = makeCopy();
    const auto description = [&](const char* text) {
        document.setDescription(QString::fromLatin1(text));
        copy.follow(document);
        return test::fileBytes(copies().at(0)).find(text) != std::string::npos;
    };
    EXPECT_TRUE(description("first"));
    now += std::chrono::seconds(59);
    EXPECT_FALSE(description("second"));
    now += std::chrono::seconds(1);
    EXPECT_TRUE(description("third"));
    EXPECT_EQ(copies().size(), 1U);
}

TEST_F(RecoveryCopyTest, isTakenOverByTheNextStartAndGoesWithIt)
{
    test::addEvolution(document.evolutions(), "a");
    document.setDescription(QStringLiteral("an evening"));
    crash();
    RecoveryCopy next = makeCopy();
    const auto found = next.takeOver();
    ASSERT_TRUE(found.has_value());
    Document recovered;
    recovered.recover(*found, user);
    EXPECT_EQ(recovered.texts().description, QStringLiteral("an evening"));
    EXPECT_EQ(recovered.path(), "") << "it was never saved";
    EXPECT_TRUE(recovered.isChanged());
    EXPECT_EQ(user.messages.size(), 1U) << "the evolution is no file";
    next.remove();
    EXPECT_THAT(copies(), IsEmpty());
}

TEST_F(RecoveryCopyTest, isNotTakenFromAProgramThatRuns)
{
    document.setDescription(QStringLiteral("mine"));
    RecoveryCopy running = makeCopy();
    running.follow(document);
    RecoveryCopy other = makeCopy();
    EXPECT_FALSE(other.takeOver().has_value());
    other.follow(document);
    EXPECT_EQ(copies().size(), 2U);
}

TEST_F(RecoveryCopyTest, keepsNothingInAFolderThatCannotBe)
{
    folder.write("settings", "a file");
    document.setDescription(QStringLiteral("mine"));
    RecoveryCopy copy = makeCopy();
    copy.follow(document);
    EXPECT_FALSE(copy.takeOver().has_value());
}

} // namespace
