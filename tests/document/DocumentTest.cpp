// SPDX-License-Identifier: Apache-2.0

// How the lists of a document work together.

#include "DocumentFixture.h"

#include "support/Errors.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::addEvolution;
using test::captionsOf;
using test::errorNumberOf;
using test::namesOf;
using test::sample;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class DocumentTest : public ::testing::Test
{
protected:
    Document document;
    test::ScriptedUserInterface user;
};

TEST_F(DocumentTest, beginsAsAnUntitledWorkspaceWithoutChanges)
{
    EXPECT_EQ(document.texts().name.toStdString(), "Untitled (Untitled.tsw)");
    EXPECT_EQ(document.texts().description.toStdString(), "   ");
    EXPECT_EQ(document.texts().dateModified.toStdString(), "");
    EXPECT_EQ(document.path(), "");
    EXPECT_FALSE(document.isPartial());
    EXPECT_FALSE(document.isChanged());
}

TEST_F(DocumentTest, appendsTheEvolutionsThatItLoads)
{
    const std::string clean = sample("goland_clean_m040.ev2");
    int announced = 0;
    QObject::connect(&document.evolutions(), &EvolutionList::added, &document,
                     [&announced] { ++announced; });
    const std::vector<EVM*> loaded =
        document.load({clean, clean, sample("goland_tipstore_m040.ev2")}, user);
    EXPECT_THAT(namesOf(document.evolutions()),
                ElementsAre("goland_clean_m040.ev2", "goland_tipstore_m040.ev2"));
    EXPECT_THAT(
        loaded,
        ElementsAre(document.evolutions().all()[0].get(), document.evolutions().all()[1].get()));
    EXPECT_EQ(user.messages.size(), 1U) << "is open already";
    EXPECT_EQ(announced, 1);
    EXPECT_THAT(document.load({clean}, user), IsEmpty());
}

TEST_F(DocumentTest, removesAnEvolutionWithItsRows)
{
    EVM& a = addEvolution(document.evolutions(), "a");
    EVM& b = addEvolution(document.evolutions(), "b");
    EvmPlot& first = document.plots().first();
    EvmPlot& second = document.plots().add({});
    first.rows().add(*a.Modes[0]);
    first.rows().setMode(first.rows().at(0).id, 9); // does not exist
    first.rows().add(*b.Modes[0]);
    second.rows().add(*b.Modes[0]);
    document.remove({&a});
    EXPECT_EQ(first.rows().count(), 1U);
    EXPECT_EQ(second.rows().count(), 1U);
    EXPECT_THAT(namesOf(document.evolutions()), ElementsAre("b"));
}

TEST_F(DocumentTest, removesSeveralEvolutionsWithOneSignal)
{
    EVM& a = addEvolution(document.evolutions(), "a");
    EVM& b = addEvolution(document.evolutions(), "b");
    EVM& c = addEvolution(document.evolutions(), "c");
    EvmPlot& plot = document.plots().first();
    for (EVM* evolution : {&a, &b, &c})
        plot.rows().add(*evolution->Modes[0]);
    int signalCount = 0;
    QObject::connect(&document.evolutions(), &EvolutionList::aboutToBeRemoved, &document,
                     [&signalCount] { ++signalCount; });
    document.remove({&a, &c});
    EXPECT_EQ(signalCount, 1);
    EXPECT_EQ(plot.rows().count(), 1U);
    EXPECT_THAT(namesOf(document.evolutions()), ElementsAre("b"));
}

