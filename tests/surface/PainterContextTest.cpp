// SPDX-License-Identifier: Apache-2.0
#include "surface/Picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

using namespace tarsil;
using test::Picture;

namespace {

constexpr int row = 10;

/// The amount of black in the columns from `first` to `last` (exclusive) of a row.
double inkOfRow(const QImage& image, int first, int last)
{
    double ink = 0;
    for (int column = first; column < last; ++column)
        ink += (255 - qGray(image.pixel(column, row))) / 255.0;
    return ink;
}

/// The ink of a row of segments of `length` pixels from column 0 to 400, one call each.
double inkOfSegments(int style, int length)
{
    Picture picture;
    for (int column = 0; column < 400; column += length)
        picture.context().drawLine({column, row}, {column + length, row}, {style, 1, 0});
    return inkOfRow(picture.image(), 0, 400);
}

int percentOfSolid(int style, int length)
{
    const double solid = inkOfSegments(penstyle::solid, length);
    return static_cast<int>(std::lround(100 * inkOfSegments(style, length) / solid));
}

const std::vector<QPoint> zigzag = {{10, 40},   {60, 40},   {60, 90},   {130, 20},
                                    {200, 130}, {201, 131}, {300, 133}, {380, 30}};

/// The picture of the zigzag: drawn at once if `joined`, otherwise with each segment completed
/// before the next.
QImage zigzagPicture(const Pen& pen, bool joined)
{
    Picture picture;
    for (std::size_t i = 1; i < zigzag.size(); ++i) {
        picture.context().drawLine(zigzag[i - 1], zigzag[i], pen);
        if (!joined)
            picture.context().flush();
    }
    return picture.image();
}

int largestDifference(const QImage& one, const QImage& other)
{
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            largest =
                std::max(largest, std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))));
    }
    return largest;
}

QImage lineWith(const Pen& pen)
{
    Picture picture;
    picture.context().drawLine({10, 20}, {390, 200}, pen);
    return picture.image();
}

} // namespace

// Measured on the original platform's pens: the share of inked pixels in a row of segments of 2, 5,
// 10, 20 and 400 pixels, each with its own pen. It follows from the patterns 18 6 / 3 3 / 9 6 3 6 /
// 9 3 3 3 3 3 (pixels on and off) if every segment begins with a whole dash: of 20 pixels of a
// dashed line 18 are inked, 90 %; of 400 pixels 16 times 18 and 16 more, 304 or 76 %.
struct MeasuredInk
{
    int style;
    int percent[5];
};

class DashedPen : public ::testing::TestWithParam<MeasuredInk>
{ };

TEST_P(DashedPen, beginsItsPatternAnewWithEverySegment)
{
    constexpr int lengths[] = {2, 5, 10, 20, 400};
    for (std::size_t i = 0; i < std::size(lengths); ++i)
        EXPECT_NEAR(percentOfSolid(GetParam().style, lengths[i]), GetParam().percent[i], 1)
            << "segments of " << lengths[i] << " pixels";
}

INSTANTIATE_TEST_SUITE_P(EveryStyle, DashedPen,
                         ::testing::Values(MeasuredInk {penstyle::dash, {100, 100, 100, 90, 76}},
                                           MeasuredInk {penstyle::dot, {100, 60, 60, 55, 50}},
                                           MeasuredInk {penstyle::dashDot, {100, 100, 90, 60, 50}},
                                           MeasuredInk {penstyle::dashDotDot,
                                                        {100, 100, 90, 70, 63}}));

TEST(PainterContext, leavesTheGapsOfDashedLinesTransparent)
{
    Picture picture;
    picture.context().fillRectangle({0, 0, 400, 300}, rgb(255, 0, 0));
    picture.context().drawLine({0, row}, {100, row}, {penstyle::dash, 1, 0});
    // Pixels 18 to 24 of the line are its first gap.
    EXPECT_EQ(picture.image().pixelColor(21, row), QColor(255, 0, 0));
    EXPECT_EQ(picture.image().pixelColor(10, row), QColor(0, 0, 0));
}

