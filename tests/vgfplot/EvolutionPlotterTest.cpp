// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/EvolutionPlotter.h"

#include "analysis/ModeBuilder.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PlotFit.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

using namespace tarsil;
using test::addMode;

namespace {

/// An evolution of `modes` modes, level at 10, 20, ... Hz from 100 to 600 KEAS.
std::unique_ptr<EVM> evolutionOf(const std::string& name, std::int16_t modes, float mach = 0)
{
    auto evolution = std::make_unique<EVM>();
    evolution->FileName = name;
    evolution->Param.Airplane = "GOLAND WING";
    evolution->Param.Mass = "CLEAN";
    evolution->Param.Mach = mach;
    evolution->flutterMethod = "PK";
    for (std::int16_t i = 1; i <= modes; ++i) {
        const float frequency = 10.0F * static_cast<float>(i);
        addMode(*evolution, i, {{100, -0.125F, frequency}, {600, 0.125F, frequency}});
    }
    return evolution;
}

class EvolutionPlotter : public ::testing::Test
{
protected:
    EvolutionPlotter() : one(evolutionOf("one.evm", 3, 0.5F)), two(evolutionOf("two.evm", 2, 0.8F))
    { }

    /// Draws every mode of these evolutions.
    std::size_t plotAll(const std::vector<EVM*>& evolutions)
    {
        std::vector<EvolutionCurves> files;
        for (EVM* evolution : evolutions)
            files.push_back(allCurvesOf(*evolution));
        return plotCurves(plot, files);
    }

    std::unique_ptr<EVM> one;
    std::unique_ptr<EVM> two;
    EvmPlot plot;
};

} // namespace

TEST_F(EvolutionPlotter, drawsOneCurveForEachMode)
{
    plotAll({one.get(), two.get()});
    const SeriesList& series = plot.SeriesCollection();
    ASSERT_EQ(series.size(), 5U);
    EXPECT_EQ(series[0].Mode->Id, 1);
    EXPECT_EQ(series[2].Mode->Id, 3);
    EXPECT_EQ(series[3].Mode->Id, 1);
    EXPECT_EQ(series[0].LegendText, QStringLiteral("one.evm"));
    EXPECT_EQ(series[4].LegendText, QStringLiteral("two.evm"));
}

TEST_F(EvolutionPlotter, fitsTheAxesOfAnEmptyPlotOnly)
{
    plotAll({one.get()});
    const PlotAxes fitted = plot.axes();
    EXPECT_GE(fitted.speed.max, 600.0F);
    EXPECT_GE(fitted.frequency.max, 30.0F);
    EXPECT_LE(fitted.damping.max, -0.125F);
    PlotAxes own = fitted;
    own.speed.max = 123;
    plot.setAxes(own);
    plotAll({two.get()});
    EXPECT_EQ(plot.axes(), own) << "the user's scale stays";
}

TEST_F(EvolutionPlotter, drawsALineAtDampingZeroWhereTheSpeedAxisIsElsewhere)
{
    RefLine own;
    own.Caption = QStringLiteral("required");
    own.Y1 = own.Y2 = 0.03F;
    plot.references().restoreDampingLines({own});
    plotAll({one.get()});
    ASSERT_GT(plot.axes().damping.min, 0) << "the speed axis is above zero";
    const auto expectLine = [&] {
        ASSERT_EQ(plot.references().dampingLines().size(), 2U);
        EXPECT_EQ(plot.references().dampingLines()[0], own);
        const RefLine& line = plot.references().dampingLines()[1];
        EXPECT_EQ(line.Caption, QStringLiteral("g = 0"));
        EXPECT_EQ(line.Y1, 0);
        EXPECT_EQ(line.Y2, 0);
        EXPECT_EQ(line.X1, 0);
        EXPECT_EQ(line.X2, plot.axes().speed.max);
    };
    expectLine();
    PlotAxes zoomed = plot.axes();
    zoomed.speed.max = 200;
    plot.setAxes(zoomed);
    fitToCurves(plot);
    expectLine();
    removeZeroLine(plot);
    EXPECT_EQ(plot.references().dampingLines(), std::vector {own});
}

TEST_F(EvolutionPlotter, fitsNothingWithoutCurves)
{
    fitToCurves(plot);
    EXPECT_EQ(plot.axes(), PlotAxes());
    EXPECT_TRUE(plot.references().dampingLines().empty());
}

TEST_F(EvolutionPlotter, leavesAScaleAloneThatTheUserSetBefore)
{
    PlotAxes own;
    own.speed.max = 123;
    plot.setAxes(own);
    plotAll({one.get()});
    EXPECT_EQ(plot.axes(), own);
}

TEST_F(EvolutionPlotter, drawsTheFirstOnesOfTooMany)
{
    std::vector<std::unique_ptr<EVM>> many;
    std::vector<EVM*> evolutions;
    for (int i = 0; i < 60; ++i) {
        many.push_back(evolutionOf("many.evm", 10));
        evolutions.push_back(many.back().get());
    }
    EXPECT_EQ(plotAll(evolutions), 50U) << "500 curves";
    EXPECT_EQ(plot.SeriesCollection().size(), 500U);
    EXPECT_EQ(plotAll({one.get()}), 0U);
}

