// SPDX-License-Identifier: Apache-2.0

// The commands on the rows of the grid.

#include "document/MdlData.h"

#include "analysis/ModeBuilder.h"
#include "support/ChangeSeries.h"
#include "surface/DeviceContext.h"
#include "vgfplot/EvmPlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::changeAllSeries;
using test::changeSeries;
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
            plot.rows().add(test::addMode(evolution, id, {{100, -0.02F, 5}, {200, 0.01F, 6}}));
    }

    const SeriesList& series() { return plot.SeriesCollection(); }
    PlotRows& rows() { return plot.rows(); }
    const Series& look(std::size_t row) { return rows().at(row).series; }
    void setMode(std::size_t row, std::int32_t number)
    {
        rows().setMode(rows().at(row).id, number);
    }
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
            modes.push_back(rows().at(row).mode);
        return modes;
    }

    EVM evolution;
    EvmPlot plot;
};

} // namespace

TEST_F(MdlData, givesTheSeriesOfTheRowsTheirMarkers)
{
    setMode(2, 9);
    EXPECT_EQ(mdlData::buildSeries(rows(), {9, 4, MarkerKind::Tag, 2}),
              "There is no mode 9 in modal evolution case.ev2");
    EXPECT_THAT(order(), ElementsAre(11, 12, 14, 15));
    for (std::size_t row = 0; row < rows().count(); ++row) {
        EXPECT_EQ(look(row).MarkerSize, 9);
        EXPECT_EQ(look(row).MarkerSpacing, 4);
        EXPECT_EQ(look(row).MarkerStyle, markerNumber(MarkerKind::Tag));
        EXPECT_EQ(look(row).IthMpf, 2);
    }
}

TEST_F(MdlData, namesAllModesThatAreNotThereALineEach)
{
    EXPECT_EQ(mdlData::missingModesText(rows()), "");
    setMode(1, 0);
    setMode(2, 1);
    setMode(3, 6);
    EXPECT_EQ(mdlData::missingModesText(rows()),
              "There is no mode 0 in modal evolution case.ev2\n"
              "There is no mode 6 in modal evolution case.ev2");
    EXPECT_THAT(numbers(), ElementsAre(1, 0, 1, 6, 5));
}

TEST_F(MdlData, makesNoBoxThatIsHigherThanTheScreen)
{
    for (int i = 0; i < 40; ++i) {
        plot.rows().add(*evolution.Modes[0]);
        setMode(rows().count() - 1, 100);
    }
    const std::string text = mdlData::missingModesText(rows());
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 30);
    EXPECT_THAT(text, ::testing::EndsWith("\nand 10 more"));
}

TEST_F(MdlData, changesOnlyTheMarkerOptionsThatDiffer)
{
    changeSeries(plot, 1, [](Series& one) { one.MarkerSpacing = 3; });
    setMode(2, 0);
    mdlData::changeMarkers(rows(), {8, 10, MarkerKind::Tag, 1}, {12, 10, MarkerKind::Tag, 4});
    EXPECT_EQ(series()[1].MarkerSize, 12);
    EXPECT_EQ(series()[1].IthMpf, 4);
    EXPECT_EQ(series()[1].MarkerSpacing, 3);
    EXPECT_EQ(series()[1].MarkerStyle, markerNumber(MarkerKind::None));
    EXPECT_EQ(look(2).MarkerSize, 12) << "its curve may come back";
}

TEST_F(MdlData, resetsColoursToThoseOfTheRowIndexes)
{
    for (int i = 0; i < 3; ++i)
        plot.rows().add(*evolution.Modes[0]);
    changeAllSeries(plot, [](Series& one) { one.ColorIndex = 77; });
    changeSeries(plot, 1, [](Series& one) {
        one.MarkerForegroundColor = 77;
    }); // was equal, so it changes too
    changeSeries(plot, 2, [](Series& one) {
        one.MarkerForegroundColor = 5;
    }); // set by the user, so it stays
    setMode(0, 0); // its colour stays reserved
    mdlData::resetColors(rows(), CurvePalette::Standard);
    setMode(0, 1);
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
        std::vector<int> order;
    };
    for (const Case& one :
         {Case {{0}, 2, {12, 11, 13, 14, 15}}, Case {{4}, 0, {15, 11, 12, 13, 14}},
          Case {{1, 2}, 0, {12, 13, 11, 14, 15}}, Case {{1, 2}, 5, {11, 14, 15, 12, 13}},
          Case {{0, 2, 4}, 3, {12, 11, 13, 15, 14}}, Case {{1}, 1, {11, 12, 13, 14, 15}},
          Case {{1}, 2, {11, 12, 13, 14, 15}}}) {
        rows().clear();
        for (const auto& mode : evolution.Modes)
            plot.rows().add(*mode);
        mdlData::moveRows(plot, one.moved, one.target);
        EXPECT_EQ(order(), one.order);
    }
}

