// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotLayout.h"

#include <gtest/gtest.h>

using tarsil::BoxSizes;
using tarsil::layOutPlot;
using tarsil::PlotLayout;
using tarsil::shownRectangle;
using tarsil::TitleSizes;

namespace {

constexpr TitleSizes titles {{40, 12}, {30, 14}, {10, 16}};

const BoxSizes boxes {{100, 20}, 4, {{50, 30}, std::nullopt}, {{60, 10}, std::nullopt}};

PlotLayout layoutOf(QSize plot)
{
    return layOutPlot(plot, titles, boxes);
}

/// The upper left corner of a legend that nobody has moved.
QPoint usualLegend(QSize plot, QSize legend)
{
    BoxSizes sizes = boxes;
    sizes.legend.size = legend;
    return layOutPlot(plot, titles, sizes).legend.position;
}

} // namespace

TEST(PlotLayout, putsTheCanvasesAtTheirFractionsOfThePlot)
{
    const PlotLayout layout = layoutOf({800, 600});
    // 0.1 and 0.75 of 800, 0.13 of 600; the half is twice 0.21 of 600.
    EXPECT_EQ(layout.vfPlot, QRect(80, 78, 600, 252));
    EXPECT_EQ(layout.vgPlot, QRect(80, 78, 600, 504));
}

TEST(PlotLayout, makesTheDampingCanvasTwoFrequencyCanvasesHighInEverySize)
{
    for (int height = 1; height < 1000; ++height) {
        const PlotLayout layout = layoutOf({height + 7, height});
        ASSERT_EQ(layout.vgPlot.height(), 2 * layout.vfPlot.height()) << height;
        ASSERT_EQ(layout.vgPlot.topLeft(), layout.vfPlot.topLeft()) << height;
        ASSERT_EQ(layout.vgPlot.width(), layout.vfPlot.width()) << height;
    }
}

TEST(PlotLayout, letsTheAxesMeetAtTheLeftEndOfTheSpeedAxis)
{
    const PlotLayout layout = layoutOf({800, 600});
    EXPECT_EQ(layout.velAxis, QRect(80, 330 - 32, 600, 64));
    EXPECT_EQ(layout.freqAxis, QRect(80 - 60, 78, 120, 252));
    EXPECT_EQ(layout.gAxis, QRect(80 - 60, 330, 120, 252));
}

TEST(PlotLayout, putsTheTitlesAtTheEndsOfTheirAxes)
{
    const PlotLayout layout = layoutOf({800, 600});
    EXPECT_EQ(layout.velAxisLabel, QRect(80 + 600 + 8, 330 - 6, 40, 12));
    EXPECT_EQ(layout.freqAxislabel, QRect(80 + 24, 78 - 7, 30, 14));
    EXPECT_EQ(layout.gAxisLabel, QRect(80 + 24, 582 - 8, 10, 16));
}

TEST(PlotLayout, runsTheHeaderFromTheFrequencyTitleToTheRightEdge)
{
    const QRect header = layoutOf({800, 600}).header.shown;
    EXPECT_EQ(header.topLeft(), QPoint(134, 4));
    EXPECT_EQ(header.left() + header.width(), 764); // 0.955 of 800
    EXPECT_EQ(header.height(), 20);
}

TEST(PlotLayout, makesTheHeaderAsWideAsItsText)
{
    BoxSizes wide = boxes;
    wide.header = {1000, 20};
    EXPECT_EQ(layOutPlot({800, 600}, titles, wide).header.shown, QRect(134, 4, 1000, 20));
    const TitleSizes longTitle {{40, 12}, {900, 14}, {10, 16}};
    EXPECT_EQ(layOutPlot({800, 600}, longTitle, boxes).header.shown, QRect(1004, 4, 100, 20));
}

TEST(PlotLayout, showsTheHeaderWithinAPlotThatIsLowerThanItsRow)
{
    BoxSizes low = boxes;
    low.headerTop = 590;
    const PlotLayout layout = layOutPlot({800, 600}, titles, low);
    EXPECT_EQ(layout.header.position, QPoint(134, 590));
    EXPECT_EQ(layout.header.shown.topLeft(), QPoint(134, 580));
    EXPECT_EQ(layout.mechanism.position, QPoint(134, 600)) << "below the header as it is shown";
    EXPECT_EQ(layout.mechanism.shown.topLeft(), QPoint(134, 590));
}

TEST(PlotLayout, putsTheLegendRightOfTheCurvesAsFarAsItFits)
{
    EXPECT_EQ(usualLegend({800, 600}, {50, 30}), QPoint(688, 78)); // 0.86 of 800
    EXPECT_EQ(usualLegend({800, 600}, {200, 30}), QPoint(592, 78)); // 8 from the edge
    EXPECT_EQ(usualLegend({800, 600}, {900, 30}), QPoint(0, 78));
}

TEST(PlotLayout, putsTheSubtitleBelowTheHeader)
{
    EXPECT_EQ(layoutOf({800, 600}).mechanism.shown, QRect(134, 24, 60, 10));
}

TEST(PlotLayout, showsAMovedBoxAtItsPositionOrTheNearestOneInThePlot)
{
    BoxSizes moved = boxes;
    moved.legend.position = QPoint(300, 200);
    moved.mechanism.position = QPoint(790, -50);
    const PlotLayout layout = layOutPlot({800, 600}, titles, moved);
    EXPECT_EQ(layout.legend.shown, QRect(300, 200, 50, 30));
    EXPECT_EQ(layout.mechanism.position, QPoint(790, -50));
    EXPECT_EQ(layout.mechanism.shown, QRect(740, 0, 60, 10));
}

TEST(PlotLayout, coversThePlotWithABoxThatIsLarger)
{
    EXPECT_EQ(shownRectangle({-150, 500, 1000, 200}, {800, 600}), QRect(-150, 400, 1000, 200));
    EXPECT_EQ(shownRectangle({-500, 500, 1000, 200}, {800, 600}), QRect(-200, 400, 1000, 200));
    EXPECT_EQ(shownRectangle({50, 500, 1000, 200}, {800, 600}), QRect(0, 400, 1000, 200));
}
