// SPDX-License-Identifier: Apache-2.0

// Opening, saving and unsaved changes.

#include "DocumentFixture.h"

#include "support/Errors.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace tarsil;
using test::addEvolution;
using test::captionsOf;
using test::errorNumberOf;
using test::namesOf;
using test::sample;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

/// A document in the folder of its workspace.
class DocumentWorkspace : public ::testing::Test
{
protected:
    /// Saves two evolutions beside the workspace, drawn in two plots.
    void work()
    {
        for (const char* const name : {"one.ev2", "two.ev2"})
            folder.write(name, test::fileBytes(sample("goland_clean_m040.ev2")));
        const std::vector<EVM*> loaded =
            document.load({folder.file("one.ev2"), folder.file("two.ev2")}, user);
        document.plots().first().rows().add(*loaded.at(0)->Modes.at(0));
        document.plots().first().rows().add(*loaded.at(1)->Modes.at(1));
        document.plots().add(QStringLiteral("Second")).rows().add(*loaded.at(1)->Modes.at(2));
        document.evolutions().setReference(loaded.at(1));
        document.evolutions().setParameters(*loaded.at(0), {"WING", "heavy", 0.62F});
        document.setDescription(QStringLiteral("an afternoon"));
        document.save(path(), "user");
    }

    std::string path(const std::string& name = "case.tsw") const { return folder.file(name); }

    std::vector<std::size_t> rowCounts() const
    {
        std::vector<std::size_t> counts;
        for (const EvmPlot* const plot : document.plots().all())
            counts.push_back(plot->rows().count());
        return counts;
    }

    test::TemporaryFolder folder;
    test::ScriptedUserInterface user;
    Document document;
};