TEST(PainterContext, drawsDashedPensWiderThanOnePixelSolid)
{
    for (const int style :
         {penstyle::dash, penstyle::dot, penstyle::dashDot, penstyle::dashDotDot}) {
        EXPECT_EQ(lineWith({style, 2, 0}), lineWith({penstyle::solid, 2, 0})) << style;
        EXPECT_NE(lineWith({style, 1, 0}), lineWith({penstyle::solid, 1, 0})) << style;
    }
}

TEST(PainterContext, drawsUnknownPenStylesSolid)
{
    for (const int style : {-1, 6, 1000})
        EXPECT_EQ(lineWith({style, 1, 0}), lineWith({penstyle::solid, 1, 0})) << style;
}

TEST(PainterContext, drawsPensOfWidthZeroOnePixelWide)
{
    for (const int style : {penstyle::solid, penstyle::dot})
        EXPECT_EQ(lineWith({style, 0, 0}), lineWith({style, 1, 0})) << style;
}

TEST(PainterContext, roundsExactLinesUnlessItKeepsFractions)
{
    const auto inkOf = [](const LineDrawing& lines) {
        Picture picture(lines);
        picture.context().drawExactLine({10, 20.4}, {30, 20.4}, {penstyle::solid, 1, 0});
        return picture.ink();
    };
    EXPECT_EQ(inkOf({}), QRect(QPoint(10, 20), QPoint(30, 20)));
    // From 0.4 below the centre of row 20 the line reaches into row 21.
    EXPECT_EQ(inkOf({true, 1}), QRect(QPoint(10, 20), QPoint(30, 21)));
}

TEST(PainterContext, widensNarrowLines)
{
    Picture picture(LineDrawing {false, 5});
    picture.context().drawLine({100, 50}, {200, 50}, {penstyle::solid, 0, 0});
    EXPECT_EQ(picture.ink().top(), 48);
    EXPECT_EQ(picture.ink().bottom(), 52);
}

TEST(PainterContext, readsRedFromTheLowByteOfAColour)
{
    Picture picture;
    picture.context().fillRectangle({0, 0, 10, 10}, 0x00010203);
    EXPECT_EQ(picture.image().pixelColor(5, 5), QColor(3, 2, 1));
}

TEST(PainterContext, joinsSegmentsInLineToTheSamePictureAsSingleOnes)
{
    Picture joined;
    Picture single;
    for (int column = 10; column < 390; column += 7) {
        joined.context().drawLine({column, row}, {column + 7, row}, {penstyle::solid, 1, 0});
        single.context().drawLine({column, row}, {column + 7, row}, {penstyle::solid, 1, 0});
        single.context().flush();
    }
    EXPECT_EQ(joined.image(), single.image());
}

TEST(PainterContext, joinsThinSegmentsToTheSamePictureAsSingleOnes)
{
    for (const int width : {0, 1}) {
        const Pen pen {penstyle::solid, width, 0};
        EXPECT_EQ(zigzagPicture(pen, true), zigzagPicture(pen, false)) << "width " << width;
    }
}

TEST(PainterContext, joinsSegmentsAlongRowsAndColumnsToTheSamePictureAsSingleOnes)
{
    // Along a row, on a spot, back along it, down a column, on, up beyond its start, and away.
    const std::vector<QPoint> walk = {{10, 40}, {20, 40}, {20, 40}, {45, 40}, {30, 40}, {30, 60},
                                      {30, 75}, {30, 75}, {30, 20}, {31, 20}, {60, 50}, {60, 50}};
    const Pen pen {penstyle::solid, 1, 0};
    Picture joined;
    Picture single;
    for (std::size_t i = 1; i < walk.size(); ++i) {
        joined.context().drawLine(walk[i - 1], walk[i], pen);
        single.context().drawLine(walk[i - 1], walk[i], pen);
        single.context().flush();
    }
    EXPECT_EQ(joined.image(), single.image());
}

