// SPDX-License-Identifier: Apache-2.0

// The list of open evolutions and the reference evolution.

#include "DocumentFixture.h"

#include "support/Errors.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::addEvolution;
using test::errorNumberOf;
using test::nameOf;
using test::namesOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

/// A list with a listener that records its signals.
class EvolutionListTest : public ::testing::Test
{
protected:
    void listen()
    {
        const auto note = [this](const char* what, const std::vector<EVM*>& evolutions) {
            std::string text = what;
            for (const EVM* const evolution : evolutions) {
                EXPECT_TRUE(list.contains(evolution));
                text += " " + nameOf(evolution);
            }
            announced.push_back(text);
        };
        QObject::connect(&list, &EvolutionList::added, &list,
                         [note](const auto& evolutions) { note("added", evolutions); });
        QObject::connect(&list, &EvolutionList::aboutToBeRemoved, &list,
                         [note](const auto& evolutions) { note("removed", evolutions); });
        QObject::connect(&list, &EvolutionList::referenceChanged, &list,
                         [this](const EVM* before, const EVM* now) {
                             EXPECT_EQ(list.reference(), now);
                             announced.push_back("reference " + nameOf(before) + " " + nameOf(now));
                         });
        QObject::connect(
            &list, &EvolutionList::parametersChanged, &list,
            [this](const EVM* evolution) { announced.push_back("changed " + nameOf(evolution)); });
    }

    EvolutionList list;
    test::Texts announced;
};

TEST_F(EvolutionListTest, announcesWhatIsAddedTogether)
{
    listen();
    list.add({});
    OwnedEvolutions both;
    both.push_back(test::makeEvolution("a"));
    both.push_back(test::makeEvolution("b"));
    list.add(std::move(both));
    EXPECT_THAT(namesOf(list), ElementsAre("a", "b"));
    EXPECT_THAT(announced, ElementsAre("added a b"));
}

TEST_F(EvolutionListTest, announcesAnotherReferenceOnce)
{
    EVM& a = addEvolution(list, "a");
    listen();
    list.setReference(&a);
    list.setReference(&a);
    list.setReference(nullptr);
    EXPECT_THAT(announced, ElementsAre("reference none a", "reference a none"));
}

TEST_F(EvolutionListTest, knowsNoStranger)
{
    EVM& a = addEvolution(list, "a");
    list.setReference(&a);
    EVM stranger;
    EXPECT_EQ(errorNumberOf([&] { list.setReference(&stranger); }),
              ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(errorNumberOf([&] {
                  list.remove({&a, &stranger});
              }),
              ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(list.reference(), &a);
    EXPECT_THAT(namesOf(list), ElementsAre("a"));
}

TEST_F(EvolutionListTest, removesAnEvolutionAndPutsItBackWhereItWas)
{
    addEvolution(list, "a");
    EVM& b = addEvolution(list, "b");
    addEvolution(list, "c");
    list.setReference(&b);
    listen();
    const OwnedEvolutions before = list.all();
    list.remove({&b});
    EXPECT_THAT(namesOf(list), ElementsAre("a", "c"));
    EXPECT_EQ(list.reference(), nullptr);
    list.putBack(before);
    list.putBack(before); // all are there
    EXPECT_THAT(namesOf(list), ElementsAre("a", "b", "c"));
    EXPECT_EQ(list.all()[1].get(), &b);
    EXPECT_THAT(announced, ElementsAre("reference b none", "removed b", "added b"));
}

TEST_F(EvolutionListTest, removesAllButSomeTogether)
{
    addEvolution(list, "a");
    addEvolution(list, "b");
    addEvolution(list, "c");
    const OwnedEvolutions kept {list.all()[1]};
    listen();
    list.removeOthers(kept);
    list.removeOthers(kept);
    EXPECT_THAT(namesOf(list), ElementsAre("b"));
    EXPECT_THAT(announced, ElementsAre("removed a c"));
}

TEST_F(EvolutionListTest, changesTheParametersThatUsersMayChange)
{
    EVM& a = addEvolution(list, "a");
    a.Param.AnalysisType = "PK";
    listen();
    list.setParameters(a, {"WING", "heavy", 0.62F});
    list.setParameters(a, {"WING", "heavy", 0.62F}); // the same
    EXPECT_EQ(a.Param.editable(), (EditableParam {"WING", "heavy", 0.62F}));
    EXPECT_EQ(a.Param.AnalysisType, "PK");
    EXPECT_THAT(announced, ElementsAre("changed a"));
}

TEST_F(EvolutionListTest, announcesThatAllGoBeforeTheyGo)
{
    listen();
    list.clear();
    EXPECT_THAT(announced, IsEmpty());
    list.setReference(&addEvolution(list, "a"));
    addEvolution(list, "b");
    announced.clear();
    list.clear();
    EXPECT_THAT(namesOf(list), IsEmpty());
    EXPECT_THAT(announced, ElementsAre("reference a none", "removed a b"));
}

} // namespace