TEST_F(DocumentWorkspace, opensWhatItSaved)
{
    work();
    const WorkspaceRecord saved = document.record();
    document.startNew();
    const OpenedWorkspace opened = document.open(path(), user);
    EXPECT_EQ(document.record(), saved);
    EXPECT_EQ(document.path(), path());
    EXPECT_EQ(document.texts().name.toStdString(), "case");
    EXPECT_EQ(document.plots().active(), &document.plots().first());
    EXPECT_EQ(document.evolutions().reference(), document.evolutions().all()[1].get());
    EXPECT_EQ(document.evolutions().all()[0]->Param.Mass, "heavy");
    EXPECT_FALSE(document.isPartial());
    EXPECT_FALSE(document.isChanged());
    EXPECT_EQ(opened.failure, nullptr);
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(DocumentWorkspace, showsTheEditedParametersFromTheBeginning)
{
    work();
    document.startNew();
    std::string mass;
    QObject::connect(&document.evolutions(), &EvolutionList::added, &document,
                     [&](const std::vector<EVM*>& added) { mass = added.front()->Param.Mass; });
    document.open(path(), user);
    EXPECT_EQ(mass, "heavy");
}

TEST_F(DocumentWorkspace, knowsWhatHasChangedSinceItWasSaved)
{
    work();
    EXPECT_FALSE(document.isChanged());
    EVM& evolution = *document.evolutions().all()[0];
    const EditableParam heavy = evolution.Param.editable();
    document.evolutions().setParameters(evolution, {"WING", "light", 0.62F});
    EXPECT_TRUE(document.isChanged());
    document.evolutions().setParameters(evolution, heavy);
    EXPECT_FALSE(document.isChanged()) << "as it was";
    document.evolutions().setReference(nullptr);
    EXPECT_TRUE(document.isChanged());
    document.markSaved();
    EXPECT_FALSE(document.isChanged());
    const PlotList::Element second = document.plots().elements()[1];
    document.plots().remove(*second.plot);
    EXPECT_TRUE(document.isChanged());
    document.plots().putBack(second);
    EXPECT_FALSE(document.isChanged());
}

TEST_F(DocumentWorkspace, countsNoOtherSizeOfAPlotAsAChange)
{
    work();
    document.plots().first().resize(QSize(500, 400));
    EXPECT_FALSE(document.isChanged());
}

TEST_F(DocumentWorkspace, asksForTheSizesOfTheWindowBeforeItSaves)
{
    int asked = 0;
    QObject::connect(&document, &Document::aboutToBeSaved, &document, [&] {
        ++asked;
        EXPECT_FALSE(std::filesystem::exists(path()));
    });
    document.save(path(), "user");
    EXPECT_EQ(asked, 1);
}

TEST_F(DocumentWorkspace, changesNothingWhenItCannotSave)
{
    work();
    document.setDescription(QStringLiteral("later"));
    const WorkspaceTexts texts = document.texts();
    EXPECT_EQ(errorNumberOf([this] { document.save(path("no/such/folder.tsw"), "user"); }),
              ErrorNumber::PathNotFound);
    EXPECT_EQ(document.texts(), texts);
    EXPECT_EQ(document.path(), path());
    EXPECT_TRUE(document.isChanged());
}

TEST_F(DocumentWorkspace, changesNothingWhenAFileIsMissingOrNoWorkspace)
{
    work();
    const WorkspaceRecord before = document.record();
    const std::string none = folder.write("none.tsw", "[MODAL EVOLUTION FILES]\r\nNoOfFiles=x\r\n");
    EXPECT_EQ(errorNumberOf([&] { document.open(none, user); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(errorNumberOf([this] { document.open(path("gone.tsw"), user); }),
              ErrorNumber::FileNotFound);
    EXPECT_EQ(document.record(), before);
    EXPECT_EQ(document.path(), path());
    EXPECT_FALSE(document.isChanged());
}

TEST_F(DocumentWorkspace, leavesTheSeriesOfAMissingFileOut)
{
    work();
    document.startNew();
    std::filesystem::remove(path("two.ev2"));
    const OpenedWorkspace opened = document.open(path(), user);
    EXPECT_THAT(namesOf(document.evolutions()), ElementsAre("one.ev2"));
    EXPECT_EQ(document.evolutions().reference(), nullptr);
    EXPECT_THAT(rowCounts(), ElementsAre(1, 0));
    EXPECT_EQ(opened.failure, nullptr);
    EXPECT_TRUE(document.isPartial());
    EXPECT_FALSE(document.isChanged());
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text, "Modal evolution file not found:\n" + path("two.ev2"));
}

TEST_F(DocumentWorkspace, findsFilesThatMovedWithTheWorkspace)
{
    work();
    document.startNew();
    const test::TemporaryFolder other;
    for (const char* const name : {"case.tsw", "one.ev2", "two.ev2"})
        std::filesystem::rename(folder.file(name), other.file(name));
    const OpenedWorkspace opened = document.open(other.file("case.tsw"), user);
    EXPECT_THAT(rowCounts(), ElementsAre(2, 1));
    EXPECT_THAT(opened.namesakes, IsEmpty()) << "beside the workspace";
    EXPECT_FALSE(document.isPartial());
}

TEST_F(DocumentWorkspace, namesTheFilesThatAreTakenForTheirNamesAlone)
{
    work();
    document.startNew();
    const test::TemporaryFolder other;
    std::filesystem::create_directory(other.path() / "elsewhere");
    for (const auto& [from, to] : {std::pair("case.tsw", "case.tsw"),
                                   {"one.ev2", "one.ev2"},
                                   {"two.ev2", "elsewhere/two.ev2"}})
        std::filesystem::rename(folder.file(from), other.file(to));
    const OpenedWorkspace opened = document.open(other.file("case.tsw"), user);
    ASSERT_EQ(opened.namesakes.size(), 1U);
    EXPECT_EQ(opened.namesakes[0].position, 1U);
    EXPECT_TRUE(opened.namesakes[0].taken.ends_with("two.ev2"));
    EXPECT_THAT(rowCounts(), ElementsAre(2, 1));
    EXPECT_TRUE(document.isPartial());
}

TEST_F(DocumentWorkspace, opensAllThatCanBeReadOfADamagedFile)
{
    work();
    std::string bytes = test::fileBytes(path());
    const std::string part = "[PLOT2]";
    bytes.resize(bytes.find(part) + part.size());
    folder.write("cut.tsw", bytes);
    document.startNew();
    const OpenedWorkspace opened = document.open(path("cut.tsw"), user);
    EXPECT_NE(opened.failure, nullptr);
    EXPECT_THAT(namesOf(document.evolutions()), ElementsAre("one.ev2", "two.ev2"));
    EXPECT_EQ(captionsOf(document.plots()).front(), "Plot1");
    EXPECT_EQ(rowCounts().front(), 2U);
    EXPECT_TRUE(document.isPartial());
    EXPECT_FALSE(document.isChanged());
    document.save(path("whole.tsw"), "user");
    EXPECT_FALSE(document.isPartial()) << "that file holds all that is here";
}

} // namespace