TEST_F(MdlData, movesRowsByOneAsFarAsThereIsRoom)
{
    setMode(3, 99);
    mdlData::moveRowsUp(plot, {0, 3});
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 99, 3, 5));
    EXPECT_THAT(order(), ElementsAre(11, 12, 13, 15));
    mdlData::moveRowsUp(plot, {0, 1});
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 99, 3, 5)) << "no room";
    mdlData::moveRowsDown(plot, {0, 2, 4});
    EXPECT_THAT(numbers(), ElementsAre(2, 1, 3, 99, 5));
    EXPECT_THAT(order(), ElementsAre(12, 11, 13, 15));
    mdlData::moveRowsDown(plot, {1, 2});
    EXPECT_THAT(numbers(), ElementsAre(2, 99, 1, 3, 5));
}

TEST_F(MdlData, raisesModesToWhatTheEvolutionDeclaresAndLowersThemToNothing)
{
    evolution.na = 6; // the file declares one mode more than it has
    mdlData::raiseModes(rows(), {0, 4});
    EXPECT_THAT(numbers(), ElementsAre(2, 2, 3, 4, 6));
    EXPECT_THAT(order(), ElementsAre(12, 12, 13, 14));
    mdlData::raiseModes(rows(), {4});
    EXPECT_EQ(numbers().back(), 6);
    mdlData::lowerModes(rows(), {0, 4});
    mdlData::lowerModes(rows(), {0});
    mdlData::lowerModes(rows(), {0});
    EXPECT_THAT(numbers(), ElementsAre(0, 2, 3, 4, 5));
    setMode(1, -3);
    mdlData::lowerModes(rows(), {1});
    EXPECT_EQ(numbers()[1], -4);
    rows().add(Series());
    mdlData::raiseModes(rows(), {5});
    EXPECT_EQ(numbers().back(), 0) << "no evolution says how many there are";
}

TEST_F(MdlData, putsATextIntoOneLine)
{
    EXPECT_EQ(mdlData::inOneLine(QStringLiteral(" a\r\nb\rc\n\n")), QStringLiteral(" a b c"));
}

TEST_F(MdlData, fillsLegendsWithTheNameOrAnEntryOfTheFile)
{
    evolution.Param.legends.add("1", "clean wing");
    evolution.Param.legends.add("2", "altitude 0 ft| full fuel");
    const auto text = [this](std::int32_t index) {
        return mdlData::legendText(rows().at(0), index);
    };
    EXPECT_EQ(text(-1), QStringLiteral("case.ev2"));
    EXPECT_EQ(text(0), QStringLiteral("clean wing"));
    EXPECT_EQ(text(1), QStringLiteral("altitude 0 ft; full fuel"));
    EXPECT_EQ(text(2), std::nullopt);
    EXPECT_EQ(text(-2), std::nullopt);
    EXPECT_FALSE(mdlData::fillLegends(rows(), {0}, 2));
    EXPECT_EQ(look(0).LegendText, QString());
    setMode(3, 0);
    EXPECT_TRUE(mdlData::fillLegends(rows(), {}, 0));
    EXPECT_EQ(look(3).LegendText, QStringLiteral("clean wing")) << "a row without a curve";
}

TEST_F(MdlData, resetsColoursToThoseOfNewCurves)
{
    changeSeries(plot, 1, [](Series& one) { one.LineStyle = penstyle::none; });
    changeSeries(plot, 2, [](Series& one) { one.LineStyle = penstyle::dashDotDot; });
    mdlData::resetColors(rows(), CurvePalette::ColorBlind);
    EXPECT_EQ(series()[1].ColorIndex, rgb(0, 114, 178));
    EXPECT_EQ(series()[2].LineStyle, penstyle::dashDotDot) << "colours only";
    mdlData::resetColors(rows(), CurvePalette::LineStyles);
    EXPECT_EQ(series()[0].LineStyle, penstyle::solid);
    EXPECT_EQ(series()[1].LineStyle, penstyle::none) << "without a line";
    EXPECT_EQ(series()[2].LineStyle, penstyle::dashDot);
    EXPECT_EQ(series()[2].ColorIndex, 0);
}
