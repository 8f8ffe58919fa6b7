// SPDX-License-Identifier: Apache-2.0

// The series of a V-g-f plot, and fitting the frequency axis.

#include "analysis/ModeBuilder.h"
#include "support/Errors.h"
#include "vgfplot/EvmPlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;
using test::errorNumberOf;
using ::testing::ElementsAre;

namespace {

class EvmPlotSeries : public ::testing::Test
{
protected:
    void addSeries(int count)
    {
        for (int i = 0; i < count; ++i)
            plot.rows().add(evolution.appendMode());
    }

    std::vector<std::string> tags() const
    {
        std::vector<std::string> result;
        for (const Series& series : plot.SeriesCollection())
            result.push_back(series.MarkerTag.toStdString());
        return result;
    }

    EVM evolution;
    EvmPlot plot;
};

class FitFreq : public ::testing::Test
{
protected:
    FitFreq() { plot.SetScale(500, 700, 0, 50, 0, -0.25F); }

    /// The frequency bounds after a fit to these points.
    std::pair<float, float> fit(std::initializer_list<test::DrawnPoint> points)
    {
        plot.rows().add(addMode(evolution, 1, points));
        plot.fitFreq();
        return {plot.axes().frequency.min, plot.axes().frequency.max};
    }

    EVM evolution;
    EvmPlot plot;
};

using Bounds = std::pair<float, float>;

} // namespace

TEST_F(EvmPlotSeries, getTheBaseColoursInTurnAndTheirNumberAsTag)
{
    addSeries(9);
    const SeriesList& series = plot.SeriesCollection();
    ASSERT_EQ(series.size(), 9U);
    for (std::size_t i = 0; i < 7; ++i)
        EXPECT_EQ(series[i].ColorIndex, BaseColors[i]) << i;
    EXPECT_EQ(series[7].ColorIndex, BaseColors[0]); // 7 mod 7
    EXPECT_EQ(series[8].ColorIndex, BaseColors[1]); // 8 mod 7
    EXPECT_THAT(tags(), ElementsAre("0", "1", "2", "3", "4", "5", "6", "7", "8"));
}

TEST_F(EvmPlotSeries, belongToTheModeThatTheyWereMadeFor)
{
    AeMode& mode = evolution.appendMode();
    const RowId added = plot.rows().add(mode);
    EXPECT_EQ(plot.rows().indexOf(added), 0U);
    EXPECT_EQ(plot.SeriesCollection().back().Mode, &mode);
}

TEST_F(EvmPlotSeries, moveBackwards)
{
    addSeries(5);
    plot.SerieMove(4, 2);
    EXPECT_THAT(tags(), ElementsAre("0", "3", "1", "2", "4"));
}

TEST_F(EvmPlotSeries, moveForwards)
{
    addSeries(5);
    plot.SerieMove(2, 4);
    EXPECT_THAT(tags(), ElementsAre("0", "2", "3", "1", "4"));
}

TEST_F(EvmPlotSeries, moveFromOneEndToTheOther)
{
    addSeries(3);
    plot.SerieMove(1, 3);
    EXPECT_THAT(tags(), ElementsAre("1", "2", "0"));
    plot.SerieMove(3, 1);
    EXPECT_THAT(tags(), ElementsAre("0", "1", "2"));
}

TEST_F(EvmPlotSeries, stayWhereTheyAreWhenMovedOntoThemselves)
{
    addSeries(3);
    plot.SerieMove(2, 2);
    EXPECT_THAT(tags(), ElementsAre("0", "1", "2"));
}

