// SPDX-License-Identifier: Apache-2.0

// The positions of the drawn items of a V-g-f plot.

#include "surface/Picture.h"
#include "vgfplot/EvmPlot.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tarsil;

namespace {

class EvmPlotLayout : public ::testing::TestWithParam<QSize>
{
protected:
    EvmPlotLayout() : width(GetParam().width()), height(GetParam().height())
    {
        plot.resize(GetParam());
    }

    /// Expects a label with its left edge at `left` and its middle at `middle`, to a pixel.
    static void expectLabel(const trspLabel& label, double left, double middle)
    {
        EXPECT_NEAR(label.Left(), left, 1);
        EXPECT_NEAR(label.Top() + label.Height() / 2.0, middle, 1.5);
    }

    EvmPlot plot;
    const double width;
    const double height;
};

// The upper half has an even number of pixels, so its lower edge is up to one pixel off, plus half
// a pixel for the upper edge.
constexpr double rowTolerance = 1.6;
constexpr double columnTolerance = 0.5;

} // namespace

TEST_P(EvmPlotLayout, putsTheCanvasesAtTheirFractions)
{
    EXPECT_NEAR(plot.parts().vgPlot.Top(), 0.13 * height, 0.5);
    EXPECT_NEAR(plot.parts().vgPlot.Left(), 0.1 * width, columnTolerance);
    EXPECT_NEAR(plot.parts().vgPlot.Width(), 0.75 * width, columnTolerance);
    EXPECT_NEAR(plot.parts().vgPlot.Height(), 0.84 * height, 2 * rowTolerance);
}

TEST_P(EvmPlotLayout, putsTheSpeedAxisBetweenTheHalves)
{
    // The half height 0.42 and the top 0.1 + 0.03 together.
    EXPECT_NEAR(plot.parts().velAxis.Top() + plot.parts().velAxis.Height() / 2.0, 0.55 * height,
                rowTolerance);
    EXPECT_EQ(plot.parts().velAxis.Top() + plot.parts().velAxis.Height() / 2,
              plot.parts().vfPlot.Top() + plot.parts().vfPlot.Height());
    EXPECT_EQ(plot.parts().velAxis.Left(), plot.parts().vgPlot.Left());
    EXPECT_EQ(plot.parts().velAxis.Width(), plot.parts().vgPlot.Width());
}

TEST_P(EvmPlotLayout, putsTheVerticalAxesOnTheOrigin)
{
    const int origin = plot.parts().vfPlot.Top() + plot.parts().vfPlot.Height();
    for (const yAxis* axis : {&plot.parts().freqAxis, &plot.parts().gAxis}) {
        EXPECT_EQ(axis->Left() + axis->Width() / 2, plot.parts().vgPlot.Left());
        EXPECT_EQ(axis->Height(), plot.parts().vfPlot.Height());
    }
    EXPECT_EQ(plot.parts().freqAxis.Top() + plot.parts().freqAxis.Height(), origin);
    EXPECT_EQ(plot.parts().gAxis.Top(), origin);
}

TEST_P(EvmPlotLayout, putsTheTitlesAtTheEndsOfTheirAxes)
{
    expectLabel(plot.parts().velAxisLabel, 0.1 * width + 0.75 * width + 0.01 * width,
                plot.parts().vfPlot.Top() + plot.parts().vfPlot.Height());
    expectLabel(plot.parts().freqAxislabel, 0.1 * width + plot.parts().freqAxis.Width() / 5.0,
                plot.parts().freqAxis.Top());
    expectLabel(plot.parts().gAxisLabel, 0.1 * width + plot.parts().gAxis.Width() / 5.0,
                plot.parts().gAxis.Top() + plot.parts().gAxis.Height());
}

TEST_P(EvmPlotLayout, runsTheHeaderFromTheFrequencyTitleToTheRightEdge)
{
    const int left = plot.parts().freqAxislabel.Left() + plot.parts().freqAxislabel.Width();
    EXPECT_EQ(plot.Header().Left(), left);
    const double right = (1 - 0.045) * width;
    if (right - left > 200) { // otherwise the text of the header needs more
        EXPECT_NEAR(plot.Header().Left() + plot.Header().Width(), right, 0.5);
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, EvmPlotLayout,
                         ::testing::Values(QSize(800, 600), QSize(960, 720), QSize(1919, 1079),
                                           QSize(641, 487), QSize(500, 333), QSize(333, 500)));

TEST(EvmPlotLayoutAt800x600, standsOnThePixelsOfAHandCalculation)
{
    EvmPlot plot;
    plot.resize({800, 600});
    // Left 0.1 * 800 = 80, width 0.75 * 800 = 600, top 0.13 * 600 = 78, half 0.42 * 600 = 252, so
    // the speed axis is row 78 + 252 = 330. The axes are 64 high and 120 wide around their lines.
    EXPECT_EQ(plot.parts().vgPlot.geometry(), QRect(80, 78, 600, 504));
    EXPECT_EQ(plot.parts().vfPlot.geometry(), QRect(80, 78, 600, 252));
    EXPECT_EQ(plot.parts().velAxis.geometry(), QRect(80, 298, 600, 64));
    EXPECT_EQ(plot.parts().freqAxis.geometry(), QRect(20, 78, 120, 252));
    EXPECT_EQ(plot.parts().gAxis.geometry(), QRect(20, 330, 120, 252));
    // Titles: 600 + 80 + 0.01 * 800 = 688, and 120 / 5 + 80 = 104 twice.
    EXPECT_EQ(plot.parts().velAxisLabel.Left(), 688);
    EXPECT_EQ(plot.parts().freqAxislabel.Left(), 104);
    EXPECT_EQ(plot.parts().gAxisLabel.Left(), 104);
    EXPECT_EQ(plot.parts().gAxisLabel.Top(), 330 + 252 - plot.parts().gAxisLabel.Height() / 2);
    // The header ends at 800 - 0.045 * 800 = 764.
    EXPECT_EQ(plot.Header().geometry().right() + 1, 764);
}

TEST(EvmPlotCanvases, areExactlyHalfAndWholeAtEverySize)
{
    EvmPlot plot;
    const auto check = [&plot](int width, int height) {
        plot.resize({width, height});
        const QRect whole = plot.parts().vgPlot.geometry();
        const QRect half = plot.parts().vfPlot.geometry();
        ASSERT_EQ(whole.height(), 2 * half.height()) << width << " x " << height;
        ASSERT_EQ(whole.topLeft(), half.topLeft()) << width << " x " << height;
        ASSERT_EQ(whole.width(), half.width()) << width << " x " << height;
    };
    for (int size = 1; size <= 400; ++size) {
        check(size, size);
        check(size, 401 - size);
        check(400, size);
    }
}

TEST(EvmPlotCanvases, surviveASizeOfNothing)
{
    EvmPlot plot;
    for (const QSize size : {QSize(0, 0), QSize(-5, 3), QSize(1, 1), QSize(3, 2)}) {
        plot.resize(size);
        plot.plot();
        EXPECT_FALSE(plot.Image().isNull());
        EXPECT_GE(plot.size().width(), 1);
        EXPECT_GE(plot.size().height(), 1);
    }
}
