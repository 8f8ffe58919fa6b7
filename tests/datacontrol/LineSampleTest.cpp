// SPDX-License-Identifier: Apache-2.0

// The sample of a series' line.

#include "datacontrol/LineSample.h"

#include "plot/Series.h"
#include "surface/DeviceContext.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

/// The number of pixels of a 40 x 11 sample that have the colour of the series, blue.
int inked(std::int32_t style, std::int16_t width)
{
    QImage image(40, 11, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    Series series;
    series.ColorIndex = BaseColors[1];
    series.LineStyle = style;
    series.LineWidth = width;
    drawLineSample(painter, image.rect(), series);
    painter.end();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == QColor(Qt::blue) ? 1 : 0;
    }
    return count;
}

} // namespace

TEST(LineSample, isAsLongAsTheCellAllows)
{
    EXPECT_EQ(inked(penstyle::solid, 0), 40 - 2 * 3); // margins of three pixels at both ends
    EXPECT_EQ(inked(penstyle::solid, 1), 40 - 2 * 3);
    EXPECT_GT(inked(penstyle::solid, 3), 3 * (40 - 2 * 3) - 6);
}

TEST(LineSample, hasTheDashesOfTheCurve)
{
    const int dots = inked(penstyle::dot, 1); // three pixels, then a gap of three
    EXPECT_GE(dots, 15);
    EXPECT_LE(dots, 19);
}

TEST(LineSample, isASquareForACurveWithoutALine)
{
    EXPECT_EQ(inked(penstyle::none, 1), 7 * 7);
}
