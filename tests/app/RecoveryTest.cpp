// SPDX-License-Identifier: Apache-2.0

// What the program offers after one that did not end properly.

#include "app/WndMainFixture.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

using namespace tarsil;
using test::WndMainTest;
using ::testing::StartsWith;

namespace {

class Recovery : public WndMainTest
{
protected:
    /// A workspace of another description than a new one, left by a program that has crashed.
    std::string leaveCopy()
    {
        Document document;
        document.setDescription(QStringLiteral("an evening"));
        document.save(folder.file("unsaved-1.tsw"), "user");
        return folder.file("unsaved-1.tsw");
    }
    std::string description() { return window.document().texts().description.toStdString(); }
};

} // namespace

TEST_F(Recovery, opensTheCopyThatIsThereAndKeepsItUntilItIsSaved)
{
    const std::string copy = leaveCopy();
    user.confirmations = {true};
    load();
    ASSERT_EQ(user.questions.size(), 1U);
    EXPECT_THAT(user.questions[0], StartsWith("Tarsil ended before a workspace was saved."));
    EXPECT_EQ(description(), "an evening");
    EXPECT_TRUE(std::filesystem::exists(copy));
    user.saveFiles.push_back(folder.file("case.tsw"));
    choose("mnuSaveWorkspace");
    EXPECT_FALSE(std::filesystem::exists(copy));
}

TEST_F(Recovery, removesACopyThatTheUserDoesNotWant)
{
    const std::string copy = leaveCopy();
    user.confirmations = {false, true};
    load();
    EXPECT_EQ(description(), "   ");
    EXPECT_FALSE(std::filesystem::exists(copy));
}

TEST_F(Recovery, keepsTheCopyWhenTheQuestionsAreLeftByEscape)
{
    const std::string copy = leaveCopy();
    load(); // both questions are answered with No
    EXPECT_EQ(user.questions.size(), 2U);
    choose("mnuClearRef");
    EXPECT_TRUE(std::filesystem::exists(copy));
    choose("QuitMenu");
    EXPECT_TRUE(std::filesystem::exists(copy)) << "the next start offers it again";
}

TEST_F(Recovery, keepsACopyThatCannotBeRead)
{
    const std::string copy = folder.write("unsaved-1.tsw", "a letter");
    user.confirmations = {true};
    load();
    EXPECT_EQ(user.messages.size(), 1U);
    choose("mnuClearRef");
    EXPECT_TRUE(std::filesystem::exists(copy));
}

TEST_F(Recovery, leavesNothingWhenTheProgramEndsProperly)
{
    load();
    plot().properties().setCaption(QStringLiteral("wing"));
    choose("mnuClearRef");
    const auto copies = [this] {
        int count = 0;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
            count += entry.path().filename().string().starts_with("unsaved-") ? 1 : 0;
        return count;
    };
    EXPECT_EQ(copies(), 2) << "the copy and its lock";
    user.unsaved = {Unsaved::Discard};
    choose("QuitMenu");
    EXPECT_EQ(copies(), 0);
}

TEST_F(Recovery, namesTheFilesOfTheCommandLineThatAreNotOpened)
{
    leaveCopy();
    user.confirmations = {true};
    load({"wing.tsw", "case.ev2"});
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text,
              "The copy of the unsaved workspace is open. These files of "
              "the command line were not opened:\nwing.tsw\ncase.ev2");
    EXPECT_EQ(description(), "an evening");
}
