// SPDX-License-Identifier: Apache-2.0

// The evolutions and modes of the series of a workspace.

#include "vgfplot/NamedMode.h"
#include "model/EVM.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <utility>

using namespace tarsil;
using ::testing::ElementsAre;

namespace {

SeriesRecord naming(std::int16_t evolution, std::int16_t mode)
{
    SeriesRecord series;
    series.evolution = evolution;
    series.mode = mode;
    return series;
}

class NamedModeTest : public ::testing::Test
{
protected:
    NamedModeTest()
    {
        evolution.appendMode();
        evolution.appendMode();
    }

    EVM evolution;
    const std::vector<EVM*> evolutions {nullptr, &evolution};
};

} // namespace

TEST_F(NamedModeTest, isTheModeOfThatNumberInTheEvolutionOfThatNumber)
{
    const NamedMode named = namedMode(naming(2, 2), evolutions);
    EXPECT_EQ(named.fault, NamedMode::Fault::None);
    EXPECT_EQ(named.evolution, &evolution);
    EXPECT_EQ(named.mode, evolution.Modes[1].get());
}

TEST_F(NamedModeTest, isNoneWithoutFaultWhereTheEvolutionIsNotOpen)
{
    const NamedMode named = namedMode(naming(1, 7), evolutions);
    EXPECT_EQ(named.fault, NamedMode::Fault::None);
    EXPECT_EQ(named.mode, nullptr);
}

TEST_F(NamedModeTest, isAFaultBeyondTheListOrTheModes)
{
    for (const std::int16_t number : std::initializer_list<std::int16_t> {-1, 0, 3}) {
        EXPECT_EQ(namedMode(naming(number, 1), evolutions).fault, NamedMode::Fault::NoEvolution);
        EXPECT_EQ(namedMode(naming(2, number), evolutions).fault, NamedMode::Fault::NoMode);
        EXPECT_EQ(namedMode(naming(2, number), evolutions).mode, nullptr);
    }
}

TEST_F(NamedModeTest, seriesWithoutAModeAreFaultsUnlessTheirEvolutionIsNotOpen)
{
    PlotRecord plot;
    plot.caption = "Wing";
    plot.series = {naming(2, 3), naming(1, 1), naming(2, 2), naming(3, 1)};
    evolution.FileName = "wing.ev2";
    const NamedSeries named = namedSeries(plot, evolutions);
    ASSERT_EQ(named.present.size(), 1U);
    EXPECT_EQ(named.present[0],
              std::pair(std::as_const(plot).series.data() + 2, evolution.Modes[1].get()));
    EXPECT_THAT(named.faultTexts(plot),
                ElementsAre("plot \"Wing\", series 1 is left out: wing.ev2 has no mode at "
                            "position 3; it has 2",
                            "plot \"Wing\", series 4 is left out: there is no modal evolution "
                            "3; the workspace lists 2"));
}

TEST_F(NamedModeTest, evolutionsAreThoseOfAllPlots)
{
    std::vector<PlotRecord> plots(2);
    plots[0].series = {naming(3, 1), naming(9, 1), naming(0, 1)};
    plots[1].series = {naming(1, 99)};
    EXPECT_THAT(namedEvolutions(plots, 4), ElementsAre(true, false, true, false));
}