TEST_F(EvolutionPlotter, headsThePlotWithItsCase)
{
    plotAll({one.get()});
    EXPECT_EQ(plot.Header().Text().toStdString(),
              "GOLAND WING - CLEAN\r\nPK Method - Mach No. 0.50");
    EXPECT_EQ(plot.Mechanism().Text().toStdString(), "one.evm");
}

TEST_F(EvolutionPlotter, headsThePlotWithWhatAllFilesHaveInCommon)
{
    plotAll({one.get(), two.get()});
    EXPECT_EQ(plot.Header().Text().toStdString(), "GOLAND WING - CLEAN\r\nPK Method");
    EXPECT_EQ(plot.Mechanism().Text().toStdString(), "one.evm, two.evm");
}

TEST_F(EvolutionPlotter, leavesTextsOfTheUserAlone)
{
    plot.texts().setText(TextBox::Header, QStringLiteral("my header"));
    plotAll({one.get()});
    EXPECT_EQ(plot.Header().Text(), QStringLiteral("my header"));
}

TEST_F(EvolutionPlotter, givesEachFileALineStyleOfItsOwnAlsoWhenItComesLater)
{
    plotAll({one.get()});
    plotAll({two.get()});
    const SeriesList& series = plot.SeriesCollection();
    ASSERT_EQ(series.size(), 5U);
    EXPECT_EQ(series[0].LineStyle, penstyle::solid);
    EXPECT_EQ(series[2].LineStyle, penstyle::solid);
    EXPECT_NE(series[3].LineStyle, penstyle::solid);
    EXPECT_EQ(series[4].LineStyle, series[3].LineStyle);
}

TEST_F(EvolutionPlotter, putsMarkersOfNeighbouringCurvesAtDifferentPoints)
{
    for (std::int16_t i = 4; i <= 8; ++i)
        addMode(*one, i, {{100, 0, 10}}).Points.resize(40);
    plotAll({one.get()});
    std::vector<int> spacings;
    for (const Series& series : plot.SeriesCollection())
        spacings.push_back(series.MarkerSpacing);
    // A quarter of 40 points is 10, and a fifth of that 2; two points have one marker.
    EXPECT_EQ(spacings, (std::vector<int> {2, 2, 2, 10, 8, 12, 10, 8}));
}

TEST_F(EvolutionPlotter, doesNothingWithoutEvolutions)
{
    plotAll({});
    EXPECT_TRUE(plot.SeriesCollection().empty());
    EXPECT_EQ(plot.axes().bounds(), PlotAxes().bounds());
}

TEST_F(EvolutionPlotter, drawsTheModesAskedForWithTheMarkersAskedFor)
{
    const EvolutionCurves curves {one.get(), {one->Modes[2].get(), one->Modes[0].get()}};
    plotCurves(plot, {curves}, {MarkerKind::ParticipationFactor, 3, 7, 12});
    const SeriesList& series = plot.SeriesCollection();
    ASSERT_EQ(series.size(), 2U);
    EXPECT_EQ(series[0].Mode->Id, 3);
    EXPECT_EQ(series[1].Mode->Id, 1);
    EXPECT_EQ(series[1].MarkerStyle, markerNumber(MarkerKind::ParticipationFactor));
    EXPECT_EQ(series[1].IthMpf, 3);
    EXPECT_EQ(series[1].MarkerSpacing, 7);
    EXPECT_EQ(series[1].MarkerSize, 12);
}

TEST_F(EvolutionPlotter, tellsFilesApartByStyleAndCurvesByTheColoursOfThePalette)
{
    plotCurves(plot, {allCurvesOf(*one), allCurvesOf(*two)}, {}, CurvePalette::ColorBlind);
    const SeriesList& series = plot.SeriesCollection();
    ASSERT_EQ(series.size(), 5U);
    EXPECT_EQ(series[0].ColorIndex, rgb(0, 0, 0));
    EXPECT_EQ(series[1].ColorIndex, rgb(0, 114, 178));
    EXPECT_EQ(series[1].MarkerForegroundColor, series[1].ColorIndex);
    EXPECT_EQ(series[2].LineStyle, penstyle::solid);
    EXPECT_EQ(series[3].LineStyle, penstyle::dot) << "the second file";
}

TEST_F(EvolutionPlotter, tellsCurvesApartByStyleWithoutColours)
{
    plotCurves(plot, {allCurvesOf(*one), allCurvesOf(*two)}, {}, CurvePalette::LineStyles);
    std::set<int> styles;
    for (const Series& series : plot.SeriesCollection()) {
        EXPECT_EQ(series.ColorIndex, 0);
        EXPECT_EQ(series.MarkerForegroundColor, 0);
        styles.insert(series.LineStyle);
    }
    EXPECT_EQ(styles.size(), 5U);
}
