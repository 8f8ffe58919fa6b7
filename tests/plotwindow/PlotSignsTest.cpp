// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/PlotSigns.h"

#include "analysis/ModeBuilder.h"
#include "vgfplot/EvmPlot.h"

#include <QPainter>

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

/// A plot of 800 x 600 whose axes are those of a new one. A sign at 350 KEAS, 25 Hz and a damping
/// of -0.125 is in the middle of both canvases.
class PlotSignsTest : public ::testing::Test
{
protected:
    PlotSignsTest() { plot.resize({800, 600}); }

    QPoint aboveMiddle(const ucPlot& canvas, double value) const
    {
        return canvas.geometry().topLeft() + canvas.pixelOf(350, value) - QPoint(0, 10);
    }

    EvmPlot plot;
    const PlotSigns signs = {{350, 25, -0.125, true}};
};

} // namespace

TEST_F(PlotSignsTest, isFoundAboveItsPointOnBothCurves)
{
    EXPECT_EQ(signAt(signs, plot, aboveMiddle(plot.parts().vfPlot, 25)), 0U);
    EXPECT_EQ(signAt(signs, plot, aboveMiddle(plot.parts().vgPlot, -0.125)), 0U);
    EXPECT_EQ(signAt(signs, plot, aboveMiddle(plot.parts().vfPlot, 25) - QPoint(20, 0)),
              std::nullopt);
    EXPECT_EQ(signAt({}, plot, aboveMiddle(plot.parts().vfPlot, 25)), std::nullopt);
}

TEST_F(PlotSignsTest, isTheLastOfSeveralAtOnePoint)
{
    const PlotSigns two = {signs[0], signs[0]};
    EXPECT_EQ(signAt(two, plot, aboveMiddle(plot.parts().vfPlot, 25)), 1U);
}

TEST_F(PlotSignsTest, isNotOutsideTheCanvases)
{
    const PlotSigns outside = {{900, 25, -0.125, true}, {350, 80, -0.5, true}};
    QImage image(plot.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    const QImage before = image;
    QPainter painter(&image);
    paintSigns(outside, plot, painter);
    painter.end();
    EXPECT_EQ(image, before);
}

TEST_F(PlotSignsTest, isPaintedWhereItIsFound)
{
    QImage image(plot.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintSigns(signs, plot, painter);
    painter.end();
    EXPECT_NE(image.pixelColor(aboveMiddle(plot.parts().vfPlot, 25)), QColor(Qt::white));
    EXPECT_NE(image.pixelColor(aboveMiddle(plot.parts().vgPlot, -0.125)), QColor(Qt::white));
}

TEST_F(PlotSignsTest, needsAScale)
{
    plot.SetScale(100, 100, 0, 50, 0, -0.25F);
    EXPECT_EQ(signAt(signs, plot, {300, 200}), std::nullopt);
}
