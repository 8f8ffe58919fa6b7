// SPDX-License-Identifier: Apache-2.0

// Opening the files of a list.

#include "formats/ListOpener.h"

#include "base/user/RunTimeError.h"
#include "formats/EvolutionFile.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

/// Records the result for each file.
class Recorder : public ListOpener
{
public:
    bool isWanted(std::size_t index) const override { return index != unwanted; }
    EVM& open(const std::string& path) override
    {
        return *opened.emplace_back(openEvolution(path));
    }
    void foundOpen(const EVM& evolution) override { calls.push_back("open " + evolution.FileName); }
    void isMissing(std::size_t index, const std::string& /*path*/) override
    {
        calls.push_back("missing " + std::to_string(index));
    }
    void cannotOpen(std::size_t index, const std::exception_ptr& error) override
    {
        EXPECT_THROW(std::rethrow_exception(error), RunTimeError);
        calls.push_back("failed " + std::to_string(index));
    }
    bool isDone(std::size_t count) override
    {
        done = count;
        return count != stopsAfter;
    }

    OwnedEvolutions opened;
    std::vector<std::string> calls;
    std::size_t unwanted = 1000;
    std::size_t done = 0;
    std::size_t stopsAfter = 1000;
};

class ListOpenerTest : public ::testing::Test
{
protected:
    ListOpenerTest()
    {
        std::filesystem::copy_file(test::sample("goland_clean_m040.ev2"), file("a.ev2"));
        std::filesystem::copy_file(test::sample("goland_clean_m050.ev2"), file("b.ev2"));
    }

    std::string file(const std::string& name) const { return folder.file(name); }

    test::TemporaryFolder folder;
    Recorder recorder;
};

} // namespace

TEST_F(ListOpenerTest, opensTheFilesInTheirOrder)
{
    const std::vector<EVM*> listed = openListed({}, {file("b.ev2"), file("a.ev2")}, recorder);
    EXPECT_THAT(listed, ElementsAre(recorder.opened[0].get(), recorder.opened[1].get()));
    EXPECT_EQ(listed[0]->FileName, "b.ev2");
    EXPECT_EQ(recorder.done, 2U);
    EXPECT_THAT(recorder.calls, IsEmpty());
}

TEST_F(ListOpenerTest, continuesAfterFilesThatAreMissingOrCannotBeRead)
{
    folder.write("bad.evm", "no evolution");
    const std::vector<EVM*> listed =
        openListed({}, {"", file("gone.evm"), file("bad.evm"), file("a.ev2")}, recorder);
    EXPECT_THAT(recorder.calls, ElementsAre("missing 0", "missing 1", "failed 2"));
    EXPECT_THAT(listed, ElementsAre(nullptr, nullptr, nullptr, recorder.opened.front().get()));
}

TEST_F(ListOpenerTest, opensAFileOnceByWhateverPath)
{
    if (!test::makeLink(file("a.ev2"), file("link.ev2")))
        std::filesystem::create_hard_link(file("a.ev2"), file("link.ev2"));
    const OwnedEvolutions none;
    const std::vector<EVM*> listed =
        openListed(none, {file("a.ev2"), file("link.ev2"), file("a.ev2")}, recorder);
    EXPECT_EQ(recorder.opened.size(), 1U);
    EXPECT_EQ(listed[1], listed[0]);
    EXPECT_EQ(listed[2], listed[0]);
    EXPECT_THAT(recorder.calls, ElementsAre("open a.ev2", "open a.ev2"));
    Recorder later;
    EXPECT_THAT(openListed(recorder.opened, {file("link.ev2")}, later), ElementsAre(listed[0]));
    EXPECT_THAT(later.opened, IsEmpty());
}

TEST_F(ListOpenerTest, leavesTheRestAloneWhenItIsStopped)
{
    recorder.stopsAfter = 2;
    const std::vector<EVM*> listed =
        openListed({}, {file("gone.evm"), file("a.ev2"), file("b.ev2"), ""}, recorder);
    EXPECT_THAT(listed, ElementsAre(nullptr, recorder.opened[0].get(), nullptr, nullptr));
    EXPECT_EQ(recorder.opened.size(), 1U);
    EXPECT_THAT(recorder.calls, ElementsAre("missing 0"));
}

TEST_F(ListOpenerTest, skipsFilesThatAreNotWanted)
{
    recorder.unwanted = 0;
    const std::vector<EVM*> listed = openListed({}, {file("gone.evm"), file("a.ev2")}, recorder);
    EXPECT_EQ(listed[0], nullptr);
    EXPECT_NE(listed[1], nullptr);
    EXPECT_THAT(recorder.calls, IsEmpty());
}
