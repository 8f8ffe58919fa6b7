#include "vgfplot/PlotLayout.h"

#include <gtest/gtest.h>

using tarsil::layOutPlot;
using tarsil::PlotLayout;
using tarsil::TitleSizes;
using tarsil::usualLegendPosition;
using tarsil::usualSubtitlePosition;

namespace {

constexpr TitleSizes titles {{40, 12}, {30, 14}, {10, 16}};

PlotLayout layoutOf(QSize plot)
{
    return layOutPlot(plot, titles);
}

} // namespace

TEST(PlotLayout, putsTheCanvasesAtTheirFractionsOfThePlot)
{
    const PlotLayout layout = layoutOf({800, 600});
    // 0.1 and 0.75 of 800, 0.13 of 600; a half is twice 0.21 of 600.
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

TEST(PlotLayout, beginsTheHeaderAfterTheFrequencyTitle)
{
    const PlotLayout layout = layoutOf({800, 600});
    EXPECT_EQ(layout.headerLeft, 134);
    EXPECT_EQ(layout.headerLeft + layout.headerWidth, 764); // 0.955 of 800
    EXPECT_EQ(layOutPlot({800, 600}, {{40, 12}, {900, 14}, {10, 16}}).headerWidth, 0);
}

TEST(PlotLayout, putsTheLegendRightOfTheCurvesAsFarAsItFits)
{
    const QSize plot(800, 600);
    const PlotLayout layout = layoutOf(plot);
    EXPECT_EQ(usualLegendPosition(plot, layout, {50, 30}), QPoint(688, 78)); // 0.86 of 800
    EXPECT_EQ(usualLegendPosition(plot, layout, {200, 30}), QPoint(592, 78)); // 8 from the edge
    EXPECT_EQ(usualLegendPosition(plot, layout, {900, 30}), QPoint(0, 78));
}

TEST(PlotLayout, putsTheSubtitleBelowTheHeader)
{
    EXPECT_EQ(usualSubtitlePosition(layoutOf({800, 600}), {134, 4, 630, 40}), QPoint(134, 44));
}
