// How rows of the grid become series.

#include "control/MdlData.h"

#include "analysis/ModeBuilder.h"
#include "vgf/EvmPlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using ::testing::ElementsAre;

namespace {

/// A plot with a series for each of five modes of one evolution.
class MdlData : public ::testing::Test
{
protected:
    MdlData()
    {
        evolution.FileName = "case.ev2";
        for (std::int16_t id = 11; id <= 15; ++id)
            plot.addSeries(test::addMode(evolution, id, {{100, -0.02F, 5}, {200, 0.01F, 6}}));
        rows = mdlData::rowsOf(series(), {});
    }

    SeriesList& series() { return plot.SeriesCollection(); }
    std::vector<int> order()
    {
        std::vector<int> ids;
        for (const Series& one : series())
            ids.push_back(one.Mode->Id);
        return ids;
    }
    std::vector<int> numbers()
    {
        std::vector<int> modes;
        for (const mdlData::Row& row : rows)
            modes.push_back(row.mode);
        return modes;
    }

    EVM evolution;
    EvmPlot plot;
    std::vector<mdlData::Row> rows;
};

} // namespace

TEST_F(MdlData, countsModesByTheirPlacesInTheEvolution)
{
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(MdlData, keepsWhatWasTypedWhenSeriesGoAndCome)
{
    rows[2].mode = 99;
    series().erase(series().begin());
    plot.addSeries(*evolution.Modes[0]);
    rows = mdlData::rowsOf(series(), rows);
    EXPECT_THAT(numbers(), ElementsAre(2, 99, 4, 5, 1));
}

TEST_F(MdlData, buildsTheSeriesOfTheRows)
{
    rows[0].mode = 5;
    rows[4].mode = 1;
    EXPECT_EQ(mdlData::buildSeries(series(), rows, {9, 4, markerstyle::tag, 2}), "");
    EXPECT_THAT(order(), ElementsAre(15, 12, 13, 14, 11));
    for (const Series& one : series()) {
        EXPECT_EQ(one.MarkerSize, 9);
        EXPECT_EQ(one.MarkerSpacing, 4);
        EXPECT_EQ(one.MarkerStyle, markerstyle::tag);
        EXPECT_EQ(one.IthMpf, 2);
    }
}

TEST_F(MdlData, namesTheFirstModeThatIsNotThereAndKeepsItsCurve)
{
    rows[1].mode = 0;
    rows[2].mode = 1;
    rows[3].mode = 6;
    EXPECT_EQ(mdlData::buildSeries(series(), rows, {}),
              "There is no mode 0 in modal evolution case.ev2");
    EXPECT_THAT(order(), ElementsAre(11, 12, 11, 14, 15));
    EXPECT_THAT(numbers(), ElementsAre(1, 0, 1, 6, 5));
}

TEST_F(MdlData, resetsColoursToThoseOfThePlaces)
{
    for (int i = 0; i < 3; ++i)
        plot.addSeries(*evolution.Modes[0]);
    for (Series& one : series())
        one.ColorIndex = 77;
    series()[1].MarkerForegroundColor = 77; // goes along
    series()[2].MarkerForegroundColor = 5; // is the user's own
    mdlData::resetColors(series());
    for (std::size_t i = 0; i < series().size(); ++i)
        EXPECT_EQ(series()[i].ColorIndex, BaseColors[i % 7]) << i;
    EXPECT_EQ(series()[1].MarkerForegroundColor, BaseColors[1]);
    EXPECT_EQ(series()[2].MarkerForegroundColor, 5);
}

TEST_F(MdlData, movesRowsTogetherToAGap)
{
    struct Case
    {
        std::vector<std::size_t> moved;
        std::size_t target;
        std::vector<std::size_t> places;
        std::vector<int> order;
    };
    for (const Case& one :
         {Case {{0}, 2, {1}, {12, 11, 13, 14, 15}}, Case {{4}, 0, {0}, {15, 11, 12, 13, 14}},
          Case {{1, 2}, 0, {0, 1}, {12, 13, 11, 14, 15}},
          Case {{1, 2}, 5, {3, 4}, {11, 14, 15, 12, 13}},
          Case {{0, 2, 4}, 3, {1, 2, 3}, {12, 11, 13, 15, 14}},
          Case {{1}, 1, {1}, {11, 12, 13, 14, 15}}, Case {{1}, 2, {1}, {11, 12, 13, 14, 15}}}) {
        series().clear();
        for (const auto& mode : evolution.Modes)
            plot.addSeries(*mode);
        rows = mdlData::rowsOf(series(), {});
        EXPECT_EQ(mdlData::moveRows(plot, rows, one.moved, one.target), one.places);
        EXPECT_EQ(order(), one.order);
        EXPECT_EQ(rows, mdlData::rowsOf(series(), {})) << "the rows went along";
    }
}

TEST_F(MdlData, movesRowsByOnePlaceAsFarAsThereIsRoom)
{
    rows[3].mode = 99;
    EXPECT_THAT(mdlData::moveRowsUp(plot, rows, {0, 3}), ElementsAre(0, 2));
    EXPECT_THAT(order(), ElementsAre(11, 12, 14, 13, 15));
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 99, 3, 5));
    EXPECT_THAT(mdlData::moveRowsUp(plot, rows, {0, 1}), ElementsAre(0, 1)) << "no room";
    EXPECT_THAT(order(), ElementsAre(11, 12, 14, 13, 15));
    EXPECT_THAT(mdlData::moveRowsDown(plot, rows, {0, 2, 4}), ElementsAre(1, 3, 4));
    EXPECT_THAT(order(), ElementsAre(12, 11, 13, 14, 15));
    EXPECT_THAT(mdlData::moveRowsDown(plot, rows, {}), ::testing::IsEmpty());
}

TEST_F(MdlData, raisesModesToWhatTheEvolutionDeclaresAndLowersThemToNothing)
{
    evolution.na = 5;
    EXPECT_EQ(mdlData::raisedMode(series()[0], 4), 5);
    EXPECT_EQ(mdlData::raisedMode(series()[0], 5), 5);
    EXPECT_EQ(mdlData::raisedMode(Series(), 1), 1);
    EXPECT_EQ(mdlData::loweredMode(1), 0);
    EXPECT_EQ(mdlData::loweredMode(0), 0);
    EXPECT_EQ(mdlData::loweredMode(-3), -4);
}

TEST_F(MdlData, putsATextIntoOneLine)
{
    EXPECT_EQ(mdlData::inOneLine(QStringLiteral(" a\r\nb\rc\n\n")), QStringLiteral(" a b c"));
}

TEST_F(MdlData, fillsLegendsWithTheNameOrAnEntryOfTheFile)
{
    evolution.Param.legends.add("1", "clean wing");
    evolution.Param.legends.add("2", "altitude 0 ft| full fuel");
    Series& one = series().front();
    EXPECT_TRUE(mdlData::fillLegend(one, -1));
    EXPECT_EQ(one.LegendText, QStringLiteral("case.ev2"));
    EXPECT_TRUE(mdlData::fillLegend(one, 0));
    EXPECT_EQ(one.LegendText, QStringLiteral("clean wing"));
    EXPECT_TRUE(mdlData::fillLegend(one, 1));
    EXPECT_EQ(one.LegendText, QStringLiteral("altitude 0 ft; full fuel"));
    EXPECT_FALSE(mdlData::fillLegend(one, 2));
    EXPECT_FALSE(mdlData::fillLegend(one, -2));
    EXPECT_EQ(one.LegendText, QStringLiteral("altitude 0 ft; full fuel"));
}
