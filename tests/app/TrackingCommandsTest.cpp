#include "app/TrackingCommands.h"

#include "document/Document.h"
#include "support/Errors.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestFiles.h"
#include "vgfplot/EvmPlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::fileBytes;
using ::testing::HasSubstr;

namespace {

/// A document with a copy of the sample of a clean wing in its own folder.
class TrackingCommandsTest : public ::testing::Test
{
protected:
    TrackingCommandsTest() : commands(document, user)
    {
        folder.write("wing.ev2", fileBytes(test::sample("goland_clean_m050.ev2")));
        source = document.load({folder.file("wing.ev2")}, user).at(0);
    }

    EVM& tracked() { return *document.evolutions().all().at(1); }

    static float frequency(const EVM& evolution, std::size_t mode)
    {
        return evolution.Modes[mode]->Points.back().f;
    }

    test::TemporaryFolder folder;
    test::ScriptedUserInterface user;
    Document document;
    TrackingCommands commands;
    EVM* source = nullptr;
};

} // namespace

TEST_F(TrackingCommandsTest, makesATrackedEvolutionBesideItsSourceAndOpensIt)
{
    const std::string before = fileBytes(folder.file("wing.ev2"));
    commands.track(*source);
    ASSERT_EQ(document.evolutions().all().size(), 2U);
    EXPECT_EQ(tracked().FileName, "wing_tracked.ev2");
    EXPECT_TRUE(isTracked(tracked()));
    EXPECT_FALSE(isTracked(*source));
    EXPECT_EQ(fileBytes(folder.file("wing.ev2")), before);
    EXPECT_TRUE(user.questions.empty());
    EXPECT_THAT(user.note, HasSubstr("wing_tracked.ev2"));
}

TEST_F(TrackingCommandsTest, asksBeforeItReplacesAFile)
{
    const std::string target = folder.write("wing_tracked.ev2", "mine");
    commands.track(*source);
    EXPECT_EQ(user.questions.size(), 1U);
    EXPECT_EQ(fileBytes(target), "mine");
    EXPECT_EQ(document.evolutions().all().size(), 1U);
    user.confirmations = {true};
    commands.track(*source);
    EXPECT_EQ(document.evolutions().all().size(), 2U);
}

TEST_F(TrackingCommandsTest, exchangesModesInTheFileAndInThePlots)
{
    commands.track(*source);
    EvmPlot& plot = document.plots().first();
    const AeMode* const first = tracked().Modes[0].get();
    plot.rows().add(newSeries(*tracked().Modes[0], 0));
    const float before[] = {frequency(tracked(), 0), frequency(tracked(), 1)};
    commands.exchange(tracked(), {1, 2, 200});
    EXPECT_EQ(frequency(tracked(), 0), before[1]);
    EXPECT_EQ(frequency(tracked(), 1), before[0]);
    EXPECT_EQ(tracked().Modes[0].get(), first) << "rows refer to it";
    EXPECT_EQ(tracked().Modes[0]->Points[0].f, source->Modes[0]->Points[0].f) << "below 200";
    const std::string line = "modes 1 and 2 exchanged above 200.00 KEAS (by hand)";
    EXPECT_THAT(fileBytes(folder.file("wing_tracked.ev2")), HasSubstr(line));
    const KeyedTexts& modifications = tracked().Param.modifications;
    ASSERT_FALSE(modifications.empty());
    EXPECT_EQ(modifications[modifications.size() - 1].text, line);
}

TEST_F(TrackingCommandsTest, undoesExchangesOneByOne)
{
    EXPECT_FALSE(commands.canUndo());
    commands.track(*source);
    const std::string before = fileBytes(folder.file("wing_tracked.ev2"));
    const float frequencyBefore = frequency(tracked(), 0);
    commands.exchange(tracked(), {1, 2, 200});
    const std::string between = fileBytes(folder.file("wing_tracked.ev2"));
    commands.exchange(tracked(), {2, 3, 100});
    commands.undoExchange();
    EXPECT_EQ(fileBytes(folder.file("wing_tracked.ev2")), between);
    commands.undoExchange();
    EXPECT_EQ(fileBytes(folder.file("wing_tracked.ev2")), before);
    EXPECT_EQ(frequency(tracked(), 0), frequencyBefore);
    EXPECT_FALSE(commands.canUndo());
}

TEST_F(TrackingCommandsTest, undoesNothingWhenAnotherProgramHasChangedTheFile)
{
    commands.track(*source);
    commands.exchange(tracked(), {1, 2, 200});
    folder.write("wing_tracked.ev2", "other");
    EXPECT_THAT(test::errorTextOf([&] { commands.undoExchange(); }),
                HasSubstr("has been changed since"));
    EXPECT_EQ(fileBytes(folder.file("wing_tracked.ev2")), "other");
}

TEST_F(TrackingCommandsTest, showsTheNewStateOfAnOpenTrackedEvolution)
{
    commands.track(*source);
    commands.exchange(tracked(), {1, 2, 200});
    user.confirmations = {true};
    commands.track(*source);
    EXPECT_EQ(document.evolutions().all().size(), 2U);
    EXPECT_EQ(frequency(tracked(), 0), frequency(*source, 0)) << "no exchange by hand any more";
}

TEST_F(TrackingCommandsTest, refusesWhatCannotBeTrackedOrExchanged)
{
    EXPECT_THAT(test::errorTextOf([&] {
                    commands.exchange(*source, {1, 2, 200});
                }),
                HasSubstr("is no tracked evolution"));
    commands.track(*source);
    const std::string before = fileBytes(folder.file("wing_tracked.ev2"));
    EXPECT_THAT(test::errorTextOf([&] {
                    commands.exchange(tracked(), {1, 99, 200});
                }),
                HasSubstr("there is no mode 99"));
    EXPECT_THAT(test::errorTextOf([&] {
                    commands.exchange(tracked(), {1, 2, 900});
                }),
                HasSubstr("no point is above 900"));
    EXPECT_EQ(fileBytes(folder.file("wing_tracked.ev2")), before);
    EXPECT_FALSE(commands.canUndo());
    const std::string old =
        folder.write("old.evm", fileBytes(test::sample("goland_clean_m040.evm")));
    const EVM& fixedColumns = *document.load({old}, user).at(0);
    EXPECT_THAT(test::errorTextOf([&] { commands.track(fixedColumns); }),
                HasSubstr("no evolution with sections"));
}
