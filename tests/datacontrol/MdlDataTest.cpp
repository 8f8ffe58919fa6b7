// How rows of the grid become series.

#include "datacontrol/MdlData.h"

#include "analysis/ModeBuilder.h"
#include "vgfplot/EvmPlot.h"

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
    }

    SeriesList& series() { return plot.SeriesCollection(); }
    PlotRows& rows() { return plot.rows(); }
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
        for (std::size_t row = 0; row < rows().count(); ++row)
            modes.push_back(rows().mode(row));
        return modes;
    }

    EVM evolution;
    EvmPlot plot;
};

} // namespace

TEST_F(MdlData, givesTheSeriesOfTheRowsTheirMarkers)
{
    rows().setMode(2, 9);
    EXPECT_EQ(mdlData::buildSeries(rows(), {9, 4, markerstyle::tag, 2}),
              "There is no mode 9 in modal evolution case.ev2");
    EXPECT_THAT(order(), ElementsAre(11, 12, 14, 15));
    for (std::size_t row = 0; row < rows().count(); ++row) {
        EXPECT_EQ(rows().look(row).MarkerSize, 9);
        EXPECT_EQ(rows().look(row).MarkerSpacing, 4);
        EXPECT_EQ(rows().look(row).MarkerStyle, markerstyle::tag);
        EXPECT_EQ(rows().look(row).IthMpf, 2);
    }
}

TEST_F(MdlData, namesAllModesThatAreNotThereALineEach)
{
    EXPECT_EQ(mdlData::missingModesText(rows()), "");
    rows().setMode(1, 0);
    rows().setMode(2, 1);
    rows().setMode(3, 6);
    EXPECT_EQ(mdlData::missingModesText(rows()),
              "There is no mode 0 in modal evolution case.ev2\n"
              "There is no mode 6 in modal evolution case.ev2");
    EXPECT_THAT(numbers(), ElementsAre(1, 0, 1, 6, 5));
}

TEST_F(MdlData, makesNoBoxThatIsHigherThanTheScreen)
{
    for (int i = 0; i < 40; ++i) {
        plot.addSeries(*evolution.Modes[0]);
        rows().setMode(rows().count() - 1, 100);
    }
    const std::string text = mdlData::missingModesText(rows());
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 30);
    EXPECT_THAT(text, ::testing::EndsWith("\nand 10 more"));
}

TEST_F(MdlData, changesOnlyTheMarkerOptionsThatDiffer)
{
    series()[1].MarkerSpacing = 3;
    rows().setMode(2, 0);
    mdlData::changeMarkers(rows(), {8, 10, markerstyle::tag, 1}, {12, 10, markerstyle::tag, 4});
    EXPECT_EQ(series()[1].MarkerSize, 12);
    EXPECT_EQ(series()[1].IthMpf, 4);
    EXPECT_EQ(series()[1].MarkerSpacing, 3);
    EXPECT_EQ(series()[1].MarkerStyle, markerstyle::none);
    EXPECT_EQ(rows().look(2).MarkerSize, 12) << "its curve may come back";
}

TEST_F(MdlData, resetsColoursToThoseOfThePlaces)
{
    for (int i = 0; i < 3; ++i)
        plot.addSeries(*evolution.Modes[0]);
    for (Series& one : series())
        one.ColorIndex = 77;
    series()[1].MarkerForegroundColor = 77; // goes along
    series()[2].MarkerForegroundColor = 5; // is the user's own
    rows().setMode(0, 0); // its colour waits for it
    mdlData::resetColors(rows());
    rows().setMode(0, 1);
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
        EXPECT_EQ(mdlData::moveRows(plot, one.moved, one.target), one.places);
        EXPECT_EQ(order(), one.order);
    }
}

TEST_F(MdlData, movesRowsByOnePlaceAsFarAsThereIsRoom)
{
    rows().setMode(3, 99);
    EXPECT_THAT(mdlData::moveRowsUp(plot, {0, 3}), ElementsAre(0, 2));
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 99, 3, 5));
    EXPECT_THAT(order(), ElementsAre(11, 12, 13, 15));
    EXPECT_THAT(mdlData::moveRowsUp(plot, {0, 1}), ElementsAre(0, 1)) << "no room";
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 99, 3, 5));
    EXPECT_THAT(mdlData::moveRowsDown(plot, {0, 2, 4}), ElementsAre(1, 3, 4));
    EXPECT_THAT(numbers(), ElementsAre(2, 1, 3, 99, 5));
    EXPECT_THAT(order(), ElementsAre(12, 11, 13, 15));
    EXPECT_THAT(mdlData::moveRowsDown(plot, {}), ::testing::IsEmpty());
}

TEST_F(MdlData, raisesModesToWhatTheEvolutionDeclaresAndLowersThemToNothing)
{
    evolution.na = 5;
    EXPECT_EQ(mdlData::raisedMode(&evolution, 4), 5);
    EXPECT_EQ(mdlData::raisedMode(&evolution, 5), 5);
    EXPECT_EQ(mdlData::raisedMode(nullptr, 1), 1);
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
    const Series& one = series().front();
    EXPECT_TRUE(mdlData::fillLegend(rows(), 0, -1));
    EXPECT_EQ(one.LegendText, QStringLiteral("case.ev2"));
    EXPECT_TRUE(mdlData::fillLegend(rows(), 0, 0));
    EXPECT_EQ(one.LegendText, QStringLiteral("clean wing"));
    EXPECT_TRUE(mdlData::fillLegend(rows(), 0, 1));
    EXPECT_EQ(one.LegendText, QStringLiteral("altitude 0 ft; full fuel"));
    EXPECT_FALSE(mdlData::fillLegend(rows(), 0, 2));
    EXPECT_FALSE(mdlData::fillLegend(rows(), 0, -2));
    EXPECT_EQ(one.LegendText, QStringLiteral("altitude 0 ft; full fuel"));
    rows().setMode(3, 0);
    EXPECT_TRUE(mdlData::fillLegends(rows(), {}, 0));
    EXPECT_EQ(rows().look(3).LegendText, QStringLiteral("clean wing")) << "a row without a curve";
}