TEST_F(DocumentTest, keepsTheRowsOfAStranger)
{
    EVM stranger;
    EvmPlot& first = document.plots().first();
    first.rows().add(stranger.appendMode());
    EXPECT_EQ(errorNumberOf([&] { document.remove({&stranger}); }),
              ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(first.rows().count(), 1U);
}

TEST_F(DocumentTest, startsItsHistoryAnewWithANewWorkspace)
{
    document.history().change(QStringLiteral("Add Plot"), [&] { document.plots().add({}); });
    EXPECT_EQ(document.history().steps().count(), 1);
    document.startNew();
    EXPECT_EQ(document.history().steps().count(), 0);
    document.history().undo();
    EXPECT_THAT(captionsOf(document.plots()), ElementsAre("Plot1"));
}

TEST_F(DocumentTest, bringsARemovedEvolutionBackWithItsRowsAndItsAddress)
{
    EVM& a = addEvolution(document.evolutions(), "a");
    EVM& b = addEvolution(document.evolutions(), "b");
    document.evolutions().setReference(&a);
    EvmPlot& plot = document.plots().first();
    plot.rows().add(*a.Modes[0]);
    plot.rows().add(*b.Modes[0]);
    const PlotRows::Rows rows = plot.rows().all();
    document.history().change(QStringLiteral("Remove"), [&] { document.remove({&a}); });
    EXPECT_EQ(plot.rows().count(), 1U);
    document.history().undo();
    EXPECT_EQ(document.evolutions().all()[0].get(), &a);
    EXPECT_EQ(document.evolutions().reference(), &a);
    EXPECT_EQ(plot.rows().all(), rows);
    document.history().redo();
    EXPECT_THAT(namesOf(document.evolutions()), ElementsAre("b"));
    EXPECT_EQ(plot.rows().count(), 1U);
}

TEST_F(DocumentTest, bringsARemovedPlotBackAndShowsIt)
{
    EvmPlot& second = document.plots().add(QStringLiteral("second"));
    second.references().AddRef(300, QStringLiteral("Vd"));
    document.plots().activate(&second);
    document.history().change(QStringLiteral("Remove"), [&] { document.plots().remove(second); });
    EXPECT_EQ(document.plots().active(), &document.plots().first());
    document.history().undo();
    EXPECT_EQ(document.plots().active(), &second);
    EXPECT_EQ(second.references().referenceSpeeds().size(), 1U);
}

TEST_F(DocumentTest, announcesTextsThatDiffer)
{
    int announced = 0;
    QObject::connect(&document, &Document::textsChanged, &document, [&announced] { ++announced; });
    document.setDescription(QStringLiteral("clean wing"));
    document.setDescription(QStringLiteral("clean wing"));
    EXPECT_EQ(announced, 1);
    EXPECT_EQ(document.texts().description.toStdString(), "clean wing");
}

TEST_F(DocumentTest, announcesTheAircraft)
{
    test::Texts files;
    QObject::connect(&document, &Document::airplaneChanged, &document,
                     [&] { files.push_back(document.airplane().Filename); });
    AirplaneInfo airplane;
    airplane.Filename = "/goland.inp";
    document.setAirplane(airplane);
    EXPECT_THAT(files, ElementsAre("/goland.inp"));
}

TEST_F(DocumentTest, startsNewWithNothingOfTheOldWorkspace)
{
    EVM& a = addEvolution(document.evolutions(), "a");
    document.evolutions().setReference(&a);
    document.plots().first().rows().add(*a.Modes[0]);
    document.plots().add(QStringLiteral("second")).rows().add(*a.Modes[0]);
    document.setDescription(QStringLiteral("old"));
    int announced = 0;
    QObject::connect(&document, &Document::startedNew, &document, [&] {
        ++announced;
        EXPECT_FALSE(document.isChanged());
    });
    document.startNew();
    EXPECT_EQ(announced, 1);
    EXPECT_THAT(namesOf(document.evolutions()), IsEmpty());
    EXPECT_EQ(document.evolutions().reference(), nullptr);
    EXPECT_THAT(captionsOf(document.plots()), ElementsAre("Plot1"));
    EXPECT_EQ(document.plots().first().rows().count(), 0U);
    EXPECT_EQ(document.texts().description.toStdString(), "   ");
    EXPECT_FALSE(document.isChanged());
}

TEST_F(DocumentTest, startsNewAlsoWithAxesThatCannotBeDrawn)
{
    document.plots().setNewPlotAxes({{"V", 0, 100, 0}, {"f", 0, 10, 0}, {"g", 0, -1, 0}});
    document.setDescription(QStringLiteral("old"));
    document.startNew();
    EXPECT_EQ(document.texts().description.toStdString(), "   ");
    EXPECT_FALSE(document.isChanged());
}

} // namespace
