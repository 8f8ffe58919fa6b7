// SPDX-License-Identifier: Apache-2.0

// What the commands of the main window keep when the user stops them.

#include "app/WndMainFixture.h"

#include "document/Document.h"
#include "model/EVM.h"
#include "support/FormParts.h"
#include "vgfplot/EvmPlot.h"

#include <QTreeWidget>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

using namespace tarsil;
using test::sample;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::StartsWith;

namespace {

class Stop : public test::WndMainTest
{
protected:
    Stop() { load(); }

    /// Stops at a report of progress, counted from now on.
    void stopAt(std::size_t report)
    {
        user.progress.clear();
        user.stopsAt = report;
    }
    std::vector<std::string> loaded()
    {
        std::vector<std::string> names;
        for (const auto& evolution : window.document().evolutions().all())
            names.push_back(evolution->FileName);
        return names;
    }
    /// Copies of samples in a folder below that of the test.
    std::vector<std::string> copies(const std::string& name)
    {
        std::filesystem::create_directory(folder.file(name));
        std::vector<std::string> paths;
        for (const char* const one : {"a.ev2", "b.ev2", "c.ev2"})
            paths.push_back(
                folder.write(name + "/" + one, test::fileBytes(sample("goland_clean_m050.ev2"))));
        return paths;
    }
    /// Saves a workspace of three evolutions with a curve each.
    void save()
    {
        for (EVM* const evolution : window.document().load(copies("runs"), user))
            plot().rows().add(*evolution->Modes[0]);
        user.saveFiles.push_back(folder.file("case.tsw"));
        choose("mnuSaveWorkspace");
        choose("mnuNewWorkspace");
    }
    void open()
    {
        user.openFiles.push_back({folder.file("case.tsw")});
        choose("OpenMenu");
    }
};

} // namespace

TEST_F(Stop, keepsTheEvolutionsThatWereAdded)
{
    user.openFiles.push_back(copies("runs"));
    stopAt(2);
    choose("AddMenu");
    EXPECT_THAT(loaded(), ElementsAre("a.ev2", "b.ev2"));
    EXPECT_EQ(user.note, "Stopped: 2 of 3 evolutions were loaded");
    EXPECT_EQ(user.statuses.back(), "Ready");
    EXPECT_EQ(action("mnuUndo").text(), QStringLiteral("&Undo Add Modal Evolution"));
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(Stop, opensAWorkspaceWithTheEvolutionsReadSoFar)
{
    save();
    stopAt(1);
    open();
    EXPECT_THAT(loaded(), ElementsAre("a.ev2"));
    EXPECT_EQ(plot().rows().count(), 1U);
    EXPECT_EQ(user.note, "Stopped: 1 of 3 evolutions were loaded");
    EXPECT_TRUE(window.document().isPartial()) << "saving asks before it loses the others";
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(Stop, usesNoFileOfAStoppedSearch)
{
    save();
    std::filesystem::rename(folder.file("runs"), folder.file("moved"));
    stopAt(1);
    open();
    EXPECT_THAT(loaded(), IsEmpty());
    EXPECT_THAT(user.statuses, Contains("Find Moved Files. Please Wait ..."));
    EXPECT_EQ(user.statuses.back(), "Ready");
    EXPECT_EQ(user.note, "Stopped: files that are not at their paths were not searched for");
    EXPECT_EQ(user.messages.size(), 1U) << "the missing files";
    EXPECT_TRUE(window.document().isPartial());
    user.messages.clear();
    stopAt(0);
    open();
    EXPECT_THAT(loaded(), ElementsAre("a.ev2", "b.ev2", "c.ev2"));
}

TEST_F(Stop, writesNoReportDocument)
{
    for (EVM* const evolution : window.document().load(copies("runs"), user))
        plot().rows().add(*evolution->Modes[0]);
    for (const char* const name : {"out.pdf", "out.odt", "out.html"}) {
        const auto write = [&](std::size_t stop) {
            user.texts = {"0", "400"};
            user.saveFiles = {folder.file(name)};
            stopAt(stop);
            choose("writeDocument");
        };
        write(0);
        EXPECT_THAT(user.note, EndsWith(name));
        std::filesystem::remove(folder.file(name));
        const std::size_t reports = user.progress.size();
        // The first look is in the flutter table.
        for (const std::size_t stop : {std::size_t {1}, reports / 2, reports}) {
            write(stop);
            EXPECT_EQ(user.progress.size(), stop) << name;
            EXPECT_FALSE(std::filesystem::exists(folder.file(name))) << stop;
            EXPECT_EQ(user.note, "Stopped: no report document was written");
            EXPECT_EQ(user.statuses.back(), "Ready");
        }
    }
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(Stop, isOfferedOftenWhileAReportDocumentIsWritten)
{
    for (EVM* const evolution : window.document().load(copies("runs"), user)) {
        for (const auto& mode : evolution->Modes)
            plot().rows().add(*mode);
    }
    const std::size_t rows = plot().rows().count();
    for (const char* const name : {"out.pdf", "out.odt", "out.html"}) {
        user.texts = {"0", "400"};
        user.saveFiles = {folder.file(name)};
        user.progress.clear();
        choose("writeDocument");
        // Each mode is searched, and then written in the flutter table and in that of its plot.
        EXPECT_GT(user.progress.size(), 4 * rows) << name;
        const auto shareOf = [](const auto& report) {
            return static_cast<double>(report.first) / static_cast<double>(report.second);
        };
        const auto isLess = [&](const auto& a, const auto& b) { return shareOf(a) < shareOf(b); };
        EXPECT_TRUE(std::is_sorted(user.progress.begin(), user.progress.end(), isLess)) << name;
    }
}

TEST_F(Stop, writesThePicturesDrawnSoFar)
{
    for (const char* const caption : {"second", "third"})
        window.document().plots().add(QString::fromLatin1(caption));
    const auto write = [&](std::size_t stop) {
        user.choiceIndices.push_back(1);
        user.folders.push_back(folder.path().string());
        stopAt(stop);
        choose("savePictures");
    };
    write(2);
    EXPECT_TRUE(std::filesystem::exists(folder.file("second.svg")));
    EXPECT_FALSE(std::filesystem::exists(folder.file("third.svg")));
    EXPECT_THAT(user.note, StartsWith("Stopped: 2 of 3 pictures are in "));
    EXPECT_EQ(user.statuses.back(), "Ready");
    user.confirmations = {true};
    write(3);
    EXPECT_TRUE(std::filesystem::exists(folder.file("third.svg")));
    EXPECT_THAT(user.note, StartsWith("3 pictures are in ")) << "a stop after the last one";
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(Stop, leavesTheRemainingEvolutionsUntracked)
{
    const EVM& first = *window.document().load(copies("runs"), user).front();
    test::partOf<QTreeWidget>(window, "tvwEvolExplorer").selectAll();
    const std::size_t steps = first.Modes.front()->Points.size() - 1;
    stopAt(steps + 1 + 1); // the first is tracked and loaded
    choose("popTrackModes");
    EXPECT_THAT(loaded(), ElementsAre("a.ev2", "b.ev2", "c.ev2", "a_tracked.ev2"));
    EXPECT_FALSE(std::filesystem::exists(folder.file("runs/b_tracked.ev2")));
    EXPECT_EQ(user.note, "Stopped: 1 of 3 evolutions were tracked");
}