TEST(PainterContext, drawsACurveBeyondTheEdgesLikeThatOfALargerPicture)
{
    constexpr QPoint shift(150, 120);
    QImage large(800, 600, QImage::Format_RGB32);
    large.fill(Qt::white);
    QPainter painter(&large);
    PainterContext context(painter);
    context.setOrigin(shift);
    Picture picture;
    for (const int width : {1, 3}) {
        QPoint from(-140, 100);
        for (const QPoint to : {QPoint(-1, -60), QPoint(60, -3), QPoint(300, -1), QPoint(402, 80),
                                QPoint(401, 140), QPoint(399, 303), QPoint(20, 301)}) {
            picture.context().drawLine(from, to, {penstyle::solid, width, 0});
            context.drawLine(from, to, {penstyle::solid, width, 0});
            from = to;
        }
    }
    context.flush();
    // The engine rounds where it cuts lines at the edges of its image.
    EXPECT_LE(largestDifference(picture.image(), large.copy(QRect(shift, picture.image().size()))),
              6);
}

TEST(PainterContext, drawsTheHalfOfAWideLineThatReachesIntoThePicture)
{
    Picture picture;
    picture.context().drawLine({50, -9}, {350, -9}, {penstyle::solid, 30, 0});
    EXPECT_EQ(picture.image().pixelColor(200, 4), QColor(Qt::black));
    EXPECT_EQ(picture.image().pixelColor(200, 8), QColor(Qt::white));
}

TEST(PainterContext, joinsThickSegmentsToThePictureOfSingleOnesButForBlending)
{
    // Where two antialiased segments meet, separate ones blend twice: a pixel with coverage c gets
    // 1 - (1 - c)^2 instead of c. The difference is at most 1/4 (at c = 1/2), 64 of 255.
    for (const int width : {2, 3, 5})
        EXPECT_LE(largestDifference(zigzagPicture({penstyle::solid, width, 0}, true),
                                    zigzagPicture({penstyle::solid, width, 0}, false)),
                  72)
            << "width " << width;
}

TEST(PainterContext, drawsThinLinesThroughTheMiddleOfTheirPixels)
{
    // A line one pixel wide inks, at each step of its longer side, the two pixels around it in
    // proportion to their nearness. Slope 1/4 over 80 columns, in all directions: every fourth
    // pixel is hit exactly, half-way between them two pixels share the ink.
    for (const QPoint way : {QPoint(80, 20), QPoint(80, -20), QPoint(-80, 20), QPoint(-80, -20),
                             QPoint(20, 80), QPoint(-20, 80), QPoint(20, -80), QPoint(-20, -80)}) {
        Picture picture;
        picture.context().drawLine({200, 150}, QPoint(200, 150) + way, {penstyle::solid, 1, 0});
        for (int k = 0; k <= 20; k += 2) {
            const QPoint pixel = QPoint(200, 150) + way * k / 20;
            EXPECT_LE(qGray(picture.image().pixel(pixel)), 4) << k << " of 20 to " << way.x();
        }
        EXPECT_EQ(picture.ink().width(), std::abs(way.x()) + 1);
        EXPECT_EQ(picture.ink().height(), std::abs(way.y()) + 1);
    }
}

TEST(PainterContext, keepsTheOrderOfLinesOfDifferentPens)
{
    Picture picture;
    picture.context().drawLine({0, row}, {100, row}, {penstyle::solid, 1, rgb(255, 0, 0)});
    picture.context().drawLine({100, row}, {0, row}, {penstyle::solid, 1, rgb(0, 0, 255)});
    EXPECT_EQ(picture.image().pixelColor(50, row), QColor(0, 0, 255));
}

TEST(PainterContext, drawsALineBetweenFarAwayPointsWithItsSlope)
{
    constexpr int far = 1 << 26;
    Picture picture;
    picture.context().drawLine({-far, -far}, {far, far}, {penstyle::solid, 1, 0});
    picture.context().drawLine({-far, 200 - far / 2}, {far, 200 + far / 2},
                               {penstyle::solid, 1, rgb(0, 0, 255)});
    const QImage& image = picture.image();
    for (int k = 0; k < 300; k += 20) // the diagonal runs through the pixels (k, k)
        EXPECT_LE(qGray(image.pixel(k, k)), 4) << k;
    for (int k = 0; k < 100; k += 20) { // slope one half: through the pixels (2 k, 200 + k)
        EXPECT_GE(image.pixelColor(2 * k, 200 + k).blue(), 250) << k;
        EXPECT_LE(image.pixelColor(2 * k, 200 + k).red(), 4) << k;
    }
    EXPECT_EQ(image.pixelColor(100, 150), QColor(Qt::white));
}

