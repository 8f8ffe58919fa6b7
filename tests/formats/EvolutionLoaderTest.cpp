// SPDX-License-Identifier: Apache-2.0
#include "FormatFixtures.h"

#include "base/files/PathNames.h"
#include "formats/EvolutionLoader.h"
#include "support/ScriptedUserInterface.h"
#include "support/Separators.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <utility>

namespace tarsil {

namespace {

using Message = test::ScriptedUserInterface::Message;
using Texts = std::vector<std::string>;
using Progress = std::vector<std::pair<std::size_t, std::size_t>>;

const std::string onePoint = "  3  0.056   35.810 1.50000E-02    2.737\n";
const std::string dampingOfStars = "  3  0.056   35.810************    2.737\n";
const Texts statusesOfLoading = {"Open Modal Evolutions. Please Wait ...", "Ready"};

Message alreadyLoaded(const std::string& name)
{
    return {"Modal Evolution [" + name + "] Already Loaded.", "Tarsil", MessageIcon::Exclamation};
}

Message notFound(const std::string& path)
{
    return {"Modal evolution file not found:\n" + test::systemSeparators(path), "Error",
            MessageIcon::Critical};
}

class EvolutionLoader : public ::testing::Test
{
protected:
    /// Writes an evolution of one mode with one point, and returns its path.
    std::string writeEvolution(const std::string& name) const
    {
        return folder.write(name, test::evmHeader("1", "1") + onePoint);
    }

    std::vector<EVM*> load(const Texts& paths)
    {
        return keep(mdlMain::loadEvolutions(open, paths, user)).added;
    }

    Texts openNames() const
    {
        Texts names;
        for (const auto& evolution : open)
            names.push_back(evolution->FileName);
        return names;
    }

    std::vector<EVM*> loadListed(const Texts& paths)
    {
        return keep(mdlMain::loadListedEvolutions(open, paths, user)).listed;
    }

    struct Result
    {
        std::vector<EVM*> added;
        std::vector<EVM*> listed;
    };

    /// Appends the loaded evolutions to the open ones.
    Result keep(LoadedEvolutions loaded)
    {
        Result result {{}, std::move(loaded.listed)};
        for (auto& evolution : loaded.added) {
            result.added.push_back(evolution.get());
            open.push_back(std::move(evolution));
        }
        return result;
    }

    /// The paths of `count` files that do not exist.
    Texts missingPaths(std::size_t count) const
    {
        Texts paths;
        for (std::size_t i = 1; i <= count; ++i)
            paths.push_back(folder.file(std::to_string(i) + ".evm"));
        return paths;
    }

    /// Loads a file by its path and then by another: it must be recognised.
    void expectOneFile(const std::string& path, const std::string& other)
    {
        load({path, other});
        EXPECT_EQ(openNames(), Texts({"wing.evm"})) << other;
        EXPECT_EQ(user.messages, std::vector<Message>({alreadyLoaded("wing.evm")})) << other;
    }

