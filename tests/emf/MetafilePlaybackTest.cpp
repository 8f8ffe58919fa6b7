// SPDX-License-Identifier: Apache-2.0
#include "emf/MetafileSurface.h"
#include "surface/Picture.h"

#include <gtest/gtest.h>

// Compares what a player shows of a metafile with what the screen shows of the same calls.

using namespace tarsil;
using test::MetafileSurface;
using test::Picture;

namespace {

constexpr int row = 10;

} // namespace

TEST(MetafilePlayback, showsTextsAsOnTheScreen)
{
    const auto drawTexts = [](DeviceContext& context) {
        const Font plain {QStringLiteral("Arial"), 10};
        const Font bold {QStringLiteral("Arial"), 14, true};
        context.drawText({10, 10}, QStringLiteral("V(keas) 0.25 fil AVAT"), plain, 0,
                         TextAlignment::TopLeft);
        context.drawText({390, 40}, QStringLiteral("Tab\tstops"), plain, rgb(255, 0, 0),
                         TextAlignment::TopRight);
        context.drawText({200, 150}, QStringLiteral("Mode 12, M = 0.8\r\n"), bold, 0,
                         TextAlignment::TopCenter);
        context.drawText({200, 220}, QStringLiteral("\u00e9t\u00e9 \u03b1 \U0001D6FC Hz"), bold,
                         rgb(0, 0, 255), TextAlignment::BottomCenter);
        context.drawText({10, 280}, QStringLiteral("base, line"), plain, 0,
                         TextAlignment::BaselineLeft);
    };
    MetafileSurface metafile;
    Picture screen;
    drawTexts(metafile.context());
    drawTexts(screen.context());
    EXPECT_EQ(metafile.image(), screen.image());
    EXPECT_FALSE(screen.ink().isEmpty());
}

TEST(MetafilePlayback, showsFillsAsOnTheScreen)
{
    const auto drawFills = [](DeviceContext& context) {
        context.setOrigin({7, 9});
        context.fillRectangle({0, 0, 300, 200}, rgb(255, 0, 0));
        context.setClip({50, 60, 100, 80});
        context.fillRectangle({0, 0, 1000, 100}, rgb(0, 255, 0));
        context.clearClip();
        context.fillRectangle({290, 190, 50, 50}, rgb(0, 0, 255));
    };
    MetafileSurface metafile;
    Picture screen;
    drawFills(metafile.context());
    drawFills(screen.context());
    EXPECT_EQ(metafile.image(), screen.image());
}

TEST(MetafilePlayback, beginsTheDashesAnewWithEverySegment)
{
    // Two connected segments of 20 pixels; the dash pattern is 18 on and 6 off.
    MetafileSurface metafile;
    metafile.context().drawLine({0, row}, {20, row}, {penstyle::dash, 1, 0});
    metafile.context().drawLine({20, row}, {40, row}, {penstyle::dash, 1, 0});
    const QImage image = metafile.image();
    EXPECT_EQ(image.pixelColor(10, row), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(19, row),
              QColor(Qt::white)); // gap of the first segment, from pixel 18 on
    EXPECT_EQ(image.pixelColor(25, row),
              QColor(Qt::black)); // would be a gap if the pattern continued
    EXPECT_EQ(image.pixelColor(39, row),
              QColor(Qt::white)); // gap of the second segment, from pixel 38 on
}

TEST(MetafilePlayback, leavesTheGapsOfDashedLinesTransparentUnderEveryClip)
{
    MetafileSurface metafile;
    DeviceContext& context = metafile.context();
    context.fillRectangle({0, 0, 400, 300}, rgb(255, 0, 0));
    context.drawLine({0, row}, {100, row}, {penstyle::dash, 1, 0});
    context.setClip({0, 0, 200, 200});
    context.drawLine({0, 2 * row}, {100, 2 * row}, {penstyle::dash, 1, 0});
    context.clearClip();
    context.drawLine({0, 3 * row}, {100, 3 * row}, {penstyle::dash, 1, 0});
    const QImage image = metafile.image();
    for (const int dashedRow : {row, 2 * row, 3 * row}) {
        EXPECT_EQ(image.pixelColor(10, dashedRow), QColor(Qt::black)) << dashedRow;
        EXPECT_EQ(image.pixelColor(21, dashedRow), QColor(Qt::red)) << dashedRow;
    }
}

TEST(MetafilePlayback, showsALongCurveWithoutAGap)
{
    MetafileSurface metafile;
    const Pen pen {penstyle::solid, 1, 0};
    for (int i = 0; i < 10000; ++i) // along one row, 200 pixels each way
        metafile.context().drawLine({i % 200, row}, {(i + 1) % 200, row}, pen);
    EXPECT_EQ(metafile.ink(), QRect(QPoint(0, row), QPoint(199, row)));
}

TEST(MetafilePlayback, showsLinesFromFarAwayWithTheirSlope)
{
    constexpr int far = 1 << 26;
    MetafileSurface metafile;
    metafile.context().drawLine({-far, 200 - far / 2}, {far, 200 + far / 2},
                                {penstyle::solid, 1, 0});
    const QImage image = metafile.image();
    for (int k = 0; k < 100; k += 20) // slope one half: through the pixels (2 k, 200 + k)
        EXPECT_EQ(image.pixelColor(2 * k, 200 + k), QColor(Qt::black)) << k;
}

TEST(MetafilePlayback, showsAllTextWithinTheBounds)
{
    // Slanted letters extend beyond their box: the j to the left and downwards, the f to the right.
    for (const double points : {6.0, 8.0, 12.0, 30.0, 60.0}) {
        const Font slanted {QStringLiteral("Times New Roman"), points, true, true};
        EmfMemory memory;
        MetafileContext context(memory, {});
        context.drawText({200, 100}, QStringLiteral("jf"), slanted, 0, TextAlignment::TopCenter);
        context.close();
        const test::EmfContents contents = test::readMetafile(memory.bytes());
        const QRect ink = test::inkOf(test::playMetafile(contents, {400, 300}));
        EXPECT_FALSE(ink.isEmpty());
        EXPECT_TRUE(contents.bounds.contains(ink)) << points;
    }
}