TEST(PainterContext, drawsOnlyTheNearEndOfALineThatLeavesFarAway)
{
    constexpr int far = 1 << 26;
    Picture picture;
    picture.context().drawLine({100, 50}, {far, 50}, {penstyle::solid, 1, 0});
    EXPECT_EQ(picture.ink(), QRect(QPoint(100, 50), QPoint(399, 50)));
}

TEST(PainterContext, drawsNothingOfALineThatPassesFarAway)
{
    constexpr int far = 1 << 26;
    Picture picture;
    picture.context().drawLine({-far, -far}, {far, -far}, {penstyle::solid, 1, 0});
    picture.context().drawLine({far, -far}, {far, far}, {penstyle::dot, 1, 0});
    picture.context().drawLine({far, 0}, {0, far}, {penstyle::solid, 1, 0});
    picture.context().drawLine({far, far}, {far, far}, {penstyle::solid, 1, 0});
    EXPECT_TRUE(picture.ink().isEmpty());
}

TEST(PainterContext, drawsFarAwayDashedLinesThroughTheirPixels)
{
    constexpr int far = 1 << 26;
    for (const int style :
         {penstyle::dash, penstyle::dot, penstyle::dashDot, penstyle::dashDotDot}) {
        Picture picture;
        picture.context().drawLine({-far, row}, {far, row}, {style, 1, 0});
        EXPECT_EQ(picture.ink().top(), row);
        EXPECT_EQ(picture.ink().bottom(), row);
        EXPECT_GT(picture.ink().width(), 380); // no gap is longer than 6 pixels
    }
}

TEST(PainterContext, drawsACurveThatGoesFarAwayAndComesBack)
{
    constexpr int far = 1 << 26;
    Picture picture;
    const Pen pen {penstyle::solid, 1, 0};
    picture.context().drawLine({10, 50}, {20, 50}, pen);
    picture.context().drawLine({20, 50}, {20, -far}, pen);
    picture.context().drawLine({20, -far}, {100, -far}, pen);
    picture.context().drawLine({100, -far}, {100, 50}, pen);
    picture.context().drawLine({100, 50}, {110, 50}, pen);
    const QImage& image = picture.image();
    EXPECT_EQ(image.pixelColor(15, 50), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(20, 0), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(60, 0), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(100, 0), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(105, 50), QColor(Qt::black));
}

TEST(PainterContext, drawsMoreConnectedSegmentsThanFitIntoOnePolyline)
{
    Picture picture;
    const Pen pen {penstyle::solid, 1, 0};
    for (int i = 0; i < 10000; ++i) // along two rows, 200 pixels each way
        picture.context().drawLine({i % 200, 20 + (i / 200) % 2},
                                   {(i + 1) % 200, 20 + ((i + 1) / 200) % 2}, pen);
    for (int column = 0; column < 200; ++column)
        EXPECT_LT(qGray(picture.image().pixel(column, 20)), 128) << column;
}

TEST(ScreenFont, hasItsPixelsAtNinetySixPerInch)
{
    // 8 points are 8 * 96 / 72 = 10.67 pixels, 12 points are 16; the minimum is one pixel.
    EXPECT_EQ(screenFont({QStringLiteral("Arial"), 8}).pixelSize(), 11);
    EXPECT_EQ(screenFont({QStringLiteral("Arial"), 12}).pixelSize(), 16);
    EXPECT_EQ(screenFont({QStringLiteral("Arial"), 0}).pixelSize(), 1);
}

TEST(ScreenFont, hasTheStylesOfTheFont)
{
    const QFont font = screenFont({QStringLiteral("Arial"), 8, true, true, true, true});
    EXPECT_TRUE(font.bold());
    EXPECT_TRUE(font.italic());
    EXPECT_TRUE(font.underline());
    EXPECT_TRUE(font.strikeOut());
    EXPECT_FALSE(screenFont({}).bold());
}
