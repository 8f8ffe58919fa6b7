// SPDX-License-Identifier: Apache-2.0

// The plots of a document, their captions and the active one.

#include "DocumentFixture.h"

#include "support/Errors.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::captionOf;
using test::captionsOf;
using test::errorNumberOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

/// A list with a listener that records its signals.
class PlotListTest : public ::testing::Test
{
protected:
    void listen()
    {
        QObject::connect(&list, &PlotList::activeChanged, &list,
                         [this](const EvmPlot* before, const EvmPlot* now) {
                             EXPECT_EQ(list.active(), now);
                             announced.push_back("active " + captionOf(before) + " "
                                                 + captionOf(now));
                         });
        QObject::connect(&list, &PlotList::added, &list, [this](const EvmPlot* plot) {
            EXPECT_TRUE(list.contains(plot));
            announced.push_back("added " + captionOf(plot));
        });
        QObject::connect(&list, &PlotList::aboutToBeRemoved, &list, [this](const EvmPlot* plot) {
            EXPECT_TRUE(list.contains(plot));
            EXPECT_NE(list.active(), plot);
            announced.push_back("removed " + captionOf(plot));
        });
    }
    EvmPlot& add(const char* caption = "") { return list.add(QString::fromLatin1(caption)); }

    PlotList list;
    test::Texts announced;
};

TEST_F(PlotListTest, beginsWithPlot1AndNoActivePlot)
{
    EXPECT_THAT(captionsOf(list), ElementsAre("Plot1"));
    EXPECT_EQ(list.active(), nullptr);
    EXPECT_FALSE(list.first().Visible());
}

TEST_F(PlotListTest, makesTheActivePlotTheOnlyVisibleOne)
{
    EvmPlot& second = add();
    listen();
    list.activate(&list.first());
    list.activate(&second);
    list.activate(&second);
    EXPECT_FALSE(list.first().Visible());
    EXPECT_TRUE(second.Visible());
    list.activate(nullptr);
    EXPECT_FALSE(second.Visible());
    EXPECT_THAT(announced,
                ElementsAre("active none Plot1", "active Plot1 Plot2", "active Plot2 none"));
}

TEST_F(PlotListTest, activatesNoStranger)
{
    list.activate(&list.first());
    EvmPlot stranger;
    EXPECT_EQ(errorNumberOf([&] { list.activate(&stranger); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(list.active(), &list.first());
}

TEST_F(PlotListTest, givesEveryPlotACaptionOfItsOwn)
{
    list.first().properties().setCaption(QStringLiteral("Plot2"));
    add();
    add("Plot2");
    add("free");
    EXPECT_THAT(captionsOf(list), ElementsAre("Plot2", "Plot2(2)", "Plot2(3)", "free"));
}

TEST_F(PlotListTest, copiesTheActivePlotAlone)
{
    EXPECT_EQ(errorNumberOf([this] { list.copyActive({}); }), ErrorNumber::ObjectVariableNotSet);
    list.activate(&list.first());
    list.first().properties().setVthicks(3);
    const EvmPlot& copy = list.copyActive({});
    EXPECT_EQ(copy.properties().vthicks(), 3);
    EXPECT_FALSE(copy.Visible());
    EXPECT_THAT(captionsOf(list), ElementsAre("Plot1", "Plot1(2)"));
}

TEST_F(PlotListTest, renamesAPlotUnlessAnotherHasThatName)
{
    EvmPlot& second = add();
    EXPECT_FALSE(list.rename(second, QStringLiteral("Plot1")));
    EXPECT_EQ(captionOf(&second), "Plot2");
    EXPECT_TRUE(list.rename(second, QStringLiteral("Plot2")));
    EXPECT_TRUE(list.rename(second, QStringLiteral("  "))) << "a change of mind";
    EXPECT_EQ(captionOf(&second), "Plot2");
    EXPECT_TRUE(list.rename(second, QStringLiteral("wing")));
    EXPECT_EQ(captionOf(&second), "wing");
}

TEST_F(PlotListTest, removesAPlotAndActivatesItsPredecessor)
{
    EvmPlot& second = add();
    list.activate(&second);
    listen();
    const PlotList::Element kept = list.elements().back(); // lives on
    list.remove(second);
    EXPECT_FALSE(list.contains(&second));
    EXPECT_FALSE(second.Visible());
    EXPECT_THAT(announced, ElementsAre("active Plot2 Plot1", "removed Plot2"));
}

TEST_F(PlotListTest, removesNeitherTheFirstNorAPlotOfAnotherList)
{
    EvmPlot stranger;
    for (EvmPlot* const plot : {&list.first(), &stranger})
        EXPECT_EQ(errorNumberOf([&] { list.remove(*plot); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_THAT(captionsOf(list), ElementsAre("Plot1"));
}

TEST_F(PlotListTest, putsAPlotBackWhereItWas)
{
    EvmPlot& second = add();
    EvmPlot& third = add();
    second.properties().setVthicks(3);
    const PlotList::Element removed = list.elements()[1];
    list.remove(second);
    listen();
    list.putBack(removed);
    list.putBack(removed); // is there already
    EXPECT_THAT(list.all(), ElementsAre(&list.first(), &second, &third));
    EXPECT_EQ(second.properties().vthicks(), 3);
    EXPECT_THAT(announced, ElementsAre("added Plot2"));
    EXPECT_EQ(captionOf(&add()), "Plot4") << "the index counts again";
}

TEST_F(PlotListTest, startsNewWithOneEmptyPlotOfTheAxesThatAreSet)
{
    EVM evolution;
    AeMode& mode = evolution.appendMode();
    EvmPlot& first = list.first();
    first.rows().add(mode);
    first.properties().setCaption(QStringLiteral("mine"));
    first.references().AddRef(100, QStringLiteral("Vd"));
    first.references().AddDampLine(0.02F, QStringLiteral("2 %"));
    list.activate(&add());
    const PlotAxes axes {{"V", 0, 100, 4}, {"f", 0, 10, 2}, {"g", 0, -1, 3}};
    list.setNewPlotAxes(axes);
    list.startNew();
    EXPECT_THAT(captionsOf(list), ElementsAre("Plot1"));
    EXPECT_EQ(&list.first(), &first) << "views keep it";
    EXPECT_EQ(list.active(), &first);
    EXPECT_EQ(first.rows().count(), 0U);
    EXPECT_THAT(first.references().referenceSpeeds(), IsEmpty());
    EXPECT_THAT(first.references().dampingLines(), IsEmpty());
    EXPECT_EQ(first.axes(), axes);
}

} // namespace
