// SPDX-License-Identifier: Apache-2.0

// The plots of the window, the active one, and their series.

#include "analysis/ModeBuilder.h"
#include "document/EvolutionList.h"
#include "plotwindow/WndEvolPlotFixture.h"
#include "support/Errors.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::errorNumberOf;
using test::WndEvolPlotTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const test::ScriptedUserInterface::Message pleaseActivate {"Please select activate a plot.",
                                                           "Tarsil", MessageIcon::Exclamation};

} // namespace

TEST_F(WndEvolPlotTest, hasItsNamesAndTitle)
{
    EXPECT_EQ(window.objectName(), QStringLiteral("wndEvolPlot"));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("V-g-f Plot"));
    EXPECT_EQ(window.accessibleName(), QStringLiteral("V-g-f Plot"));
}

TEST_F(WndEvolPlotTest, namesTheActivePlotInItsTitle)
{
    EvmPlot* const second = add();
    activateFirst();
    EXPECT_EQ(window.windowTitle(), QStringLiteral("V-g-f Plot - Plot1"));
    window.ActivatePlot(second);
    second->properties().setCaption(QStringLiteral("clean %1 & [*]"));
    plotAt(0)->properties().setCaption(QStringLiteral("hidden"));
    EXPECT_EQ(window.accessibleName(), QStringLiteral("V-g-f Plot - clean %1 & [*]"));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("V-g-f Plot - clean %1 & [*][*]"))
        << "the toolkit shows one for two";
    window.RemovePlot(second);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("V-g-f Plot - hidden"));
    window.ActivatePlot(nullptr);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("V-g-f Plot"));
}

TEST_F(WndEvolPlotTest, saysInAnEmptyPlotWhatToDoNext)
{
    EvolutionList evolutions;
    window.adviseOn(evolutions);
    activateFirst();
    show();
    EvmPlotView& view = *window.viewOf(*plotAt(0));
    const auto looksLikeItsPicture = [&] {
        const QRect canvas = plotAt(0)->parts().vgPlot.geometry();
        return view.grab(canvas).toImage() == plotAt(0)->Image().copy(canvas);
    };
    EXPECT_TRUE(view.accessibleDescription().startsWith(u"Open modal evolutions"));
    EXPECT_FALSE(looksLikeItsPicture()) << "the advice is on the screen only";

    const auto added = std::make_shared<EVM>();
    test::addMode(*added, 1, {{100, -0.1F, 5}, {200, 0.1F, 6}});
    evolutions.add({added});
    EXPECT_TRUE(view.accessibleDescription().startsWith(u"Tick modal evolutions"));
    window.AddSerie(*added->Modes.front());
    EXPECT_TRUE(view.accessibleDescription().startsWith(u"1 curves")) << "no advice any more";
    plotAt(0)->rows().clear();
    evolutions.remove({added.get()});
    EXPECT_TRUE(view.accessibleDescription().startsWith(u"Open modal evolutions"));
    EXPECT_FALSE(looksLikeItsPicture());
}

TEST_F(WndEvolPlotTest, beginsWithPlot1AndNoActivePlot)
{
    show();
    EXPECT_THAT(captions(), ElementsAre("Plot1"));
    EXPECT_EQ(window.ActivePlot(), nullptr);
    EXPECT_THAT(visibleCaptions(), IsEmpty());
}

TEST_F(WndEvolPlotTest, showsTheActivePlotAlone)
{
    show();
    EvmPlot* const second = add();
    activateFirst();
    EXPECT_EQ(window.ActivePlot(), plotAt(0));
    EXPECT_THAT(visibleCaptions(), ElementsAre("Plot1"));
    window.ActivatePlot(second);
    EXPECT_EQ(window.ActivePlot(), second);
    EXPECT_THAT(visibleCaptions(), ElementsAre("Plot2"));
    window.ActivatePlot(nullptr);
    EXPECT_EQ(window.ActivePlot(), nullptr);
    EXPECT_THAT(visibleCaptions(), IsEmpty());
}

