// SPDX-License-Identifier: Apache-2.0
#include "plot/PlotControl.h"

#include "support/RecordingContext.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace tarsil;
using test::RecordingContext;

namespace {

/// An item with a black pixel at its corner, a white one 3 pixels to its left and 2 above, and
/// optionally a failure.
class Dot : public PlotControl
{
public:
    bool fails = false;
    bool erases = true;
    QPoint position;

protected:
    void paint(DeviceContext& context) const override
    {
        context.fillRectangle({-3, -2, 1, 1}, rgb(255, 255, 255));
        context.fillRectangle({position, QSize(1, 1)}, 0);
        if (fails)
            throw std::runtime_error("no more");
    }
    bool erasesBeforeDrawing() const override { return erases; }
};

bool isBlack(const QImage& image, int column, int row)
{
    return image.pixelColor(column, row) == QColor(Qt::black);
}

} // namespace

TEST(PlotControl, hasASurfaceThatIncludesWhatHangsOver)
{
    Dot dot;
    dot.setGeometry({100, 50, 20, 10});
    dot.Draw(nullptr);
    EXPECT_EQ(dot.surface().size(), QSize(23, 12));
    EXPECT_EQ(dot.surfacePosition(), QPoint(97, 48));
    EXPECT_TRUE(isBlack(dot.surface(), 3, 2));
}

TEST(PlotControl, erasesWhatWasDrawnBefore)
{
    Dot dot;
    dot.setGeometry({0, 0, 20, 10});
    dot.Draw(nullptr);
    dot.position = {5, 5};
    dot.Draw(nullptr);
    EXPECT_FALSE(isBlack(dot.surface(), 3, 2));
    EXPECT_TRUE(isBlack(dot.surface(), 8, 7));
}

TEST(PlotControl, keepsWhatWasDrawnBeforeWhenItDoesNotErase)
{
    Dot dot;
    dot.erases = false;
    dot.setGeometry({0, 0, 20, 10});
    dot.Draw(nullptr);
    dot.position = {5, 5};
    dot.Draw(nullptr);
    EXPECT_TRUE(isBlack(dot.surface(), 3, 2));
    EXPECT_TRUE(isBlack(dot.surface(), 8, 7));
}

TEST(PlotControl, keepsItsSurfaceWhenItMovesAndLosesItWithANewSize)
{
    Dot dot;
    dot.setGeometry({0, 0, 20, 10});
    dot.Draw(nullptr);
    dot.setGeometry({5, 5, 20, 10});
    EXPECT_TRUE(isBlack(dot.surface(), 3, 2));
    dot.setGeometry({5, 5, 21, 10});
    EXPECT_TRUE(dot.surface().isNull());
}

TEST(PlotControl, drawsNothingOnASurfaceWithoutPixels)
{
    Dot dot;
    dot.Draw(nullptr);
    dot.Cls();
    EXPECT_TRUE(dot.surface().isNull());
}

TEST(PlotControl, drawsAllPixelsOfAFinerScreen)
{
    Dot dot;
    dot.setGeometry({0, 0, 20, 10});
    dot.setDevicePixelRatio(2);
    dot.Draw(nullptr);
    EXPECT_EQ(dot.surface().size(), QSize(46, 24));
    for (const QPoint pixel : {QPoint(6, 4), QPoint(7, 5)})
        EXPECT_TRUE(isBlack(dot.surface(), pixel.x(), pixel.y()));
    EXPECT_FALSE(isBlack(dot.surface(), 8, 4));
}

TEST(PlotControl, coversEveryPixelOfItsSurfaceOnAScreenOfAnyRatio)
{
    Dot dot;
    dot.setGeometry({0, 0, 21, 11});
    dot.setDevicePixelRatio(1.5);
    dot.Draw(nullptr);
    // Columns -3 * 1.5 = -4.5 to 21 * 1.5 = 31.5, rows -2 * 1.5 = -3 to 11 * 1.5 = 16.5.
    EXPECT_EQ(dot.surfacePosition(), QPoint(-5, -3));
    EXPECT_EQ(dot.surface().size(), QSize(37, 20));
}

TEST(PlotControl, setsTheOriginBackAfterAFailureInAnotherContext)
{
    Dot dot;
    dot.fails = true;
    dot.setGeometry({7, 8, 20, 10});
    RecordingContext context;
    EXPECT_THROW(dot.Draw(&context), std::runtime_error);
    EXPECT_EQ(context.calls().front(), "origin 7,8");
    EXPECT_EQ(context.calls().back(), "origin 0,0");
}

namespace {

/// A surface on a full disk.
class FullContext : public RecordingContext
{
public:
    void clearClip() override { throw std::runtime_error("full"); }
};

std::string failureOf(Dot& dot, DeviceContext& context)
{
    try {
        dot.Draw(&context);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(PlotControl, raisesTheFirstFailureOfASurfaceThatAcceptsNothingMore)
{
    Dot dot;
    dot.setGeometry({7, 8, 20, 10});
    FullContext context;
    EXPECT_EQ(failureOf(dot, context), "full");
    dot.fails = true;
    EXPECT_EQ(failureOf(dot, context), "no more");
    EXPECT_EQ(context.calls().back(), "origin 0,0");
}
