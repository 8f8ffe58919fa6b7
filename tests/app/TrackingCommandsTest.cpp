// SPDX-License-Identifier: Apache-2.0
#include "app/TrackingCommands.h"

#include "document/Document.h"
#include "support/Errors.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestFiles.h"
#include "vgfplot/EvmPlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <QUndoStack>

#include <filesystem>

using namespace tarsil;
using test::fileBytes;
using ::testing::HasSubstr;
using ::testing::StartsWith;

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

TEST_F(TrackingCommandsTest, writesNothingAfterAStop)
{
    user.progress.clear();
    user.stopsAt = 2;
    EXPECT_FALSE(commands.track(*source));
    EXPECT_EQ(user.progress.size(), 2U) << "after two points";
    EXPECT_FALSE(std::filesystem::exists(folder.file("wing_tracked.ev2")));
    EXPECT_EQ(document.evolutions().all().size(), 1U);
    EXPECT_EQ(user.statuses.back(), "Ready");
    EXPECT_TRUE(commands.track(*source));
    EXPECT_TRUE(std::filesystem::exists(folder.file("wing_tracked.ev2")));
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

TEST_F(TrackingCommandsTest, showsWhatItWritesAlsoWhenTheFileHadBeenRemoved)
{
    commands.track(*source);
    const float asTracked = frequency(tracked(), 0);
    commands.exchange(tracked(), {1, 2, 200});
    ASSERT_NE(frequency(tracked(), 0), asTracked);
    std::filesystem::remove(folder.file("wing_tracked.ev2"));
    commands.track(*source);
    EXPECT_EQ(frequency(tracked(), 0), asTracked);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(TrackingCommandsTest, undoesAndRedoesExchangesAsStepsOfTheHistory)
{
    commands.track(*source);
    document.history().note(QStringLiteral("Track Modes"));
    EvmPlot& plot = document.plots().first();
    plot.rows().add(newSeries(*tracked().Modes[0], 0));
    plot.resize({400, 300});
    const QImage picture = plot.Image();
    const std::string before = fileBytes(folder.file("wing_tracked.ev2"));
    const float frequencyBefore = frequency(tracked(), 0);
    commands.exchange(tracked(), {1, 2, 200});
    EXPECT_EQ(document.history().steps().undoText(), QStringLiteral("Exchange Modes"));
    EXPECT_NE(plot.Image(), picture);
    const std::string between = fileBytes(folder.file("wing_tracked.ev2"));
    commands.exchange(tracked(), {2, 3, 100});
    const std::string after = fileBytes(folder.file("wing_tracked.ev2"));
    document.history().undo();
    EXPECT_EQ(fileBytes(folder.file("wing_tracked.ev2")), between);
    document.history().undo();
    EXPECT_EQ(fileBytes(folder.file("wing_tracked.ev2")), before);
    EXPECT_EQ(frequency(tracked(), 0), frequencyBefore);
    EXPECT_EQ(plot.Image(), picture);
    document.history().redo();
    document.history().redo();
    EXPECT_EQ(fileBytes(folder.file("wing_tracked.ev2")), after);
}

TEST_F(TrackingCommandsTest, undoesEarlierStepsAfterOneWhoseFileAnotherProgramHasChanged)
{
    commands.track(*source);
    document.history().note(QStringLiteral("Track Modes"));
    const QString description = document.texts().description;
    document.setDescription(QStringLiteral("mine"));
    document.history().note(QStringLiteral("Describe"));
    commands.exchange(tracked(), {1, 2, 200});
    const float exchanged = frequency(tracked(), 0);
    folder.write("wing_tracked.ev2", "other");
    EXPECT_THAT(test::errorTextOf([&] { document.history().undo(); }),
                HasSubstr("wing_tracked.ev2 has been changed or removed by another program"));
    EXPECT_EQ(fileBytes(folder.file("wing_tracked.ev2")), "other");
    EXPECT_EQ(frequency(tracked(), 0), exchanged);
    EXPECT_EQ(document.history().steps().undoText(), QStringLiteral("Describe"));
    EXPECT_FALSE(document.history().steps().canRedo());
    document.history().undo();
    EXPECT_EQ(document.texts().description, description);
}

TEST_F(TrackingCommandsTest, redoesNothingWhenTheFileIsGone)
{
    commands.track(*source);
    commands.exchange(tracked(), {1, 2, 200});
    document.history().undo();
    std::filesystem::remove(folder.file("wing_tracked.ev2"));
    EXPECT_THAT(test::errorTextOf([&] { document.history().redo(); }),
                HasSubstr("has been changed or removed"));
    EXPECT_FALSE(std::filesystem::exists(folder.file("wing_tracked.ev2")));
    EXPECT_TRUE(document.history().steps().canRedo());
}

TEST_F(TrackingCommandsTest, changesNothingWhenTheFileCannotBeWritten)
{
    commands.track(*source);
    document.history().note(QStringLiteral("Track Modes"));
    commands.exchange(tracked(), {1, 2, 200});
    const float exchanged = frequency(tracked(), 0);
    const std::string path = folder.file("wing_tracked.ev2");
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    EXPECT_THAT(test::errorTextOf([&] { document.history().undo(); }), StartsWith("70 "));
    EXPECT_EQ(frequency(tracked(), 0), exchanged);
    EXPECT_EQ(document.history().steps().undoText(), QStringLiteral("Exchange Modes"));
    EXPECT_THAT(test::errorTextOf([&] {
                    commands.exchange(tracked(), {2, 3, 100});
                }),
                StartsWith("70 "));
    EXPECT_EQ(frequency(tracked(), 0), exchanged);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    document.history().undo();
    EXPECT_EQ(document.history().steps().undoText(), QStringLiteral("Track Modes"));
}

TEST_F(TrackingCommandsTest, tracksAnOpenTrackedEvolutionAnewAsAStep)
{
    commands.track(*source);
    commands.exchange(tracked(), {1, 2, 200});
    const std::string exchanged = fileBytes(folder.file("wing_tracked.ev2"));
    user.confirmations = {true};
    commands.track(*source);
    EXPECT_EQ(document.history().steps().undoText(), QStringLiteral("Track Modes"));
    document.history().undo();
    EXPECT_EQ(fileBytes(folder.file("wing_tracked.ev2")), exchanged);
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
    EXPECT_FALSE(document.history().steps().undoText() == QStringLiteral("Exchange Modes"));
    const std::string old =
        folder.write("old.evm", fileBytes(test::sample("goland_clean_m040.evm")));
    const EVM& fixedColumns = *document.load({old}, user).at(0);
    EXPECT_THAT(test::errorTextOf([&] { commands.track(fixedColumns); }),
                HasSubstr("no evolution with sections"));
}