TEST_F(WndEvolPlotTest, announcesWhichPlotWasActiveAndWhichIs)
{
    add();
    listen();
    activateFirst();
    activateFirst(); // active already
    window.ActivatePlot(plotAt(1));
    window.ActivatePlot(nullptr);
    window.ActivatePlot(nullptr);
    EXPECT_THAT(announced,
                ElementsAre("active none Plot1", "active Plot1 Plot2", "active Plot2 none"));
}

TEST_F(WndEvolPlotTest, activatesNoPlotOfAnotherWindow)
{
    activateFirst();
    listen();
    EvmPlot stranger;
    EXPECT_EQ(errorNumberOf([&] { window.ActivatePlot(&stranger); }),
              ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(window.ActivePlot(), plotAt(0));
    EXPECT_THAT(visibleCaptions(), ElementsAre("Plot1"));
    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(WndEvolPlotTest, namesANewPlotAfterItsIndex)
{
    listen();
    EXPECT_EQ(add()->properties().Caption(), QStringLiteral("Plot2"));
    EXPECT_EQ(add("Wing")->properties().Caption(), QStringLiteral("Wing"));
    EXPECT_EQ(add()->properties().Caption(), QStringLiteral("Plot4"));
    EXPECT_THAT(captions(), ElementsAre("Plot1", "Plot2", "Wing", "Plot4"));
    EXPECT_THAT(announced, ElementsAre("added Plot2", "added Wing", "added Plot4"));
}

TEST_F(WndEvolPlotTest, doesNotActivateANewPlot)
{
    show();
    activateFirst();
    add();
    window.CopyPlot({});
    EXPECT_EQ(window.ActivePlot(), plotAt(0));
    EXPECT_THAT(visibleCaptions(), ElementsAre("Plot1"));
}

TEST_F(WndEvolPlotTest, namesACopyAfterTheActivePlotAndItsIndex)
{
    activateFirst();
    listen();
    EXPECT_EQ(window.CopyPlot({})->properties().Caption(), QStringLiteral("Plot1(2)"));
    EXPECT_EQ(window.CopyPlot(QStringLiteral("Wing"))->properties().Caption(),
              QStringLiteral("Wing"));
    window.ActivatePlot(plotAt(1));
    EXPECT_EQ(window.CopyPlot({})->properties().Caption(), QStringLiteral("Plot1(2)(4)"));
    EXPECT_THAT(
        announced,
        ElementsAre("added Plot1(2)", "added Wing", "active Plot1 Plot1(2)", "added Plot1(2)(4)"));
}

TEST_F(WndEvolPlotTest, copiesTextsScaleAndPropertiesOfTheActivePlotButNoSeries)
{
    add();
    window.ActivatePlot(plotAt(1));
    EvmPlot& source = *plotAt(1);
    source.texts().setText(TextBox::Header, QStringLiteral("header"));
    source.SetScale(10, 500, 1, 40, 0.1F, -0.5F);
    source.properties().setVthicks(9);
    source.properties().setVLabel(QStringLiteral("speed"));
    window.AddSerie(evolution.appendMode());
    const EvmPlot& copy = *window.CopyPlot({});
    EXPECT_EQ(copy.parts().box(TextBox::Header).Text(), QStringLiteral("header"));
    EXPECT_EQ(copy.axes().bounds(), (PlotBounds {10, 500, 1, 40, 0.1F, -0.5F}));
    EXPECT_EQ(copy.properties().vthicks(), 9);
    EXPECT_EQ(copy.properties().vLabel(), QStringLiteral("speed"));
    EXPECT_TRUE(copy.SeriesCollection().empty());
    EXPECT_EQ(source.properties().Caption(), QStringLiteral("Plot2"));
}

TEST_F(WndEvolPlotTest, copiesNothingWithoutAnActivePlot)
{
    listen();
    EXPECT_EQ(window.CopyPlot(QStringLiteral("Wing")), nullptr);
    EXPECT_THAT(user.messages, ElementsAre(pleaseActivate));
    EXPECT_THAT(captions(), ElementsAre("Plot1"));
    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(WndEvolPlotTest, countsTheNextIndexFromTheHighestInUse)
{
    EvmPlot* const second = add();
    EvmPlot* const third = add();
    window.RemovePlot(second);
    EXPECT_EQ(add()->properties().Caption(), QStringLiteral("Plot4")); // index 3, after 2
    window.RemovePlot(plotAt(2));
    window.RemovePlot(third);
    EXPECT_EQ(add()->properties().Caption(), QStringLiteral("Plot2")); // index 1, after 0
    EXPECT_THAT(captions(), ElementsAre("Plot1", "Plot2"));
}

TEST_F(WndEvolPlotTest, overflowsAboveIndex32767)
{
    activateFirst();
    EvmPlot* last = plotAt(0);
    for (int index = 1; index <= 32767; ++index) {
        EvmPlot* const next = add();
        window.RemovePlot(last); // element 0 stays
        last = next;
    }
    EXPECT_THAT(captions(), ElementsAre("Plot1", "Plot32768"));
    listen();
    EXPECT_EQ(errorNumberOf([this] { add(); }), ErrorNumber::Overflow);
    EXPECT_EQ(errorNumberOf([this] { window.CopyPlot({}); }), ErrorNumber::Overflow);
    EXPECT_THAT(captions(), ElementsAre("Plot1", "Plot32768"));
    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(WndEvolPlotTest, neverRemovesElement0WhetherItIsActiveOrNot)
{
    EvmPlot* const second = add();
    listen();
    for (EvmPlot* active : {second, plotAt(0)}) {
        window.ActivatePlot(active);
        announced.clear();
        window.RemovePlot(plotAt(0));
        EXPECT_THAT(captions(), ElementsAre("Plot1", "Plot2"));
        EXPECT_EQ(window.ActivePlot(), active);
        EXPECT_THAT(announced, IsEmpty());
    }
}

TEST_F(WndEvolPlotTest, removesNothingForNoPlotOrAStranger)
{
    add();
    listen();
    EvmPlot stranger;
    window.RemovePlot(nullptr);
    window.RemovePlot(&stranger);
    EXPECT_THAT(captions(), ElementsAre("Plot1", "Plot2"));
    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(WndEvolPlotTest, removesAPlotTogetherWithItsView)
{
    const auto views = [this] { return window.findChildren<EvmPlotView*>().size(); };
    EvmPlot* const second = add();
    ASSERT_EQ(views(), 2);
    window.RemovePlot(second);
    EXPECT_EQ(views(), 1);
    EXPECT_THAT(captions(), ElementsAre("Plot1"));
}

TEST_F(WndEvolPlotTest, activatesThePredecessorOfAnActivePlotThatIsRemoved)
{
    show();
    EvmPlot* const second = add();
    EvmPlot* const third = add();
    window.ActivatePlot(third);
    listen();
    window.RemovePlot(third);
    EXPECT_EQ(window.ActivePlot(), second);
    EXPECT_THAT(visibleCaptions(), ElementsAre("Plot2"));
    window.RemovePlot(second);
    EXPECT_EQ(window.ActivePlot(), plotAt(0));
    EXPECT_THAT(visibleCaptions(), ElementsAre("Plot1"));
    EXPECT_THAT(
        announced,
        ElementsAre("active Plot3 Plot2", "removed Plot3", "active Plot2 Plot1", "removed Plot2"));
}

TEST_F(WndEvolPlotTest, keepsTheActivePlotWhenAnotherIsRemoved)
{
    EvmPlot* const second = add();
    activateFirst();
    listen();
    window.RemovePlot(second);
    EXPECT_EQ(window.ActivePlot(), plotAt(0));
    EXPECT_THAT(announced, ElementsAre("removed Plot2"));
}

TEST_F(WndEvolPlotTest, survivesAPlotThatIsAddedWhileOneIsRemoved)
{
    EvmPlot* const second = add();
    QObject::connect(&list, &PlotList::aboutToBeRemoved, &window, [this] {
        for (int i = 0; i < 20; ++i)
            add();
    });
    window.RemovePlot(second);
    ASSERT_EQ(window.plots().size(), 21U);
    EXPECT_EQ(plotAt(1)->properties().Caption(), QStringLiteral("Plot3"));
}

TEST_F(WndEvolPlotTest, addsASeriesToTheActivePlotOnly)
{
    EvmPlot* const second = add();
    window.ActivatePlot(second);
    AeMode& mode = evolution.appendMode();
    window.AddSerie(mode);
    EXPECT_TRUE(plotAt(0)->SeriesCollection().empty());
    ASSERT_EQ(second->SeriesCollection().size(), 1U);
    EXPECT_EQ(second->SeriesCollection()[0].Mode, &mode);
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(WndEvolPlotTest, givesSeriesTheSevenColoursInTurnAndTheirNumberAsTag)
{
    activateFirst();
    AeMode& mode = evolution.appendMode();
    for (int i = 0; i < 8; ++i)
        window.AddSerie(mode);
    const SeriesList& series = plotAt(0)->SeriesCollection();
    ASSERT_EQ(series.size(), 8U);
    EXPECT_EQ(series[0].ColorIndex, rgb(128, 128, 128));
    EXPECT_EQ(series[6].ColorIndex, rgb(191, 191, 0));
    EXPECT_EQ(series[7].ColorIndex, rgb(128, 128, 128)); // 7 mod 7 = 0
    EXPECT_EQ(series[0].MarkerTag, QStringLiteral("0"));
    EXPECT_EQ(series[7].MarkerTag, QStringLiteral("7"));
}

TEST_F(WndEvolPlotTest, showsASeriesThatIsAdded)
{
    show();
    activateFirst();
    const QImage before = plotAt(0)->Image().copy();
    window.AddSerie(test::addMode(evolution, 1, {{100, -0.1F, 10}, {600, -0.2F, 40}}));
    EXPECT_NE(plotAt(0)->Image(), before);
}

TEST_F(WndEvolPlotTest, givesNewSeriesTheMarkersThatAreSet)
{
    activateFirst();
    AeMode& mode = evolution.appendMode();
    window.AddSerie(mode);
    list.setNewSeriesMarkers({9, 4, MarkerKind::Tag, 2});
    window.AddSerie(mode);
    const SeriesList& series = plotAt(0)->SeriesCollection();
    EXPECT_EQ(series[0].MarkerSpacing, 0);
    EXPECT_EQ(series[1].MarkerSize, 9);
    EXPECT_EQ(series[1].MarkerSpacing, 4);
    EXPECT_EQ(series[1].MarkerStyle, markerNumber(MarkerKind::Tag));
    EXPECT_EQ(series[1].IthMpf, 2);
    EXPECT_EQ(series[1].MarkerForegroundColor, BaseColors[1]) << "in the colour of the curve";
}

TEST_F(WndEvolPlotTest, asksForAnActivePlotBeforeASeries)
{
    listen();
    window.AddSerie(evolution.appendMode());
    EXPECT_THAT(user.messages, ElementsAre(pleaseActivate));
    EXPECT_TRUE(plotAt(0)->SeriesCollection().empty());
    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(WndEvolPlotTest, givesThePlotsThatItAddsTheAxesThatAreSet)
{
    activateFirst();
    const PlotAxes axes {{"V", 0, 100, 4}, {"f", 0, 10, 2}, {"g", 0, -1, 3}};
    list.setNewPlotAxes(axes);
    EXPECT_EQ(add()->axes(), axes);
    list.setNewPlotAxes({});
    EXPECT_EQ(add()->axes(), PlotAxes());
    EXPECT_EQ(plotAt(1)->axes(), axes);
    EXPECT_EQ(plotAt(0)->axes(), PlotAxes());
}

TEST_F(WndEvolPlotTest, givesACopyTheAxesOfItsSource)
{
    activateFirst();
    plotAt(0)->SetScale(0, 321, 0, 20, 0, -2);
    plotAt(0)->properties().setVthicks(9);
    list.setNewPlotAxes({{"V", 0, 100, 4}, {"f", 0, 10, 2}, {"g", 0, -1, 3}});
    const EvmPlot& copy = *window.CopyPlot(QString());
    EXPECT_EQ(copy.properties().vthicks(), 9);
    EXPECT_EQ(copy.axes(), plotAt(0)->axes());
}