TEST_F(EvmPlotSeries, moveTogether)
{
    addSeries(5);
    plot.SerieMove(2, 1, 3);
    EXPECT_THAT(tags(), ElementsAre("1", "2", "3", "0", "4"));
    plot.SerieMove(1, 3, 3);
    EXPECT_THAT(tags(), ElementsAre("0", "4", "1", "2", "3"));
    EXPECT_EQ(errorNumberOf([this] { plot.SerieMove(2, 4, 3); }), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(EvmPlotSeries, cannotMoveOutOfTheCollection)
{
    addSeries(3);
    for (const auto& [from, to] :
         {std::pair<std::size_t, std::size_t> {0, 1}, {1, 0}, {4, 1}, {1, 4}})
        EXPECT_EQ(errorNumberOf([&, f = from, t = to] { plot.SerieMove(f, t); }),
                  ErrorNumber::SubscriptOutOfRange)
            << from << " to " << to;
    EXPECT_THAT(tags(), ElementsAre("0", "1", "2"));
}

TEST_F(FitFreq, addsFivePercentToTheFrequenciesInWholeHertz)
{
    // 20 * 0.95 = 19 and 40 * 1.05 = 42.
    EXPECT_EQ(fit({{550, 0, 20}, {600, 0, 30}, {650, 0, 40}}), Bounds(19.0F, 42.0F));
}

TEST_F(FitFreq, roundsTiesToEven)
{
    // 10 * 0.95 = 9.5 -> 10 and 30 * 1.05 = 31.5 -> 32.
    EXPECT_EQ(fit({{550, 0, 10}, {600, 0, 30}}), Bounds(10.0F, 32.0F));
    // With 50 Hz visible as well: 50 * 1.05 = 52.5 -> 52.
    EXPECT_EQ(fit({{550, 0, 50}, {600, 0, 30}}), Bounds(10.0F, 52.0F));
}

TEST_F(FitFreq, looksAtAllSeries)
{
    plot.rows().add(addMode(evolution, 1, {{600, 0, 100}}));
    // 20 * 0.95 = 19 and 100 * 1.05 = 105.
    EXPECT_EQ(fit({{600, 0, 20}}), Bounds(19.0F, 105.0F));
}

TEST_F(FitFreq, leavesOutPointsAtTheHighestSpeedAndAtEightTenthsOfTheLowest)
{
    // The range is open: 0.8 * 500 = 400 < speed < 700.
    EXPECT_EQ(fit({{400, 0, 1}, {600, 0, 20}, {650, 0, 40}, {700, 0, 100}}), Bounds(19.0F, 42.0F));
}

TEST_F(FitFreq, includesPointsJustInsideTheRange)
{
    EXPECT_EQ(fit({{400.5F, 0, 20}, {699.5F, 0, 40}}), Bounds(19.0F, 42.0F));
}

TEST_F(FitFreq, includesPointsBelowTheLowestSpeedWithAMargin)
{
    // 450 is below vmin = 500 but above 400.
    EXPECT_EQ(fit({{450, 0, 20}, {600, 0, 40}}), Bounds(19.0F, 42.0F));
}

TEST_F(FitFreq, usesEightyFivePercentBelowWhenTheBoundsAreEqual)
{
    // 5 * 0.95 = 4.75 -> 5 and 5 * 1.05 = 5.25 -> 5; then 5 * 0.85 = 4.25 -> 4.
    EXPECT_EQ(fit({{550, 0, 5}, {600, 0, 5}}), Bounds(4.0F, 5.0F));
}

TEST_F(FitFreq, leavesTheScaleWhenTheBoundsStillFallTogether)
{
    // 1 * 0.85 and 1 * 1.05 both round to 1.
    EXPECT_EQ(fit({{550, 0, 1}, {600, 0, 1}}), Bounds(0.0F, 50.0F));
}

TEST_F(FitFreq, leavesTheScaleWhenNoPointIsInSight)
{
    EXPECT_EQ(fit({{100, 0, 5}, {800, 0, 6}}), Bounds(0.0F, 50.0F));
    plot.rows().clear();
    EXPECT_EQ(fit({}), Bounds(0.0F, 50.0F));
}

TEST_F(FitFreq, leavesSpeedsAndDampingsAsTheyAre)
{
    fit({{550, 0, 20}, {600, 0, 40}});
    EXPECT_EQ(plot.axes().bounds(), (PlotBounds {500, 700, 19, 42, 0, -0.25F}));
    // The canvas follows: 42 Hz is at its upper edge.
    EXPECT_EQ(plot.parts().vfPlot.pixelOf(500, 42), QPoint(0, 0));
}

TEST_F(FitFreq, ignoresSeriesWithoutAMode)
{
    plot.rows().add(Series());
    EXPECT_EQ(fit({{550, 0, 20}, {600, 0, 40}}), Bounds(19.0F, 42.0F));
}