    test::TemporaryFolder folder;
    OwnedEvolutions open;
    test::ScriptedUserInterface user;
};

TEST_F(EvolutionLoader, appendsTheEvolutionsInTheOrderOfTheirPaths)
{
    const auto loaded = load({writeEvolution("wing.evm"), writeEvolution("tail.evm")});
    EXPECT_EQ(openNames(), Texts({"wing.evm", "tail.evm"}));
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_EQ(loaded[0], open[0].get());
    EXPECT_EQ(loaded[1], open[1].get());
    EXPECT_EQ(nativePath(loaded[0]->Folder), folder.path());
    ASSERT_EQ(loaded[0]->Modes.size(), 1U);
    EXPECT_EQ(loaded[0]->Modes[0]->Id, 3);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(EvolutionLoader, keepsWhatWasOpenBefore)
{
    load({writeEvolution("wing.evm")});
    const auto loaded = load({writeEvolution("tail.evm")});
    EXPECT_EQ(openNames(), Texts({"wing.evm", "tail.evm"}));
    EXPECT_EQ(loaded, std::vector<EVM*>({open[1].get()}));
}

TEST_F(EvolutionLoader, showsWhatItDoesInTheStatusBar)
{
    load({writeEvolution("wing.evm"), writeEvolution("tail.evm")});
    EXPECT_EQ(user.statuses, statusesOfLoading);
}

TEST_F(EvolutionLoader, showsProgressAfterEveryFileWhateverBecameOfIt)
{
    const std::string wing = writeEvolution("wing.evm");
    load({wing, wing, folder.file("missing.evm"), folder.write("stars.evm", "")});
    EXPECT_EQ(user.progress, Progress({{1, 4}, {2, 4}, {3, 4}, {4, 4}}));
}

TEST_F(EvolutionLoader, keepsTheEvolutionsReadBeforeAStop)
{
    const Texts paths = {writeEvolution("wing.evm"), writeEvolution("tail.evm"),
                         writeEvolution("rudder.evm")};
    user.stopsAt = 2;
    EXPECT_EQ(load(paths).size(), 2U);
    EXPECT_EQ(openNames(), Texts({"wing.evm", "tail.evm"}));
    EXPECT_EQ(user.note, "Stopped: 2 of 3 evolutions were loaded");
    EXPECT_EQ(user.statuses, statusesOfLoading);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(EvolutionLoader, isNotStoppedAfterTheLastFile)
{
    user.stopsAt = 1;
    EXPECT_EQ(load({writeEvolution("wing.evm")}).size(), 1U);
    EXPECT_EQ(user.note, "");
}

TEST_F(EvolutionLoader, loadsAFileChosenTwiceOnce)
{
    const std::string wing = writeEvolution("wing.evm");
    EXPECT_EQ(load({wing, wing}).size(), 1U);
    EXPECT_EQ(openNames(), Texts({"wing.evm"}));
    EXPECT_EQ(user.messages, std::vector<Message>({alreadyLoaded("wing.evm")}));
}

TEST_F(EvolutionLoader, skipsAFileThatIsOpenFromBefore)
{
    const std::string wing = writeEvolution("wing.evm");
    load({wing});
    EXPECT_TRUE(load({wing}).empty());
    EXPECT_EQ(openNames(), Texts({"wing.evm"}));
    EXPECT_EQ(user.messages, std::vector<Message>({alreadyLoaded("wing.evm")}));
}

TEST_F(EvolutionLoader, distinguishesFilesOfOneNameInTwoFolders)
{
    std::filesystem::create_directory(folder.path() / "other");
    load({writeEvolution("wing.evm"), writeEvolution("other/wing.evm")});
    EXPECT_EQ(openNames(), Texts({"wing.evm", "wing.evm"}));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(EvolutionLoader, knowsAFileByItsRelativePath)
{
    const std::string wing = writeEvolution("wing.evm");
    expectOneFile(wing, std::filesystem::proximate(wing).string());
}

TEST_F(EvolutionLoader, knowsAFileByItsPathWithBackslashes)
{
    const std::string wing = writeEvolution("wing.evm");
    std::string other = wing;
    std::replace(other.begin(), other.end(), '/', '\\');
    expectOneFile(wing, other);
}

TEST_F(EvolutionLoader, knowsAFileByAPathThatStepsUp)
{
    const std::string wing = writeEvolution("wing.evm");
    std::filesystem::create_directory(folder.path() / "sub");
    expectOneFile(wing, folder.file("sub/../wing.evm"));
}

TEST_F(EvolutionLoader, knowsAFileByASymbolicLinkAndNamesItAsItIsOpen)
{
    const std::string wing = writeEvolution("wing.evm");
    if (!test::makeLink(wing, folder.path() / "link.evm"))
        GTEST_SKIP() << "no symbolic links here";
    expectOneFile(wing, folder.file("link.evm"));
}

TEST_F(EvolutionLoader, knowsAFileByAHardLink)
{
    const std::string wing = writeEvolution("wing.evm");
    std::filesystem::create_hard_link(wing, folder.path() / "link.evm");
    expectOneFile(wing, folder.file("link.evm"));
}

TEST_F(EvolutionLoader, knowsALinkToAFileThatIsOpenFromBefore)
{
    const std::string wing = writeEvolution("wing.evm");
    if (!test::makeLink(wing, folder.path() / "link.evm"))
        GTEST_SKIP() << "no symbolic links here";
    load({wing});
    EXPECT_TRUE(load({folder.file("link.evm")}).empty());
    EXPECT_EQ(user.messages, std::vector<Message>({alreadyLoaded("wing.evm")}));
}

TEST_F(EvolutionLoader, knowsAFileInALinkedFolder)
{
    const std::string wing = writeEvolution("wing.evm");
    if (!test::makeLink(folder.path(), folder.path() / "here"))
        GTEST_SKIP() << "no symbolic links here";
    expectOneFile(wing, folder.file("here/wing.evm"));
}

TEST_F(EvolutionLoader, loadsAnotherFileAlthoughAnOpenOneIsGone)
{
    const std::string wing = writeEvolution("wing.evm");
    load({wing});
    std::filesystem::remove(wing);
    load({writeEvolution("tail.evm")});
    EXPECT_EQ(openNames(), Texts({"wing.evm", "tail.evm"}));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(EvolutionLoader, saysThatAFileIsMissingAndLoadsTheOthers)
{
    const std::string wing = writeEvolution("wing.evm");
    const std::string vanished = writeEvolution("vanished.evm");
    const std::string tail = writeEvolution("tail.evm");
    std::filesystem::remove(vanished);
    EXPECT_EQ(load({wing, vanished, tail}).size(), 2U);
    EXPECT_EQ(openNames(), Texts({"wing.evm", "tail.evm"}));
    EXPECT_EQ(user.messages, std::vector<Message>({notFound(vanished)}));
    EXPECT_EQ(user.statuses, statusesOfLoading);
}

TEST_F(EvolutionLoader, treatsAFolderAsAMissingFile)
{
    std::filesystem::create_directory(folder.path() / "folder.evm");
    load({folder.file("folder.evm")});
    EXPECT_TRUE(open.empty());
    EXPECT_EQ(user.messages, std::vector<Message>({notFound(folder.file("folder.evm"))}));
}

TEST_F(EvolutionLoader, reportsAFileThatCannotBeReadAndLoadsTheOthers)
{
    const std::string stars = folder.write("stars.evm", test::evmHeader("1", "1") + dampingOfStars);
    EXPECT_EQ(load({stars, writeEvolution("tail.evm")}).size(), 1U);
    EXPECT_EQ(openNames(), Texts({"tail.evm"})); // nothing incomplete is left
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].title, "Error");
    EXPECT_EQ(user.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(user.messages[0].text,
              "Error # 13 was generated by EVM in Module mdlMain\rType mismatch: "
                  + test::systemSeparators(stars)
                  + ", line 5, columns 20-31 (damping): \"************\"");
    EXPECT_EQ(user.statuses, statusesOfLoading);
}

TEST_F(EvolutionLoader, reportsAllFilesThatCannotBeReadAtOnce)
{
    const auto reportOn = [](const std::string& path) {
        return "Error # 13 was generated by EVM in Module mdlMain\rType mismatch: "
            + test::systemSeparators(path) + ", line 5, columns 20-31 (damping): \"************\"";
    };
    Texts paths;
    for (int i = 1; i <= 11; ++i)
        paths.push_back(
            folder.write(std::to_string(i) + ".evm", test::evmHeader("1", "1") + dampingOfStars));
    const std::string wing = writeEvolution("wing.evm");
    const std::string gone = folder.file("gone.evm");
    load({paths[0], wing, wing, gone, paths[1]});
    EXPECT_EQ(user.messages,
              std::vector<Message>({alreadyLoaded("wing.evm"),
                                    notFound(gone),
                                    {reportOn(paths[0]) + "\n\n" + reportOn(paths[1]), "Error",
                                     MessageIcon::Critical}}));
    EXPECT_EQ(openNames(), Texts({"wing.evm"}));
    user.messages.clear();
    loadListed(paths);
    std::string eight = reportOn(paths[0]);
    for (std::size_t i = 1; i < 8; ++i)
        eight += "\n\n" + reportOn(paths[i]);
    EXPECT_EQ(user.messages,
              std::vector<Message>({{eight + "\n\nand 3 more", "Error", MessageIcon::Critical}}));
}

TEST_F(EvolutionLoader, loadsAFileOfAnUnknownNameAsAnEmptyEvolution)
{
    load({folder.write("notes.txt", "text")});
    ASSERT_EQ(openNames(), Texts({"notes.txt"}));
    EXPECT_TRUE(open[0]->Modes.empty());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(EvolutionLoader, loadsAFileWithBlanksInItsName)
{
    load({writeEvolution("left wing clean.evm")});
    EXPECT_EQ(openNames(), Texts({"left wing clean.evm"}));
}

TEST_F(EvolutionLoader, givesTheEvolutionOfEachListedFile)
{
    const std::string wing = writeEvolution("wing.evm");
    const std::string tail = writeEvolution("tail.evm");
    const std::string stars = folder.write("stars.evm", test::evmHeader("1", "1") + dampingOfStars);
    load({tail});
    const auto listed = loadListed({wing, folder.file("gone.evm"), stars, tail, wing});
    EXPECT_EQ(openNames(), Texts({"tail.evm", "wing.evm"}));
    EVM* const first = open[0].get();
    EVM* const second = open[1].get();
    EXPECT_EQ(listed, std::vector<EVM*>({second, nullptr, nullptr, first, second}));
    EXPECT_EQ(user.progress.back(), std::pair(std::size_t {5}, std::size_t {5}));
}

TEST_F(EvolutionLoader, reportsOneMissingListedFileLikeAnyOther)
{
    loadListed({folder.file("gone.evm"), writeEvolution("wing.evm")});
    EXPECT_EQ(user.messages, std::vector<Message>({notFound(folder.file("gone.evm"))}));
    EXPECT_EQ(openNames(), Texts({"wing.evm"}));
}

TEST_F(EvolutionLoader, reportsAllMissingListedFilesAtOnce)
{
    const Texts missing = missingPaths(20);
    std::string all = missing.front();
    for (std::size_t i = 1; i < missing.size(); ++i)
        all += "\n" + missing[i];
    loadListed(missing);
    loadListed(missingPaths(23));
    EXPECT_EQ(user.messages, std::vector<Message>({notFound(all), notFound(all + "\nand 3 more")}));
}

TEST_F(EvolutionLoader, reportsListedFilesWithoutPathWithTheOthers)
{
    loadListed({writeEvolution("wing.evm"), "", folder.file("gone.evm"), ""});
    EXPECT_EQ(user.messages,
              std::vector<Message>(
                  {notFound("file 2 of the list, which has no path\n" + folder.file("gone.evm")
                            + "\nfile 4 of the list, which has no path")}));
    EXPECT_EQ(openNames(), Texts({"wing.evm"}));
}

TEST_F(EvolutionLoader, reportsFilesThatTheUserChoseOneByOne)
{
    const Texts missing = missingPaths(2);
    load(missing);
    EXPECT_EQ(user.messages, std::vector<Message>({notFound(missing[0]), notFound(missing[1])}));
}

TEST(OpenFileDialog, offersTheThreeKindsOfFile)
{
    test::ScriptedUserInterface user;
    user.openFiles = {{"a.evm", "b.evm"}};
    EXPECT_EQ(mdlMain::OpenFileDialog(user, mdlMain::evolutionFilter(), 2, true),
              Texts({"a.evm", "b.evm"}));
    ASSERT_EQ(user.fileQuestions.size(), 1U);
    const FileQuestion& question = user.fileQuestions[0];
    EXPECT_EQ(question.filter,
              "Modal Evolution Files (*.evm)|*.evm|New Modal Evolution Files (*.ev2)|*.ev2|"
              "All Files (*.*)|*.*|");
    EXPECT_EQ(question.filterIndex, 2U);
    EXPECT_TRUE(question.takesSeveral);
    EXPECT_EQ(question.fileName, "");
}

TEST(OpenFileDialog, opensOneFileUnlessAskedForMore)
{
    test::ScriptedUserInterface user;
    mdlMain::OpenFileDialog(user, "All Files (*.*)|*.*|", 1);
    ASSERT_EQ(user.fileQuestions.size(), 1U);
    EXPECT_FALSE(user.fileQuestions[0].takesSeveral);
}

TEST(OpenFileDialog, givesNothingWhenItIsCancelled)
{
    test::ScriptedUserInterface user;
    EXPECT_TRUE(mdlMain::OpenFileDialog(user, mdlMain::evolutionFilter(), 1, true).empty());
}

} // namespace

} // namespace tarsil
